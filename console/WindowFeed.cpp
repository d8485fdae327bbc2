#include "console/WindowFeed.h"

#include "console/WindowThread.h"
#include "console/frmMain.h"

#include "frame/Edge.h"

template <class Sink> void WindowFeed::deliver(Sink&& sink) {
    // A sink's failure stays on the window's side, as an unhandled error in an event sink would:
    // it is recorded, and the run goes on.
    onThreadOf(&m_window, [&] { Edge(u"frmMain.m_cDbImp", true, [&] { sink(m_window); }); });
}

void WindowFeed::EVTImportStart() {
    deliver([](frmMain& w) { w.m_cDbImp_EVTImportStart(); });
}
void WindowFeed::EVTImportEnd() {
    deliver([](frmMain& w) { w.m_cDbImp_EVTImportEnd(); });
}
void WindowFeed::EVTSysTableImportStart(std::int16_t lastIndex) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTSysTableImportStart(lastIndex); });
}
void WindowFeed::EVTTableImportStart(std::int32_t recordCount) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTTableImportStart(recordCount); });
}
void WindowFeed::EVTTableImportEnd() {
    deliver([](frmMain& w) { w.m_cDbImp_EVTTableImportEnd(); });
}
void WindowFeed::EVTSysTableImporting(std::int16_t index, const QString& table) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTSysTableImporting(index, table); });
}
void WindowFeed::EVTUserTableImportStart(std::int16_t count) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableImportStart(count); });
}
void WindowFeed::EVTUserTableImporting(std::int16_t index, const QString& table,
                                       const vb::Variant& description) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableImporting(index, table, description); });
}
void WindowFeed::EVTUserTableCreating(const QString& table, const vb::Variant& description) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableCreating(table, description); });
}
void WindowFeed::EVTUserTableDataCopy(const QString& table, const vb::Variant& description) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableDataCopy(table, description); });
}
void WindowFeed::EVTUserTableIndexCreating(const QString& table, const vb::Variant& description) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableIndexCreating(table, description); });
}
void WindowFeed::EVTUserTableNotExisting(const QString& table, const vb::Variant& description) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTUserTableNotExisting(table, description); });
}
void WindowFeed::EVTDictionayImportStart(std::int16_t count) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTDictionayImportStart(count); });
}
void WindowFeed::EVTDictionaryImporting(std::int16_t index, const QString& table) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTDictionaryImporting(index, table); });
}
void WindowFeed::EVTDictionaryCreating(const QString& table, std::int16_t step) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTDictionaryCreating(table, step); });
}
void WindowFeed::EVTDictionaryNotExisting(const QString& table) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTDictionaryNotExisting(table); });
}
void WindowFeed::EVTRecordImporting(std::int32_t current, std::int32_t total) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTRecordImporting(current, total); });
}
void WindowFeed::EVTError(std::int32_t kind, const QString& text, bool askViewLog) {
    deliver([&](frmMain& w) { w.m_cDbImp_EVTError(kind, text, askViewLog); });
}
