#include "console/cli/Cli.h"

#include "console/FeedText.h"

#include "engine/DbImportEvents.h"

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/win/MessageBox.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <memory>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

// A box's text as one printed block: the system's CR LF as plain line ends.
QString printable(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s);
}

// The run's message boxes on the command line: each is printed, and each question is answered
// from the options. What the run said last is the reason given when it fails.
class ScriptedAnswers : public win::MessageBoxService {
public:
    ScriptedAnswers(const Options& options, QTextStream& out, QString& lastSaid)
        : m_options(options), m_out(out), m_lastSaid(lastSaid) {}

    long show(const win::MessageBoxRequest& request) override {
        m_out << printable(request.text) << Qt::endl;
        m_lastSaid = request.text;
        const QList<long> buttons = win::buttonsFor(request.flags);
        long answer = win::id::kOk;
        if (buttons.contains(win::id::kYes)) {
            answer = win::id::kNo; // nothing is opened for a reader who is not there
        } else if (buttons.contains(win::id::kCancel)) {
            // Index warnings are the one question that may go on: only when told to.
            answer = m_options.continueOnIndexWarnings ? win::id::kOk : win::id::kCancel;
        }
        if (buttons.size() > 1 || buttons.contains(win::id::kHelp)) {
            m_out << u"  -> "_s << captionOf(request, buttons, answer) << Qt::endl;
        }
        return answer;
    }

private:
    static QString captionOf(const win::MessageBoxRequest& request, const QList<long>& buttons,
                             long answer) {
        const qsizetype at = buttons.indexOf(answer);
        if (at >= 0 && at < request.captions.size()) {
            return QString(request.captions[at]).remove(u'&');
        }
        switch (answer) {
        case win::id::kNo:
            return u"No"_s;
        case win::id::kCancel:
            return u"Annulla"_s;
        default:
            return u"OK"_s;
        }
    }

    const Options& m_options;
    QTextStream& m_out;
    QString& m_lastSaid;
};

// The run's events as printed lines; the same lines the window's activity list shows.
class PrintedFeed : public DbImportEvents {
public:
    PrintedFeed(QTextStream& out, QString& lastSaid) : m_out(out), m_lastSaid(lastSaid) {}

    // The last line printed before the close-down's own, or nothing when the run raised no event
    // before it: then it failed before the source was opened, the log with it.
    const QString& lastActivity() const noexcept { return m_lastActivity; }

    void EVTImportStart() override { print(feed::importStart()); }
    void EVTImportEnd() override {
        const QString before = m_lastActivity;
        print(feed::importEnd());
        m_lastActivity = before;
    }
    void EVTSysTableImportStart(std::int16_t) override {}
    void EVTTableImportStart(std::int32_t) override {}
    void EVTTableImportEnd() override {}
    void EVTSysTableImporting(std::int16_t, const QString& table) override {
        print(feed::sysTableImporting(table));
    }
    void EVTUserTableImportStart(std::int16_t count) override {
        print(feed::userTableImportStart(count));
    }
    void EVTUserTableImporting(std::int16_t, const QString& table,
                               const vb::Variant& description) override {
        print(feed::userTableImporting(table, description));
    }
    void EVTUserTableCreating(const QString& table, const vb::Variant& description) override {
        print(feed::userTableCreating(table, description));
    }
    void EVTUserTableDataCopy(const QString& table, const vb::Variant& description) override {
        print(feed::userTableDataCopy(table, description));
    }
    void EVTUserTableIndexCreating(const QString& table, const vb::Variant& description) override {
        print(feed::userTableIndexCreating(table, description));
    }
    void EVTUserTableNotExisting(const QString& table, const vb::Variant& description) override {
        print(feed::userTableNotExisting(table, description));
    }
    void EVTDictionayImportStart(std::int16_t count) override {
        print(feed::dictionaryImportStart(count));
    }
    void EVTDictionaryImporting(std::int16_t, const QString& dictionary) override {
        print(feed::dictionaryImporting(dictionary));
    }
    void EVTDictionaryCreating(const QString& dictionary, std::int16_t stage) override {
        if (const std::optional<QString> line = feed::dictionaryCreating(dictionary, stage)) {
            print(*line);
        }
    }
    void EVTDictionaryNotExisting(const QString& dictionary) override {
        print(feed::dictionaryNotExisting(dictionary));
    }
    void EVTRecordImporting(std::int32_t, std::int32_t) override {}
    void EVTError(std::int32_t kind, const QString& text, bool) override {
        if (const std::optional<QString> line = feed::errorLine(kind, text)) {
            print(*line);
        }
        // What the window shows in a box is printed too; the question that offers the log is
        // not asked, since nobody would read it here.
        if (kind == 0 || kind == 1) {
            m_lastSaid = text;
        } else if (kind == 5) {
            m_lastSaid = feed::verificationBox(text, false);
            print(printable(m_lastSaid));
        }
    }

private:
    void print(const QString& line) {
        m_out << line << Qt::endl;
        m_lastActivity = line;
    }

