#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/Provider.h"
#include "platform/vb/Variant.h"

#include <optional>
#include <vector>

namespace ado {

// The values typed into the current record (or into a new one) until Update or CancelUpdate.
class EditBuffer {
public:
    EditModeEnum mode() const noexcept { return m_mode; }
    void begin(EditModeEnum mode, std::size_t columns) {
        m_mode = mode;
        m_values.assign(columns, std::nullopt);
    }
    void set(int column, const vb::Variant& value) {
        m_values.at(static_cast<std::size_t>(column)) = value;
    }
    const vb::Variant* pending(int column) const {
        if (m_mode == EditModeEnum::adEditNone || column < 0 ||
            static_cast<std::size_t>(column) >= m_values.size()) {
            return nullptr;
        }
        const auto& value = m_values[static_cast<std::size_t>(column)];
        return value ? &*value : nullptr;
    }
    std::vector<FieldChange> changes() const {
        std::vector<FieldChange> result;
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (m_values[i]) {
                result.push_back({static_cast<int>(i), *m_values[i]});
            }
        }
        return result;
    }
    void clear() {
        m_mode = EditModeEnum::adEditNone;
        m_values.clear();
    }

private:
    EditModeEnum m_mode = EditModeEnum::adEditNone;
    std::vector<std::optional<vb::Variant>> m_values;
};

} // namespace ado
