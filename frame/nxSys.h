#pragma once

#include <QString>

#include <cstdint>

class ListControl;

// The library's file, path and process calls, one shared instance behind nxApp::Sys().
//
// Paths. The system writes them with backslashes, and so do the suite's settings; this program
// also meets paths with slashes on every platform. So everywhere here a backslash and a slash
// both separate folders, and a separator that a member adds is the one the path already uses
// (its last), or the platform's own ('\' on Windows, '/' elsewhere) when it has none. Backslash
// paths thus give the system's results on every platform, and folders that come from here
// (AppPath, GetDir...) end in the platform's separator on the platform's own paths.
class nxSys {
public:
    nxSys();

    QString ComputerName();
    QString WindowsPath() const;
    QString SystemPath() const;
    const QString& AppFullName() const noexcept { return m_appFullName; }
    QString AppExeName() const;
    QString AppPath() const;
    // The program's file becomes the module of nxApp::AppInstance(); a non-empty `path` that
    // names an existing folder replaces its folder.
    void AppPath(const QString& path);
    void SetListBoxHScrollbar(ListControl* list);

    QString AddBkSlash(const QString& path, bool atEnd = true) const;
    QString DelBkSlash(const QString& path, bool atEnd = true) const;
    bool IsUNC(const QString& path) const;
    QString GetUnit(const QString& path) const;
    QString GetDir(const QString& path, bool withUnit = true) const;
    // The text behind the last separator, without its extension unless `withExt`. Only the
    // first character of `separator` counts; an empty one means either path separator.
    QString GetName(const QString& path, bool withExt = true, const QString& separator = {}) const;
    QString GetExt(const QString& path) const;
    QString GetPIDFullName(std::int32_t instance) const;

    bool DirExist(const QString& path) const;
    bool FileExist(const QString& path) const;
    bool GetAttr(const QString& path, std::uint32_t mask) const;
    bool SetAttr(const QString& path, std::uint32_t mask, bool on) const;
    bool DirMake(const QString& path, bool silent = false) const;
    bool FileInUse(const QString& path) const;
    bool FileCopy(const QString& source, const QString& dest, bool silent = false,
                  bool copyAttr = false) const;
    // Removes the files that `path` names, wild cards allowed, read-only and hidden ones too.
    bool FileRemove(const QString& path, bool silent = false) const;
    bool FileRename(const QString& oldPath, const QString& newPath, bool silent = false) const;
    QString GetShortPath(const QString& path) const;
    // Runs `application` on `file`, or opens `file` with its associated program. `action`:
    // 0 view, 1 open, 2 print, 3 explore, 4 runas.
    bool Shell(const QString& application, const QString& before, const QString& file,
               const QString& after, int action = 1, int show = 1, const QString& workDir = {},
               bool silent = false) const;
    QString SystemErrorText(long code) const;
    std::int32_t TickCount() const;

private:
    bool m_enabled = false;
    QString m_appFullName;
};
