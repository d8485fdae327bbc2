#pragma once

#include "engine/DbImportEvents.h"

class frmMain;

// The run's events, as they reach the window: each is handed to the window's sink on the window's
// thread, and the run waits until the sink has finished (a question box included), so the sinks
// run in the order the events were raised.
class WindowFeed : public DbImportEvents {
public:
    explicit WindowFeed(frmMain& window) : m_window(window) {}

    void EVTImportStart() override;
    void EVTImportEnd() override;
    void EVTSysTableImportStart(std::int16_t lastIndex) override;
    void EVTTableImportStart(std::int32_t recordCount) override;
    void EVTTableImportEnd() override;
    void EVTSysTableImporting(std::int16_t index, const QString& table) override;
    void EVTUserTableImportStart(std::int16_t count) override;
    void EVTUserTableImporting(std::int16_t index, const QString& table,
                               const vb::Variant& description) override;
    void EVTUserTableCreating(const QString& table, const vb::Variant& description) override;
    void EVTUserTableDataCopy(const QString& table, const vb::Variant& description) override;
    void EVTUserTableIndexCreating(const QString& table, const vb::Variant& description) override;
    void EVTUserTableNotExisting(const QString& table, const vb::Variant& description) override;
    void EVTDictionayImportStart(std::int16_t count) override;
    void EVTDictionaryImporting(std::int16_t index, const QString& table) override;
    void EVTDictionaryCreating(const QString& table, std::int16_t step) override;
    void EVTDictionaryNotExisting(const QString& table) override;
    void EVTRecordImporting(std::int32_t current, std::int32_t total) override;
    void EVTError(std::int32_t kind, const QString& text, bool askViewLog) override;

private:
    template <class Sink> void deliver(Sink&& sink);

    frmMain& m_window;
};
