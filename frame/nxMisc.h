#pragma once

#include "frame/Edge.h"

#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <utility>
#include <vector>

// The library's string and value toolkit, one shared instance behind nxApp::Misc(). Positions
// count from 1; `compare` is 0 for a binary comparison and 1 for one without regard to case.
// While the library is not initialised every member answers its empty value, except ApiciDoppi,
// which gives its input back.
class nxMisc {
public:
    static constexpr int kBinaryCompare = 0;
    static constexpr int kTextCompare = 1;

    nxMisc();

    // Everything before the first NUL: what a buffer filled by the system holds.
    QString AnsiToVb(const QString& text) const;
    // 0 left out (and anything not below), 1 empty, 2 null, 3 string, 4 number, 5 date,
    // 6 boolean, 7 the bare array type.
    int VariantKind(const vb::Variant& value) const;
    bool VariantIsDiff(const vb::Variant& a, const vb::Variant& b, bool byKind = false) const;
    QString FillWith(const QString& text, int length, const QString& fill) const;
    QString Hex(std::int32_t value, int digits = 0) const;
    int InStrFirst(int start, const QString& text, const QString& chars,
                   int compare = kBinaryCompare) const;
    int InStrRev(int start, const QString& text, const QString& find,
                 int compare = kBinaryCompare) const;
    int InStrX(int start, const QString& text, const QString& find, int count,
               int compare = kBinaryCompare) const;
    bool IsAlpha(const QString& text, int position, const QString& extra = {}) const;
    bool IsNumber(const QString& text, int position, const QString& extra = {}) const;
    QString LeadAppend(const QString& text, const QString& pair) const;
    QString LeadRemove(const QString& text, const QString& pair) const;
    void Swap(vb::Variant& a, vb::Variant& b) const;
    vb::Variant Min(const vb::Variant& a, const vb::Variant& b,
                    const vb::Variant& floor = vb::Missing{}) const;
    bool MinMax(vb::Variant& value, vb::Variant low, vb::Variant high, bool fix = false) const;

    // Collections: anything with Refresh() and an Item(key) that throws for a key it lacks
    // (the ADOX collections).
    template <class Collection> void CollectionRefresh(Collection& collection) const noexcept {
        if (m_enabled) {
            IgnoreErrors([&] { collection.Refresh(); });
        }
    }
    template <class Collection, class Key>
    bool ObjectExist(Collection& collection, const Key& key, bool refresh = false) const noexcept {
        if (!m_enabled) {
            return false;
        }
        if (refresh) {
            CollectionRefresh(collection);
        }
        return IgnoreErrors(false, [&] {
            static_cast<void>(collection.Item(key));
            return true;
        });
    }

    // True when the array has no first element: in one dimension, or in two (an array whose
    // first element is an array).
    bool ArrayIsEmpty(const vb::Variant& array, int dimensions = 1) const;
    template <class T> bool ArrayIsEmpty(const std::vector<T>& array) const {
        return !m_enabled || array.empty();
    }
    bool ArrayIsEmpty(const QStringList& array) const { return !m_enabled || array.isEmpty(); }

    QString RemoveChars(const QString& text, const QString& chars, bool blank = false) const;
    void StrDel(QString& text, int start, int count) const;
    QString Token(const QString& text, int index, const QString& def,
                  const QString& separator) const;
    QString NewID(int length = 16) const;
    QString ApiciDoppi(const QString& text) const;

private:
    bool m_enabled = false;
};
