#pragma once

#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

// A profile file of sections and "key=value" lines (see win::readProfileString). Nothing here
// shows a message or reports: a read that fails gives the default, a write that fails goes
// unnoticed. Booleans are written and read in English: "VERO" and "FALSO", in any case, become
// "True" and "False".
class nxIni {
public:
    nxIni();

    void SetIni(const QString& path);
    QString GetIni() const;
    // Fills `list` from index 1 (index 0 stays empty, as a list with a lower bound of 1 would
    // be), and returns the count. A file with nothing in it gives 0 and leaves the list alone.
    int GetSections(QStringList& list) const;
    int GetKeys(const QString& section, QStringList& list) const;
    vb::Variant GetVal(const QString& section, const QString& key,
                       const vb::Variant& def = {}) const;
    void SetVal(const QString& section, const QString& key, const vb::Variant& value) const;
    // Both directions in one: with `write` sets and returns `value`, else reads with `value` as
    // the default.
    vb::Variant KeyValue(const QString& section, const QString& key, const vb::Variant& value,
                         bool write) const;

private:
    int fillList(const QString& buffer, QStringList& list) const;

    QString m_path;
    bool m_enabled = false;
    bool m_winIni = false;
};
