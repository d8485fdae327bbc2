#pragma once

#include "platform/win/FileSystem.h"

#include <QString>

class ListControl;

// A text log: one dated line per call ("dd/mm/yyyy - HH:nn - text"), windows-1252, CR LF,
// appended to a file, and if asked mirrored into a list that keeps the last 2000 lines. The file
// is held exclusively while open: a second process on the same log takes the next free name,
// "x01.log", "x02.log"... up to "xFF.log".
class nxLog {
public:
    static constexpr int kListRows = 2000;

    nxLog() = default;
    nxLog(const nxLog&) = delete;
    nxLog& operator=(const nxLog&) = delete;
    nxLog(nxLog&&) = delete;
    nxLog& operator=(nxLog&&) = delete;
    ~nxLog();

    // The file really in use (it may carry a suffix).
    const QString& LogFile() const noexcept { return m_logFile; }
    bool IsOpen() const noexcept { return m_file.isOpen(); }

    // Names the file: `file`, or when empty the program's name (or its folder of one file a
    // day, with `dated`) with ".log" in `path` or the program's folder. Makes the folder. Ignored
    // while open or before the library starts.
    void LogSet(const QString& file = {}, const QString& path = {}, bool dated = false);
    bool LogOpen(const QString& title = {}, ListControl* list = nullptr, bool silent = false);
    void LogClose(const QString& text = {}, ListControl* list = nullptr);
    void LogWrite(const QString& text, ListControl* list = nullptr);
    // The record of nxApp::LastError(): "Description (Number in Source)", the number part only
    // when there is one.
    void LogWriteError(ListControl* list = nullptr);
    void LogClear(const QString& title = {}, bool backup = false, const QString& backupFile = {},
                  ListControl* list = nullptr, bool silent = false);
    // Opens the file in a viewer, the log staying open.
    void LogView(bool silent = false);

private:
    bool m_set = false;
    QString m_configured;
    QString m_logFile;
    win::LockedFile m_file;
};
