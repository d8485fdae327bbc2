#pragma once

#include "platform/ado/Provider.h"
#include "platform/vb/Variant.h"

#include <QStringView>

#include <functional>
#include <memory>
#include <vector>

namespace ado {

// A Recordset::Filter text, in ADO's grammar as the system writes it: clauses
// "Field operator Value" with =, <>, <, >, <=, >= and LIKE, joined by AND and OR, grouped in
// parentheses. Field names match without regard to case and may stand in [brackets]. Values are
// 'text' (a doubled '' for an apostrophe), #date#, numbers or NULL. LIKE takes * or % only at
// the end, or at both ends; "_" is an ordinary character. Text compares without regard to case.
class FilterExpression {
public:
    FilterExpression() = default;
    // Throws adErrInvalidArgument for text outside the grammar or an unknown field.
    static FilterExpression parse(QStringView text, const std::vector<ColumnInfo>& columns);

    bool isEmpty() const noexcept { return m_root == nullptr; }
    // `valueOf(column)` gives a value of the row under test.
    bool matches(const std::function<vb::Variant(int)>& valueOf) const;

    struct Node;

private:
    std::shared_ptr<const Node> m_root;
};

} // namespace ado
