#pragma once

#include "console/FileOpenDialog.h"
#include "console/ServerDirectory.h"

#include "platform/win/Registry.h"

#include <QString>
#include <QWidget>

#include <memory>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStatusBar;
class nxReg;

// The tool's one window: it collects the source database, the server, the new database's name
// and description and the SQL Server login, offers the databases the registry knows of, and
// starts the conversion. Every control carries its name as objectName, so that it can be found.
class frmMain : public QWidget {
public:
    explicit frmMain(ServerDirectory servers = networkServerDirectory(),
                     std::unique_ptr<FileOpenDialog> dialog = std::make_unique<QtFileOpenDialog>(),
                     QWidget* parent = nullptr);
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

private:
    void buildControls();
    void offerPath(const QString& path);
    void fieldRule(bool serverOrName);
    void lstMdbPath_Click(int row);
    void cmdPath_Click();
    void cmdSqlSrv_Click();
    void cmdTestConn_Click();
    void cmdImport_Click();
    void LoadDescription();
    void LoadDescriptionFromDb();

    ServerDirectory m_servers;
    std::unique_ptr<FileOpenDialog> m_dialog;
    QString m_sourcePath;

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
