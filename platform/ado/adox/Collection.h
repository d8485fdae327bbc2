#pragma once

#include "platform/ado/Error.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ado::adox {

// An ADOX collection (Tables, Columns, Indexes, Keys): items by 0-based index or by name without
// regard to case, filled from the provider at first use, with Append and Delete passed on to
// the provider when the owner already exists in the database.
template <class T> class Collection {
public:
    using Ptr = std::shared_ptr<T>;

    explicit Collection(QString source) : m_source(std::move(source)) {}

    long Count() const {
        load();
        return static_cast<long>(m_items.size());
    }
    T& Item(long index) const { return *ItemPtr(index); }
    T& Item(QStringView name) const { return *ItemPtr(name); }
    Ptr ItemPtr(long index) const {
        load();
        if (index < 0 || index >= static_cast<long>(m_items.size())) {
            raise(HResult::adErrItemNotFound, m_source);
        }
        return m_items[static_cast<std::size_t>(index)];
    }
    Ptr ItemPtr(QStringView name) const {
        if (Ptr item = find(name)) {
            return item;
        }
        raise(HResult::adErrItemNotFound, m_source);
    }
    Ptr find(QStringView name) const {
        load();
        for (const auto& item : m_items) {
            if (item->Name().compare(name, Qt::CaseInsensitive) == 0) {
                return item;
            }
        }
        return nullptr;
    }

    void Append(const Ptr& item) {
        load();
        if (!item || find(item->Name())) {
            raise(HResult::adErrObjectInCollection, m_source);
        }
        if (m_onAppend) {
            m_onAppend(*item);
        }
        m_items.push_back(item);
    }
    // Append(name, ...) makes the item from its name and the further arguments, as ADOX's
    // Columns.Append "Name", adVarWChar, 50 does.
    template <class... Args> Ptr Append(const QString& name, Args&&... args) {
        auto item = std::make_shared<T>(name, std::forward<Args>(args)...);
        Append(item);
        return item;
    }
    void Delete(QStringView name) {
        Ptr item = ItemPtr(name);
        if (m_onDelete) {
            m_onDelete(*item);
        }
        std::erase(m_items, item);
    }
    void Delete(long index) { Delete(ItemPtr(index)->Name()); }
    // Reads the collection from the provider again at next use.
    void Refresh() {
        if (m_loader) {
            m_loaded = false;
        }
    }

    void setLoader(std::function<std::vector<Ptr>()> loader) {
        m_loader = std::move(loader);
        m_loaded = false;
    }
    void setHooks(std::function<void(T&)> onAppend, std::function<void(T&)> onDelete) {
        m_onAppend = std::move(onAppend);
        m_onDelete = std::move(onDelete);
    }

    auto begin() const {
        load();
        return m_items.begin();
    }
    auto end() const { return m_items.end(); }

private:
    void load() const {
        if (m_loader && !m_loaded) {
            m_items = m_loader();
            m_loaded = true;
        }
    }

    QString m_source;
    mutable std::vector<Ptr> m_items;
    mutable bool m_loaded = true;
    std::function<std::vector<Ptr>()> m_loader;
    std::function<void(T&)> m_onAppend;
    std::function<void(T&)> m_onDelete;
};

} // namespace ado::adox
