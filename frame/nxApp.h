#pragma once

#include "platform/vb/Variant.h"
#include "platform/win/MessageBox.h"
#include "platform/win/MousePointer.h"
#include "platform/win/Registry.h"
#include "platform/win/Shell.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

class nxError;
class nxLog;
class nxMisc;
class nxSys;
class nxUtilsDll;

// The application object: the one road from every library class to the application. It starts
// the library, lends the shared toolkits, the record of the last failure and the message boxes,
// and keeps the application's settings in the registry.
//
// There is exactly one, made on first use; its members are static so that code reads
// nxApp::ErrorBox(...), nxApp::LastError().Number(), nxApp::Misc()... The toolkits' connection
// object (Conn) belongs to the database layer, which keeps it there.
class nxApp {
public:
    // The host object of a development run: product texts 0..3 (3 the product name) and the
    // version numbers, as GetAppInfo reads them.
    struct Host {
        QString texts[4];
        std::int16_t major = 0;
        std::int16_t minor = 0;
        std::int16_t revision = 0;
        std::int32_t instance = 0;
    };

    // Starts the library. `host` is empty (the process itself), a non-zero instance number, or a
    // Host object; `commandLine` the program's terms. False when the library cannot be used; the
    // caller then ends the program.
    static bool AppInitialize(const vb::Variant& host, const QString& commandLine);
    static bool AppInitialize(std::shared_ptr<const Host> host, const QString& commandLine);
    // Closes every window, closes the shared log and drops the toolkits. The tool itself ends
    // without it; the next use of a toolkit makes a new one.
    static void AppTerminate();
    // Closes every window of the process, errors ignored.
    static void CloseAllForms() noexcept;
    static bool IsInit() noexcept;
    static bool RunTime() noexcept;

    static std::int32_t ParamCount() noexcept;
    static QString Param(std::int32_t index);
    // True when one of the terms behind the program's own, Param(1) on, is `name` (without
    // regard to case).
    static bool ParamExist(const QString& name);
    static vb::Variant GetAppInfo(int what);
    static std::int32_t AppInstance() noexcept;

    static QString AppName();
    static void AppName(const QString& name);
    static QString AppRelease();
    static QDateTime AppDate();
    static QString AppTitle();

    static nxUtilsDll& Utils();
    static nxMisc& Misc();
    static nxSys& Sys();
    static nxLog& TickLog();

    static std::int32_t SetMousePointer(std::int32_t pointer);

    static long MsgBox(const QString& text, long flags = 0);
    static long MsgBoxEx(QObject* window, const QString& text, long flags, const QString& buttons);
    static long MsgBoxExHelp(QObject* window, const QString& text, long flags,
                             const QString& buttons, std::function<void()> callback);

    static void CompleteErr(const QString& text);
    static void ErrorBox(const QString& label, bool silent, bool spare = false);
    static void FriendlyErrorBox(const QString& text, bool silent);
    static void FillError();
    static nxError& LastError();
    static bool CancelEnd();

    static QString RegPath(const QString& section, const QString& appName = {});
    static vb::Variant GetSetting(const QString& section, const QString& key,
                                  const vb::Variant& defaultValue = {}, const QString& appName = {},
                                  win::HKey root = win::kHKeyCurrentUser);
    static void SaveSetting(const QString& section, const QString& key, const vb::Variant& value,
                            const QString& appName = {}, win::HKey root = win::kHKeyCurrentUser);

    // 1 SQL Server, 0 Jet, -1 neither, from the provider a connection string names.
    static int AdoConnectionDbType(const QString& connectionString);

    // The words that identifiers are tested against: upper case, one blank before each and one
    // after the last, so that a word is found as blank, word, blank.
    static const QString& ReservedWords();

    // Lets the window breathe at the points where the system lets it; the window sets the hook.
    static void DoEvents();
    static void SetDoEvents(std::function<void()> hook);

    // The platform services the application object uses. By default: message boxes on the
    // screen, the machine's registry, the desktop's shell, the screen's pointer. Tests and the
    // command line install their own.
    static void SetMessageBox(std::shared_ptr<win::MessageBoxService> box);
    static void SetRegistry(std::shared_ptr<win::Registry> registry);
    static void SetShell(std::shared_ptr<win::Shell> shell);
    static void SetPointer(std::shared_ptr<win::MousePointer> pointer);
    static win::Registry& RegistryStore();
    static win::Shell& ShellService();

    // Drops the application object, so that the next use starts from a new one (tests only).
    static void ResetForTesting();

    struct State;

private:
    static State& state();
    static bool initialize(std::int32_t instance, std::shared_ptr<const Host> host,
                           const QString& commandLine);
    static long showBox(win::MessageBoxRequest request);
};
