#include "frame/nxApp.h"

#include "frame/nxAppState.h"
#include "frame/nxFileVersion.h"
#include "frame/nxWaitCursor.h"

#include "platform/win/FileSystem.h"
#include "platform/win/Forms.h"
#include "platform/win/QtMessageBox.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Upper case, blank-separated, a blank at both ends. CURRENT_USER stands twice, as it always has.
const QString& reservedWordList() {
    static const QString kWords =
        u" ADD ALL ALTER AND ANY AS ASC AUTHORIZATION BACKUP BEGIN BETWEEN BREAK BROWSE BULK BY CASCADE CASE CHECK CHECKPOINT CLOSE CLUSTERED COALESCE COLLATE COLUMN COMMIT COMPUTE CONSTRAINT CONTAINS CONTAINSTABLE CONTINUE CONVERT CREATE CROSS CURRENT CURRENT_DATE CURRENT_TIME CURRENT_TIMESTAMP CURRENT_USER CURRENT_USER CURSOR DATABASE DBCC DEALLOCATE DECLARE DEFAULT DELETE DENY DESC DISK DISTINCT DISTRIBUTED DOUBLE DROP DUMMY DUMP ELSE END ERRLVL ESCAPE EXCEPT EXEC EXECUTE EXISTS EXIT FETCH FILE FILLFACTOR FOR FOREIGN FREETEXT FREETEXTTABLE FROM FULL FUNCTION GOTO GRANT GROUP HAVING HOLDLOCK IDENTITY IDENTITY_INSERT IDENTITYCOL IF IN INDEX INNER INSERT INTERSECT INTO IS JOIN KEY KILL LEFT LIKE LINENO LOAD NATIONAL NOCHECK NONCLUSTERED NOT NULL NULLIF OF OFF OFFSETS ON OPEN OPENDATASOURCE OPENQUERY OPENROWSET OPENXML OPTION OR ORDER OUTER OVER PERCENT PLAN PRECISION PRIMARY PRINT PROC PROCEDURE PUBLIC RAISERROR READ READTEXT RECONFIGURE REFERENCES REPLICATION RESTORE RESTRICT RETURN REVOKE RIGHT ROLLBACK ROWCOUNT ROWGUIDCOL RULE SAVE SCHEMA SELECT SESSION_USER SET SETUSER SHUTDOWN SOME STATISTICS SYSTEM_USER TABLE TEXTSIZE THEN TO TOP TRAN TRANSACTION TRIGGER TRUNCATE TSEQUAL UNION UNIQUE UPDATE UPDATETEXT USE USER VALUES VARYING VIEW WAITFOR WHEN WHERE WHILE WITH WRITETEXT "_s;
    return kWords;
}

std::unique_ptr<nxApp::State>& holder() {
    // The one application object of the program.
    static std::unique_ptr<nxApp::State>
        app; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    return app;
}

// The program's own version block; a development host is never ours, the program always runs
// as a built executable.
nxFileVersion ownVersion() {
    nxFileVersion version;
    version.FullName(nxApp::Sys().AppFullName());
    return version;
}

} // namespace

nxApp::State& nxApp::state() {
    auto& app = holder();
    if (!app) {
        app = std::make_unique<State>();
    }
    return *app;
}

void nxApp::ResetForTesting() {
    holder().reset();
}

bool nxApp::AppInitialize(const vb::Variant& host, const QString& commandLine) {
    const std::int32_t instance = host.isNumber() ? host.toLong().value_or(0) : 0;
    return initialize(instance, nullptr, commandLine);
}

bool nxApp::AppInitialize(std::shared_ptr<const Host> host, const QString& commandLine) {
    const std::int32_t instance = host ? host->instance : 0;
    return initialize(instance, std::move(host), commandLine);
}

bool nxApp::initialize(std::int32_t instance, std::shared_ptr<const Host> host,
                       const QString& commandLine) {
    State& s = state();
    s.isInit = true;
    s.reservedWords = reservedWordList();
    s.host = std::move(host);
    s.instance = instance != 0 ? instance : win::processInstance();

    nxWaitCursor wait;
    wait.Show(true);

    s.misc = std::make_unique<nxMisc>();
    s.sys = std::make_unique<nxSys>();
    s.utils = std::make_unique<nxUtilsDll>();

    // Param(0) is the text before the first "/", then one parameter per "/"-separated term up
    // to the first empty one: "a/b//c" gives a and b.
    const QString line = commandLine.trimmed();
    s.params =
        QStringList{line.left(line.indexOf(u'/') < 0 ? line.size() : line.indexOf(u'/')).trimmed()};
    for (int i = 2;; ++i) {
        const QString term = s.misc->Token(line, i, {}, u"/"_s).trimmed();
        if (term.isEmpty()) {
            break;
        }
        s.params.append(term);
    }

    s.isInit = s.utils->IsReady();
    if (!s.isInit) {
        MsgBox(u"nxUtils.dll non trovata."_s, 48);
    }
    return s.isInit;
}

void nxApp::AppTerminate() {
    State& s = state();
    CloseAllForms();
    if (s.tickLog) {
        s.tickLog->LogClose();
    }
    s.misc.reset();
    s.sys.reset();
}

