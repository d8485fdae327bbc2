#pragma once

#include "engine/DbImportEvents.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace enginetest {

using namespace Qt::StringLiterals;

// Every event as one line, in the order of arrival.
class EventLog : public DbImportEvents {
public:
    QStringList lines;
    // What the window does when a system table starts (a press of the stop button).
    std::function<void()> onSysTable;
    // What the window does after any event, given its line.
    std::function<void(const QString&)> onEvent;

    void note(const QString& line) {
        lines << line;
        if (onEvent) {
            onEvent(line);
        }
    }

    void EVTImportStart() override { note(u"ImportStart"_s); }
    void EVTImportEnd() override { note(u"ImportEnd"_s); }
    void EVTSysTableImportStart(std::int16_t last) override {
        note(u"SysTableImportStart %1"_s.arg(last));
    }
    void EVTTableImportStart(std::int32_t count) override {
        note(u"TableImportStart %1"_s.arg(count));
    }
    void EVTTableImportEnd() override { note(u"TableImportEnd"_s); }
    void EVTSysTableImporting(std::int16_t index, const QString& table) override {
        note(u"SysTableImporting %1 %2"_s.arg(QString::number(index), table));
        if (onSysTable) {
            onSysTable();
        }
    }
    void EVTUserTableImportStart(std::int16_t count) override {
        note(u"UserTableImportStart %1"_s.arg(count));
    }
    void EVTUserTableImporting(std::int16_t index, const QString& table,
                               const vb::Variant& description) override {
        note(u"UserTableImporting %1 %2 (%3)"_s.arg(QString::number(index), table,
                                                          description.toString()));
    }
    void EVTUserTableCreating(const QString& table, const vb::Variant&) override {
        note(u"UserTableCreating "_s + table);
    }
    void EVTUserTableDataCopy(const QString& table, const vb::Variant&) override {
        note(u"UserTableDataCopy "_s + table);
    }
    void EVTUserTableIndexCreating(const QString& table, const vb::Variant&) override {
        note(u"UserTableIndexCreating "_s + table);
    }
    void EVTUserTableNotExisting(const QString& table, const vb::Variant&) override {
        note(u"UserTableNotExisting "_s + table);
    }
    void EVTDictionayImportStart(std::int16_t count) override {
        note(u"DictionaryImportStart %1"_s.arg(count));
    }
    void EVTDictionaryImporting(std::int16_t index, const QString& table) override {
        note(u"DictionaryImporting %1 %2"_s.arg(QString::number(index), table));
    }
    void EVTDictionaryCreating(const QString& table, std::int16_t step) override {
        note(u"DictionaryCreating %1 %2"_s.arg(table, QString::number(step)));
    }
    void EVTDictionaryNotExisting(const QString& table) override {
        note(u"DictionaryNotExisting "_s + table);
    }
    void EVTRecordImporting(std::int32_t current, std::int32_t total) override {
        note(u"RecordImporting %1 %2"_s.arg(current).arg(total));
    }
    void EVTError(std::int32_t kind, const QString& text, bool askViewLog) override {
        note(u"Error %1 %2%3"_s.arg(QString::number(kind), askViewLog ? u"[log] "_s : QString(),
                                         text));
    }
};

} // namespace enginetest
