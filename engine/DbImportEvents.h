#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>

// What a conversion tells the window while it runs, in the order they are declared. The sinks
// run as plain calls inside the run, so a sink that blocks holds the conversion.
class DbImportEvents {
public:
    virtual ~DbImportEvents() = default;

    // Once the identity objects exist; EVTImportEnd then follows in every run.
    virtual void EVTImportStart() = 0;
    virtual void EVTImportEnd() = 0;
    // The highest index of the system table list.
    virtual void EVTSysTableImportStart(std::int16_t lastIndex) = 0;
    // Around each table's record copy (system, user and dictionary tables).
    virtual void EVTTableImportStart(std::int32_t recordCount) = 0;
    virtual void EVTTableImportEnd() = 0;
    virtual void EVTSysTableImporting(std::int16_t index, const QString& table) = 0;
    // The number of rows of DB_ELENCO.
    virtual void EVTUserTableImportStart(std::int16_t count) = 0;
    virtual void EVTUserTableImporting(std::int16_t index, const QString& table,
                                       const vb::Variant& description) = 0;
    virtual void EVTUserTableCreating(const QString& table, const vb::Variant& description) = 0;
    virtual void EVTUserTableDataCopy(const QString& table, const vb::Variant& description) = 0;
    virtual void EVTUserTableIndexCreating(const QString& table,
                                           const vb::Variant& description) = 0;
    virtual void EVTUserTableNotExisting(const QString& table, const vb::Variant& description) = 0;
    // The number of rows of DB_DIZIONARIO. The name lacks an "r": the window's sink is bound to
    // it under that name.
    virtual void EVTDictionayImportStart(std::int16_t count) = 0;
    virtual void EVTDictionaryImporting(std::int16_t index, const QString& table) = 0;
    // step: 1 creating, 2 copying, 3 indexing.
    virtual void EVTDictionaryCreating(const QString& table, std::int16_t step) = 0;
    virtual void EVTDictionaryNotExisting(const QString& table) = 0;
    // Declared for the window; a conversion never raises it (the job shows records itself).
    virtual void EVTRecordImporting(std::int32_t current, std::int32_t total) = 0;
    // Failures and plain status lines, by kind (see DbImportErrorKind).
    virtual void EVTError(std::int32_t kind, const QString& text, bool askViewLog) = 0;
};

// The kinds EVTError carries.
enum class DbImportErrorKind : std::int32_t {
    DatabaseNameRefused = 0,
    CreationFailed = 1,
    RecordCopyFailed = 3,
    IndexCreationFailed = 4,
    VerificationFailed = 5,
    Status = 6,
};