void nxApp::CloseAllForms() noexcept {
    win::closeAllForms();
}

bool nxApp::IsInit() noexcept {
    return state().isInit;
}

bool nxApp::RunTime() noexcept {
    return true;
}

std::int32_t nxApp::ParamCount() noexcept {
    return static_cast<std::int32_t>(std::max<qsizetype>(state().params.size() - 1, 0));
}

QString nxApp::Param(std::int32_t index) {
    const QStringList& params = state().params;
    return index >= 0 && index < params.size() ? params[index] : QString();
}

bool nxApp::ParamExist(const QString& name) {
    const QStringList& params = state().params;
    for (qsizetype i = 1; i < params.size(); ++i) {
        if (params[i].compare(name.trimmed(), Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

vb::Variant nxApp::GetAppInfo(int what) {
    const State& s = state();
    if (!s.host || !s.isInit) {
        return {};
    }
    if (what >= 0 && what <= 3) {
        return vb::Variant(s.host->texts[what]);
    }
    switch (what) {
    case 4:
        return vb::Variant(s.host->major);
    case 5:
        return vb::Variant(s.host->minor);
    case 6:
        return vb::Variant(s.host->revision);
    default:
        return {};
    }
}

std::int32_t nxApp::AppInstance() noexcept {
    return state().instance;
}

QString nxApp::AppName() {
    const State& s = state();
    if (!s.appName.isEmpty() && s.isInit) {
        return s.appName;
    }
    return ownVersion().ProductName();
}

void nxApp::AppName(const QString& name) {
    if (state().isInit) {
        state().appName = name;
    }
}

QString nxApp::AppRelease() {
    if (!state().isInit) {
        return {};
    }
    // Three numbers of the four: the block's third (VerRevision) is left out, 1.2.3.4 is "1.2.4".
    const nxFileVersion v = ownVersion();
    return QString::number(v.VerMajor()) + u'.' + QString::number(v.VerMinor()) + u'.' +
           QString::number(v.VerBuild());
}

QDateTime nxApp::AppDate() {
    const QString file = Sys().AppFullName();
    return file.isEmpty() ? QDateTime() : QFileInfo(file).lastModified();
}

QString nxApp::AppTitle() {
    return AppName() + u' ' + AppRelease() + u" ("_s + AppDate().toString(u"dd/MM/yyyy"_s) + u')';
}

nxUtilsDll& nxApp::Utils() {
    State& s = state();
    if (!s.utils) {
        s.utils = std::make_unique<nxUtilsDll>();
    }
    return *s.utils;
}

nxMisc& nxApp::Misc() {
    State& s = state();
    if (!s.misc) {
        s.misc = std::make_unique<nxMisc>();
    }
    return *s.misc;
}

nxSys& nxApp::Sys() {
    State& s = state();
    if (!s.sys) {
        s.sys = std::make_unique<nxSys>();
    }
    return *s.sys;
}

nxLog& nxApp::TickLog() {
    State& s = state();
    if (!s.tickLog) {
        s.tickLog = std::make_unique<nxLog>();
    }
    return *s.tickLog;
}

nxError& nxApp::LastError() {
    State& s = state();
    if (!s.lastError) {
        s.lastError = std::make_unique<nxError>();
    }
    return *s.lastError;
}

std::int32_t nxApp::SetMousePointer(std::int32_t pointer) {
    State& s = state();
    if (!s.pointer) {
        s.pointer = std::make_shared<win::ScreenPointer>();
    }
    const std::int32_t previous = s.pointer->get();
    if (previous != pointer) {
        s.pointer->set(pointer);
    }
    return previous;
}

int nxApp::AdoConnectionDbType(const QString& connectionString) {
    if (connectionString.contains(u"SQLOLEDB"_s, Qt::CaseInsensitive) ||
        connectionString.contains(u"SQLNCLI"_s, Qt::CaseInsensitive)) {
        return 1; // "SQLNCLI10" contains "SQLNCLI"
    }
    if (connectionString.contains(u"Microsoft.Jet.OLEDB.4.0"_s, Qt::CaseInsensitive)) {
        return 0;
    }
    return -1;
}

const QString& nxApp::ReservedWords() {
    return state().reservedWords;
}

void nxApp::DoEvents() {
    if (const auto& hook = state().doEvents) {
        hook();
    }
}

void nxApp::SetDoEvents(std::function<void()> hook) {
    state().doEvents = std::move(hook);
}

void nxApp::SetMessageBox(std::shared_ptr<win::MessageBoxService> box) {
    state().box = std::move(box);
}

void nxApp::SetRegistry(std::shared_ptr<win::Registry> registry) {
    state().registry = std::move(registry);
}

void nxApp::SetShell(std::shared_ptr<win::Shell> shell) {
    state().shell = std::move(shell);
}

void nxApp::SetPointer(std::shared_ptr<win::MousePointer> pointer) {
    state().pointer = std::move(pointer);
}

win::Registry& nxApp::RegistryStore() {
    State& s = state();
    if (!s.registry) {
        s.registry = win::systemRegistry();
    }
    return *s.registry;
}

win::Shell& nxApp::ShellService() {
    State& s = state();
    if (!s.shell) {
        s.shell = std::make_shared<win::DesktopShell>();
    }
    return *s.shell;
}