    QTextStream& m_out;
    QString& m_lastSaid;
    QString m_lastActivity;
};

// The connection the run opens first, to the server's master database.
QString masterConnectionString(const Options& options) {
    QString text = u"Provider=SQLOLEDB;Data Source="_s + options.server;
    if (!options.user.isEmpty()) {
        text += u";User ID="_s + options.user + u";Password="_s + options.password;
    } else {
        text += u";Initial Catalog=master;Trusted_Connection=yes"_s;
    }
    return text;
}

// Why a run that failed before any activity failed. The run keeps the failure of its first
// connection to itself, so the same connection is tried once more and its refusal told; a
// connection that opens now leaves the database name's check as the other step it could be.
QString earlyFailure(const Options& options) {
    const QString who = options.user.isEmpty() ? u"with Windows authentication"_s
                                               : u"as '"_s + options.user + u"'"_s;
    const QString what = u"The connection to the server '"_s + options.server + u"' "_s + who;
    QString reason;
    try {
        const ado::ConnectionPtr probe = ado::Connection::create();
        probe->Open(masterConnectionString(options));
        probe->Close();
        reason = what + u" or the check of the database name failed during the run; the "
                        u"connection opens now, so try the run again"_s;
    } catch (const ado::Error& e) {
        reason = what + u" failed: "_s + e.description() + u" ("_s + QString::number(e.hresult()) +
                 u"); check the server name, the login and the "
                 u"password"_s;
    } catch (const std::exception& e) {
        reason = what + u" failed: "_s + QString::fromLocal8Bit(e.what());
    }
    // Nothing of what a server answers may carry the password on.
    if (!options.password.isEmpty()) {
        reason.replace(options.password, u"***"_s);
    }
    return reason + u". Nothing was written on the server and no log was opened."_s;
}

// The log the run writes beside the source database.
QString logPath(const Options& options) {
    return QFileInfo(options.source).absolutePath() + u"/ConversionLog.txt"_s;
}

} // namespace

