#pragma once

#include "console/FileOpenDialog.h"
#include "console/ImportRun.h"
#include "console/ServerDirectory.h"

#include "platform/vb/Variant.h"
#include "platform/win/Registry.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QThread;
class WidgetJobLabel;
class WidgetJobProgress;
class WindowFeed;

// The tool's one window: it collects the source database, the server, the new database's name
// and description and the SQL Server login, offers the databases the registry knows of, and
// starts the conversion. Every control carries its name as objectName, so that it can be found.
//
// A conversion runs on a worker thread; its events reach the m_cDbImp_ sinks on the window's
// thread one at a time, each before the run goes on, so the window keeps painting and taking
// clicks (the stop button) while the run works.
class frmMain : public QWidget {
public:
    explicit frmMain(ServerDirectory servers = networkServerDirectory(),
                     std::unique_ptr<FileOpenDialog> dialog = std::make_unique<QtFileOpenDialog>(),
                     ImportRunFactory runs = {}, QWidget* parent = nullptr);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    frmMain(frmMain&&) = delete;
    frmMain& operator=(frmMain&&) = delete;
    ~frmMain() override;

    // The window's load step: caption, and the list of registered databases.
    void Form_Load();

    // Adds to lstMdbPath the folders that product's registry keys under root name, when they
    // hold a system database and are not listed yet.
    void ScanRegisteredPaths(const QString& product, win::HKey root);
    // Whether the list holds the path already, without regard to case or a closing separator.
    bool PathAlreadyListed(const QString& path) const;
    // Enables the controls that must not be used during a run (flag false) or again after it;
    // cmdStop goes the other way.
    void EnableControls(bool flag);

    QString SourcePath() const { return m_sourcePath; }
    QString StatusText() const;
    FileOpenDialog& dlgArchiveSel() { return *m_dialog; }
    // Whether a conversion is running now.
    bool Running() const noexcept { return m_worker != nullptr; }
    // Called on the window's thread when a run has ended and the window is idle again.
    void SetRunEnded(std::function<void()> callback) { m_runEnded = std::move(callback); }

    // The sinks of the run's events (window thread only).
    void m_cDbImp_EVTImportStart();
    void m_cDbImp_EVTImportEnd();
    void m_cDbImp_EVTSysTableImportStart(std::int16_t Count);
    void m_cDbImp_EVTSysTableImporting(std::int16_t Index, const QString& Table);
    void m_cDbImp_EVTTableImportStart(std::int32_t Records);
    void m_cDbImp_EVTRecordImporting(std::int32_t Current, std::int32_t Total);
    void m_cDbImp_EVTTableImportEnd();
    void m_cDbImp_EVTUserTableImportStart(std::int16_t Count);
    void m_cDbImp_EVTUserTableImporting(std::int16_t Index, const QString& Table,
                                        const vb::Variant& Description);
    void m_cDbImp_EVTUserTableCreating(const QString& Table, const vb::Variant& Description);
    void m_cDbImp_EVTUserTableDataCopy(const QString& Table, const vb::Variant& Description);
    void m_cDbImp_EVTUserTableIndexCreating(const QString& Table, const vb::Variant& Description);
    void m_cDbImp_EVTUserTableNotExisting(const QString& Table, const vb::Variant& Description);
    void m_cDbImp_EVTDictionayImportStart(std::int16_t Count);
    void m_cDbImp_EVTDictionaryImporting(std::int16_t Index, const QString& Dictionary);
    void m_cDbImp_EVTDictionaryCreating(const QString& Dictionary, std::int16_t Stage);
    void m_cDbImp_EVTDictionaryNotExisting(const QString& Dictionary);
    void m_cDbImp_EVTError(std::int32_t Kind, const QString& Message, bool AskViewLog);

    // The connection string cmdTestConn opens, from the fields as they stand.
    QString TestConnectionString() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void offerPath(const QString& path);
    void fieldRule(bool serverOrName);
    void lstMdbPath_Click(int row);
    void cmdPath_Click();
    void cmdSqlSrv_Click();
    void cmdTestConn_Click();
    void cmdImport_Click();
    void cmdStop_Click();
    void runEnded(bool result);
    void LoadDescription();
    void LoadDescriptionFromDb();
    void addLogLine(const QString& line);
    void setStatus(const QString& text);

    ServerDirectory m_servers;
    std::unique_ptr<FileOpenDialog> m_dialog;
    ImportRunFactory m_runs;
    QString m_sourcePath;
    QString m_serverName;
    QString m_dbName;
    QString m_dbDesc;
    QString m_username;
    QString m_password;
    std::unique_ptr<WindowFeed> m_feed;
    std::unique_ptr<ImportRun> m_cDbImp;
    std::unique_ptr<WidgetJobProgress> m_recordBar;
    std::unique_ptr<WidgetJobLabel> m_recordCount;
    QThread* m_worker = nullptr;
    std::function<void()> m_runEnded;
    // Whether the mouse went down on the row that was already selected: that click changes no
    // row, and is told to lstMdbPath_Click by the list's click instead.
    bool m_pressOnSelectedRow = false;

    QGroupBox* Frame1 = nullptr;
    QLabel* Label5 = nullptr;
    QListWidget* lstMdbPath = nullptr;
    QLabel* Label1 = nullptr;
    QLineEdit* txtMDBPath = nullptr;
    QPushButton* cmdPath = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLabel* Label3 = nullptr;
    QComboBox* cmbSqlServer = nullptr;
    QPushButton* cmdSqlSrv = nullptr;
    QLabel* Label4 = nullptr;
    QLineEdit* txtDbName = nullptr;
    QLabel* Label7 = nullptr;
    QLineEdit* txtDbDesc = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* txtUsername = nullptr;
    QLabel* Label6 = nullptr;
    QLineEdit* txtPassword = nullptr;
    QPushButton* cmdTestConn = nullptr;
    QGroupBox* Frame3 = nullptr;
    QListWidget* lstLog = nullptr;
    QProgressBar* pgBarTbl = nullptr;
    QProgressBar* pgBarRec = nullptr;
    QLabel* lblRec = nullptr;
    QWidget* Picture1 = nullptr;
    QPushButton* cmdImport = nullptr;
    QPushButton* cmdStop = nullptr;
    QPushButton* cmdExit = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    QLabel* statusPanel1 = nullptr;
};
