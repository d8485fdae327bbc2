#pragma once

#include <QString>

// The suite's utility library, of which the tool needs a file test and a folder test. Both are
// served from the file system, so the library is always ready once the application object is.
class nxUtilsDll {
public:
    nxUtilsDll();
    bool IsReady() const noexcept { return m_ready; }
    bool FileExists(const QString& path) const;
    bool DirExists(const QString& path) const;

private:
    bool m_ready = false;
};