std::optional<Options> parse(const QStringList& arguments, const QProcessEnvironment& environment,
                             QString& error, QTextStream& out) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Converts a Solvaria/Tesselia system database (QZSystem.mdb) to a new SQL Server "
        u"database."_s);
    const QCommandLineOption help(u"help"_s, u"Shows this help."_s);
    const QCommandLineOption source(u"source"_s, u"The system database to convert."_s, u"PATH"_s);
    const QCommandLineOption server(u"server"_s, u"The SQL Server instance."_s, u"NAME"_s);
    const QCommandLineOption database(u"database"_s, u"The database to create."_s, u"NAME"_s);
    const QCommandLineOption description(u"description"_s, u"Its description."_s, u"TEXT"_s);
    const QCommandLineOption user(u"user"_s, u"SQL Server login; none: Windows authentication."_s,
                                  u"NAME"_s);
    const QCommandLineOption passwordEnv(
        u"password-env"_s, u"The environment variable that holds the login's password."_s,
        u"VAR"_s);
    const QCommandLineOption continueOnIndex(
        u"continue-on-index-warnings"_s,
        u"Go on when the source's indexes may be too long for the server."_s);
    parser.addOptions(
        {help, source, server, database, description, user, passwordEnv, continueOnIndex});
    if (!parser.parse(QStringList{u"upsizer-cli"_s} + arguments)) {
        error = parser.errorText();
        return std::nullopt;
    }
    if (parser.isSet(help)) {
        out << parser.helpText();
        error.clear();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = u"unexpected argument '"_s + parser.positionalArguments().first() + u"'"_s;
        return std::nullopt;
    }
    for (const QCommandLineOption* required : {&source, &server, &database}) {
        if (!parser.isSet(*required) || parser.value(*required).trimmed().isEmpty()) {
            error = u"--"_s + required->names().first() + u" is required"_s;
            return std::nullopt;
        }
    }
    Options options;
    options.source = parser.value(source);
    options.server = parser.value(server);
    options.database = parser.value(database);
    options.description = parser.value(description);
    options.user = parser.value(user);
    options.continueOnIndexWarnings = parser.isSet(continueOnIndex);
    if (parser.isSet(passwordEnv)) {
        const QString name = parser.value(passwordEnv);
        if (!environment.contains(name)) {
            error =
                u"the environment variable "_s + name + u" named by --password-env is not set"_s;
            return std::nullopt;
        }
        options.password = environment.value(name);
    }
    return options;
}

int run(const Options& options, const ImportRunFactory& runs, QTextStream& out, QTextStream& err) {
    // What the run said last, in a box or an error event: the reason given when it fails.
    QString lastSaid;
    nxApp::SetMessageBox(std::make_shared<ScriptedAnswers>(options, out, lastSaid));
    PrintedFeed printed(out, lastSaid);
    std::unique_ptr<ImportRun> conversion = runs ? runs(&printed) : nullptr;
    if (!conversion) {
        err << u"upsizer-cli: this build has no conversion engine"_s << Qt::endl;
        return kFailed;
    }
    conversion->DbSrc(options.source);
    conversion->DbName(options.database);
    conversion->DbDesc(options.description);
    conversion->DbServerName(options.server);
    conversion->DbUsername(options.user);
    conversion->DbPassword(options.password);
    const bool result = conversion->Run(options.source, nullptr);
    nxApp::SetMessageBox(nullptr);
    if (result) {
        out << u"Importazione eseguita."_s << Qt::endl;
        return kDone;
    }
    // A failure the run trapped without a word is still in the program's last error.
    if (lastSaid.isEmpty() && nxApp::LastError().Number() != 0) {
        lastSaid = nxApp::LastError().Description() + u" ("_s +
                   QString::number(nxApp::LastError().Number()) + u")"_s;
    }
    // Failing that, the step it stopped at: before any activity, the connection to the server;
    // later, the last activity printed, with the log that goes on from there.
    if (lastSaid.isEmpty()) {
        if (printed.lastActivity().isEmpty()) {
            lastSaid = earlyFailure(options);
        } else {
            lastSaid = u"The run stopped after \""_s + printed.lastActivity() +
                       u"\"; read the log "_s + QDir::toNativeSeparators(logPath(options)) + u"."_s;
        }
    }
    err << u"upsizer-cli: Importazione fallita."_s;
    if (!lastSaid.isEmpty()) {
        err << u" "_s << printable(lastSaid).replace(u'\n', u' ');
    }
    err << Qt::endl;
    return kFailed;
}

int main(const QStringList& arguments, const QProcessEnvironment& environment,
         const ImportRunFactory& runs, QTextStream& out, QTextStream& err) {
    QString error;
    const std::optional<Options> options = parse(arguments, environment, error, out);
    if (!options) {
        if (error.isEmpty()) {
            return kDone; // the help
        }
        err << u"upsizer-cli: "_s << error << Qt::endl;
        return kBadArguments;
    }
    // The library sees the options without the password, which never stands on a command line.
    if (!nxApp::AppInitialize(vb::Variant(), arguments.join(u' '))) {
        err << u"upsizer-cli: the program library could not be started"_s << Qt::endl;
        return kNoLibrary;
    }
    return run(*options, runs, out, err);
}

} // namespace cli
