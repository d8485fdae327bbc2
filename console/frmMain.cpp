#include "console/frmMain.h"

#include "console/Decrypt.h"
#include "console/JobWidgets.h"
#include "console/WindowFeed.h"

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxIni.h"
#include "frame/nxReg.h"
#include "frame/nxSys.h"
#include "frame/nxWaitCursor.h"

#include "platform/ado/Connection.h"
#include "platform/vb/Err.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QProgressBar>
#include <QProxyStyle>
#include <QPushButton>
#include <QStatusBar>
#include <QThread>
#include <QVBoxLayout>

#include <cstdint>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString kSystemDatabase = u"QZSystem.mdb"_s;
const QString kJetProvider = u"Microsoft.Jet.OLEDB.4.0"_s;

// Password fields show every character as '*', whatever the style would draw.
class StarPasswordStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_LineEdit_PasswordCharacter) {
            return u'*';
        }
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

template <class W> W* named(W* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QLabel* label(const QString& name, const QString& caption) {
    return named(new QLabel(caption), name);
}

QPushButton* button(const QString& name, const QString& caption, const QString& tip) {
    auto* b = named(new QPushButton(caption), name);
    b->setToolTip(tip);
    return b;
}

QLineEdit* textBox(const QString& name, const QString& tip) {
    auto* t = named(new QLineEdit, name);
    t->setToolTip(tip);
    return t;
}

} // namespace

frmMain::frmMain(ServerDirectory servers, std::unique_ptr<FileOpenDialog> dialog,
                 ImportRunFactory runs, QWidget* parent)
    : QWidget(parent), m_servers(std::move(servers)), m_dialog(std::move(dialog)),
      m_runs(std::move(runs)) {
    setObjectName(u"frmMain"_s);
    buildControls();
    m_feed = std::make_unique<WindowFeed>(*this);
    m_recordBar = std::make_unique<WidgetJobProgress>(pgBarRec);
    m_recordCount = std::make_unique<WidgetJobLabel>(lblRec);
}

frmMain::~frmMain() {
    // The window going during a run is not guarded against; the run is asked to stop and is
    // waited for, its questions still answered meanwhile, so that nothing is left pointing at
    // the window.
    if (m_worker != nullptr) {
        m_cDbImp->Stopped(true);
        while (!m_worker->wait(10)) {
            QCoreApplication::processEvents();
        }
        delete m_worker;
        m_worker = nullptr;
    }
}

void frmMain::buildControls() {
    Frame1 = named(new QGroupBox(u"Origine dati"_s), u"Frame1"_s);
    Label5 =
        label(u"Label5"_s, u"Elenco percorsi rilevati contenenti database Access (QZSystem.mdb)"_s);
    lstMdbPath = named(new QListWidget, u"lstMdbPath"_s);
    lstMdbPath->setToolTip(u"Selezionare uno dei percorsi già registrati contenenti un archivio "
                           u"da convertire"_s);
    Label1 = label(u"Label1"_s, u"File Access origine:"_s);
    txtMDBPath =
        textBox(u"txtMDBPath"_s, u"Inserire il percorso di un database Access da convertire"_s);
    cmdPath = button(u"cmdPath"_s, u"..."_s, u"Selezionare un database Access da convertire"_s);
    auto* source = new QGridLayout(Frame1);
    source->addWidget(Label5, 0, 0, 1, 3);
    source->addWidget(lstMdbPath, 1, 0, 1, 3);
    source->addWidget(Label1, 2, 0);
    source->addWidget(txtMDBPath, 2, 1);
    source->addWidget(cmdPath, 2, 2);

    Frame2 = named(new QGroupBox(u"Server di destinazione (SQL Server)"_s), u"Frame2"_s);
    Label3 = label(u"Label3"_s, u"Nome server:"_s);
    cmbSqlServer = named(new QComboBox, u"cmbSqlServer"_s);
    cmbSqlServer->setEditable(true);
    cmbSqlServer->setInsertPolicy(QComboBox::NoInsert);
    cmbSqlServer->setToolTip(u"Inserire o selezionare il nome del server SQL di destinazione"_s);
    cmdSqlSrv = button(u"cmdSqlSrv"_s, u"..."_s,
                       u"Effettua una ricerca delle istanze di SQL Server presenti e "
                       u"pubblicizzati nel dominio corrente"_s);
    Label4 = label(u"Label4"_s, u"Nome database:"_s);
    txtDbName = textBox(u"txtDbName"_s, u"Inserire il nome del database da creare"_s);
    Label7 = label(u"Label7"_s, u"Descrizione:"_s);
    txtDbDesc =
        textBox(u"txtDbDesc"_s, u"Inserire o modificare la descrizione del database da creare"_s);
    Label2 = label(u"Label2"_s, u"Username SQL Server:"_s);
    txtUsername = textBox(u"txtUsername"_s,
                          u"Inserire il nome utente SQL Server o lasciare in bianco se si usa "
                          u"l'autenticazione Windows"_s);
    Label6 = label(u"Label6"_s, u"Password:"_s);
    txtPassword =
        textBox(u"txtPassword"_s, u"Inserire la password dell'utente SQL Server utilizzato"_s);
    auto* stars = new StarPasswordStyle;
    stars->setParent(txtPassword);
    txtPassword->setStyle(stars);
    txtPassword->setEchoMode(QLineEdit::Password);
    cmdTestConn = button(u"cmdTestConn"_s, u"&Verifica connessione"_s,
                         u"Verifica della validità dei dati per la connessione e "
                         u"l'autenticazione all'istanza SQL Server utilizzata"_s);
    auto* target = new QGridLayout(Frame2);
    target->addWidget(Label3, 0, 0);
    target->addWidget(cmbSqlServer, 0, 1);
    target->addWidget(cmdSqlSrv, 0, 2);
    target->addWidget(Label4, 1, 0);
    target->addWidget(txtDbName, 1, 1, 1, 2);
    target->addWidget(Label7, 2, 0);
    target->addWidget(txtDbDesc, 2, 1, 1, 2);
    target->addWidget(Label2, 3, 0);
    target->addWidget(txtUsername, 3, 1, 1, 2);
    target->addWidget(Label6, 4, 0);
    target->addWidget(txtPassword, 4, 1, 1, 2);
    target->addWidget(cmdTestConn, 5, 1, 1, 2, Qt::AlignRight);

    Frame3 = named(new QGroupBox(u"Attività"_s), u"Frame3"_s);
    lstLog = named(new QListWidget, u"lstLog"_s);
    pgBarTbl = named(new QProgressBar, u"pgBarTbl"_s);
    pgBarRec = named(new QProgressBar, u"pgBarRec"_s);
    for (QProgressBar* bar : {pgBarTbl, pgBarRec}) {
        bar->setRange(0, 100);
        bar->setValue(0);
    }
    lblRec = named(new QLabel, u"lblRec"_s);
    // Room for the record job's count ("1.000.000 di 1.000.000 record"), which the job shortens to
    // the width of the label.
    lblRec->setMinimumWidth(
        lblRec->fontMetrics().horizontalAdvance(u"0.000.000 di 0.000.000 record"_s) + 16);
    auto* activity = new QGridLayout(Frame3);
    activity->addWidget(lstLog, 0, 0, 1, 2);
    activity->addWidget(pgBarTbl, 1, 0, 1, 2);
    activity->addWidget(pgBarRec, 2, 0);
    activity->addWidget(lblRec, 2, 1);

    Picture1 = named(new QWidget, u"Picture1"_s);
    cmdImport = button(u"cmdImport"_s, u"&Importa"_s,
                       u"Verifica la consistenza del database da convertire e procede con la "
                       u"conversione"_s);
    cmdStop = button(u"cmdStop"_s, u"I&nterrompi"_s, u"Interrompe la conversione in corso"_s);
    cmdExit = button(u"cmdExit"_s, u"&Esci"_s, u"Esce dal programma"_s);
    auto* buttons = new QHBoxLayout(Picture1);
    buttons->addWidget(cmdImport);
    buttons->addWidget(cmdStop);
    buttons->addStretch();
    buttons->addWidget(cmdExit);

    StatusBar1 = named(new QStatusBar, u"StatusBar1"_s);
    StatusBar1->setSizeGripEnabled(false);
    statusPanel1 = named(new QLabel, u"StatusBar1.Panel1"_s);
    StatusBar1->addWidget(statusPanel1, 1);

    auto* window = new QVBoxLayout(this);
    for (QWidget* band :
         {static_cast<QWidget*>(Frame1), static_cast<QWidget*>(Frame2),
          static_cast<QWidget*>(Frame3), Picture1, static_cast<QWidget*>(StatusBar1)}) {
        window->addWidget(band);
    }
    window->setStretchFactor(Frame3, 1);

    // The tab order of the window's fields and buttons.
    const QList<QWidget*> order{lstMdbPath, txtMDBPath, cmdPath,     cmbSqlServer, cmdSqlSrv,
                                txtDbName,  txtDbDesc,  txtUsername, txtPassword,  cmdTestConn,
                                lstLog,     cmdImport,  cmdStop,     cmdExit};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }

    cmdTestConn->setEnabled(false);
    cmdImport->setEnabled(false);
    cmdStop->setEnabled(false);

    connect(txtMDBPath, &QLineEdit::textChanged, this, [this] { fieldRule(false); });
    connect(txtDbName, &QLineEdit::textChanged, this, [this] { fieldRule(true); });
    connect(cmbSqlServer, &QComboBox::editTextChanged, this, [this] { fieldRule(true); });
    // A click on a row loads that folder's description, whether or not the row was selected
    // already; a row chosen with the keyboard (or set by the program) loads it too.
    connect(lstMdbPath, &QListWidget::currentRowChanged, this,
            [this](int row) { lstMdbPath_Click(row); });
    lstMdbPath->viewport()->installEventFilter(this);
    connect(lstMdbPath, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (m_pressOnSelectedRow) {
            m_pressOnSelectedRow = false;
            lstMdbPath_Click(lstMdbPath->row(item));
        }
    });
    connect(cmdPath, &QPushButton::clicked, this, [this] { cmdPath_Click(); });
    connect(cmdSqlSrv, &QPushButton::clicked, this, [this] { cmdSqlSrv_Click(); });
    connect(cmdTestConn, &QPushButton::clicked, this, [this] { cmdTestConn_Click(); });
    connect(cmdImport, &QPushButton::clicked, this, [this] { cmdImport_Click(); });
    connect(cmdStop, &QPushButton::clicked, this, [this] { cmdStop_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { close(); });
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstMdbPath->viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        const int row = lstMdbPath->indexAt(press->position().toPoint()).row();
        m_pressOnSelectedRow = row >= 0 && row == lstMdbPath->currentRow();
    }
    return QWidget::eventFilter(watched, event);
}

QString frmMain::StatusText() const {
    return statusPanel1->text();
}

void frmMain::Form_Load() {
    setWindowTitle(u"Solvaria Access -> SQL Server upsizing tool - ver. "_s + nxApp::AppRelease());
    lstMdbPath->clear();
    ScanRegisteredPaths(u"Solvaria"_s, win::kHKeyLocalMachine);
    ScanRegisteredPaths(u"Solvaria"_s, win::kHKeyCurrentUser);
    ScanRegisteredPaths(u"Tesselia"_s, win::kHKeyLocalMachine);
    ScanRegisteredPaths(u"Tesselia"_s, win::kHKeyCurrentUser);
}

void frmMain::ScanRegisteredPaths(const QString& product, win::HKey root) {
    nxReg reg;
    const QString general = u"SOFTWARE\\Brontel Data\\"_s + product + u"\\General"_s;
    if (!reg.RegOpen(root, general)) {
        return;
    }
    offerPath(reg.GetVal(u"SharedPath"_s, QString()).toString());
    // A gap in the numbering is no end: every one of the hundred names is tried.
    if (!reg.RegOpen(root, general + u"\\Recent"_s)) {
        return;
    }
    offerPath(reg.GetVal(u"SharedPath-1"_s, QString()).toString());
    for (int i = 0; i <= 99; ++i) {
        offerPath(reg.GetVal(u"SharedPath"_s + QString::number(i), QString()).toString());
    }
    reg.RegClose();
}

void frmMain::offerPath(const QString& path) {
    nxSys& sys = nxApp::Sys();
    if (!path.isEmpty() && !PathAlreadyListed(path) &&
        sys.FileExist(sys.AddBkSlash(path) + kSystemDatabase)) {
        lstMdbPath->addItem(path);
    }
}

bool frmMain::PathAlreadyListed(const QString& path) const {
    nxSys& sys = nxApp::Sys();
    const QString wanted = sys.DelBkSlash(path).toLower();
    for (int i = 0; i < lstMdbPath->count(); ++i) {
        if (sys.DelBkSlash(lstMdbPath->item(i)->text()).toLower() == wanted) {
            return true;
        }
    }
    return false;
}

void frmMain::fieldRule(bool serverOrName) {
    const bool server = !cmbSqlServer->currentText().isEmpty();
    const bool name = !txtDbName->text().isEmpty();
    cmdImport->setEnabled(!txtMDBPath->text().isEmpty() && name && server);
    // A connection test asks for a database name too, though it connects to master.
    if (serverOrName) {
        cmdTestConn->setEnabled(server && name);
    }
}

void frmMain::EnableControls(bool flag) {
    for (QWidget* control : {static_cast<QWidget*>(lstMdbPath), static_cast<QWidget*>(txtDbName),
                             static_cast<QWidget*>(txtDbDesc), static_cast<QWidget*>(cmbSqlServer),
                             static_cast<QWidget*>(cmdPath), static_cast<QWidget*>(cmdSqlSrv),
                             static_cast<QWidget*>(cmdTestConn), static_cast<QWidget*>(cmdImport),
                             static_cast<QWidget*>(cmdExit)}) {
        control->setEnabled(flag);
    }
    cmdStop->setEnabled(!flag);
}

void frmMain::lstMdbPath_Click(int row) {
    if (row < 0) {
        return;
    }
    m_sourcePath = nxApp::Sys().AddBkSlash(lstMdbPath->item(row)->text()) + kSystemDatabase;
    txtMDBPath->setText(m_sourcePath);
    LoadDescription();
}

void frmMain::cmdPath_Click() {
    if (!txtMDBPath->text().isEmpty()) {
        m_dialog->InitDir = txtMDBPath->text();
    }
    m_dialog->Filter = u"Database Solvaria/Tesselia (QZSystem*.mdb)|QZSystem*.mdb"_s;
    m_dialog->FilterIndex = 1;
    m_dialog->ShowOpen(this);
    // A cancelled dialog is not told apart: its file name, whatever it is, is taken.
    m_sourcePath = m_dialog->FileName;
    txtMDBPath->setText(m_sourcePath);
    LoadDescription();
}

void frmMain::LoadDescription() {
    nxSys& sys = nxApp::Sys();
    try {
        QString folder;
        if (!m_sourcePath.isEmpty()) {
            folder = sys.GetDir(m_sourcePath, true);
        }
        if (!sys.DirExist(folder)) {
            return;
        }
        txtDbDesc->clear();
        const QString file = folder + u"config.ini"_s;
        if (sys.FileExist(file)) {
            nxIni ini;
            ini.SetIni(file);
            const QString value =
                ini.GetVal(u"Database"_s, u"DatabaseDesc"_s, QString()).toString();
            const DecryptResult plain = Decrypt_Text(value, u"brnzolvet52"_s, true);
            if (!plain.ok) {
                lstLog->addItem(QString::number(plain.number) + u": "_s + plain.description);
            }
            txtDbDesc->setText(plain.text);
        } else {
            LoadDescriptionFromDb();
        }
    } catch (...) {
        if (txtDbDesc->text().isEmpty()) {
            LoadDescriptionFromDb();
        }
    }
}

void frmMain::LoadDescriptionFromDb() {
    if (!nxApp::Sys().FileExist(m_sourcePath)) {
        return;
    }
    // Not silent: a damaged or foreign file shows its error box as soon as it is picked.
    nxDb db;
    if (!db.DbOpen(m_sourcePath, DbOpenPassword, false, kJetProvider, QString(), 2, QString(),
                   QString(), 0)) {
        return;
    }
    nxRs rs;
    rs.Db(&db);
    if (rs.RsOpen(u"QZSYSTEM"_s, 1, 3, false, 2)) {
        if (rs.FldExist(u"DESCRIZIONE"_s)) {
            txtDbDesc->setText(rs.FldGet(u"DESCRIZIONE"_s, vb::Missing{}).toString());
        }
        rs.RsClose();
    }
    db.DbClose();
}

void frmMain::cmdSqlSrv_Click() {
    nxWaitCursor wait;
    wait.Show(true);
    cmdSqlSrv->setEnabled(false);
    statusPanel1->setText(u"Ricerca istanze SQL Server in corso..."_s);

    // Every step goes on past a failure of the one before, and nothing is reported.
    std::unique_ptr<ServerBrowser> application =
        IgnoreErrors(std::unique_ptr<ServerBrowser>(), [&] { return m_servers.application(); });
    if (application) {
        std::unique_ptr<InstanceBrowser> server =
            IgnoreErrors(std::unique_ptr<InstanceBrowser>(), [&] { return m_servers.server(); });
        const std::optional<sqldmo::NameList> names =
            IgnoreErrors(std::optional<sqldmo::NameList>(),
                         [&] { return std::optional(application->ListAvailableSQLServers()); });
        cmbSqlServer->clear();
        // The instance list is not reset between servers: when a server fails to answer, the
        // list of the one before is added again.
        std::optional<sqldmo::NameList> instances;
        const auto count = static_cast<std::int16_t>(names ? names->Count() : 0);
        for (std::int16_t i = 1; i <= count; ++i) {
            IgnoreErrors([&] {
                if (!server) {
                    return;
                }
                instances = server->ListInstalledInstances(names->Item(i));
            });
            if (!instances) {
                continue;
            }
            const std::int32_t found = instances->Count();
            for (std::int32_t j = 1; j <= found; ++j) {
                IgnoreErrors([&] {
                    const QString instance = instances->Item(j);
                    cmbSqlServer->addItem(instance.toLower() == u"(local)"_s ? u"localhost"_s
                                                                             : instance);
                });
            }
        }
        // Filling the list does not choose from it: the field stays as the clearing left it.
        cmbSqlServer->setCurrentIndex(-1);
        cmbSqlServer->setEditText(QString());
    }

    statusPanel1->clear();
    cmdSqlSrv->setEnabled(true);
}

QString frmMain::TestConnectionString() const {
    // The values go in as typed, with no quoting: a semicolon in a name reaches the provider.
    QString text = u"Provider=SQLOLEDB.1;Data Source="_s + cmbSqlServer->currentText() +
                   u";Initial Catalog=master"_s;
    if (txtUsername->text().isEmpty()) {
        text += u";Trusted_Connection=yes"_s;
    } else {
        text += u";User ID="_s + txtUsername->text() + u";Password="_s + txtPassword->text();
    }
    return text;
}

void frmMain::cmdTestConn_Click() {
    const ado::ConnectionPtr connection = ado::Connection::create();
    long state = 0;
    try {
        connection->setConnectionString(TestConnectionString());
        connection->setCursorLocation(ado::CursorLocationEnum::adUseServer);
        connection->Open(QString(), QString(), QString(), ado::adOptionUnspecified);
        state = connection->State();
        connection->Close();
    } catch (...) {
        // The first of the connection's errors tells why; a failure that left none there is
        // reported by its own number and text.
        std::int32_t number = 0;
        QString description;
        if (connection->Errors().Count() > 0) {
            number = connection->Errors().Item(0).hresult();
            description = connection->Errors().Item(0).description();
        } else {
            frame::LoadAmbientError();
            number = vb::Err().Number;
            description = vb::Err().Description;
        }
        nxApp::MsgBox(u"Connessione non riuscita ("_s + QString::number(number) + u" - "_s +
                          description + u"). Verificare i permessi di accesso al server SQL."_s,
                      48);
        return;
    }
    if (state == ado::adStateOpen) {
        nxApp::MsgBox(u"Connessione riuscita."_s, 64);
    } else {
        nxApp::MsgBox(
            u"Connessione non riuscita. Verificare i permessi di accesso al server SQL."_s, 48);
    }
}

void frmMain::cmdImport_Click() {
    if (m_worker != nullptr) {
        return;
    }
    EnableControls(false);
    m_sourcePath = txtMDBPath->text();
    // The run before is let go here, as the next one takes its place.
    m_cDbImp.reset();
    if (m_runs) {
        m_cDbImp = m_runs(m_feed.get());
    }
    m_serverName = cmbSqlServer->currentText();
    m_dbName = txtDbName->text();
    m_dbDesc = txtDbDesc->text();
    m_username = txtUsername->text();
    m_password = txtPassword->text();
    if (!m_cDbImp) {
        // A build without the conversion engine: the run fails at once.
        runEnded(false);
        return;
    }
    m_cDbImp->DbSrc(m_sourcePath);
    m_cDbImp->DbName(m_dbName);
    m_cDbImp->DbDesc(m_dbDesc);
    m_cDbImp->DbServerName(m_serverName);
    m_cDbImp->DbUsername(m_username);
    m_cDbImp->DbPassword(m_password);
    m_cDbImp->RecordControls(m_recordBar.get(), m_recordCount.get());

    // The run goes on a thread of its own; the window takes its events meanwhile, and learns of
    // the end from the thread's finished signal (queued to the window's thread).
    auto result = std::make_shared<bool>(false);
    ImportRun* run = m_cDbImp.get();
    const QString source = m_sourcePath;
    m_worker = QThread::create([run, source, result, this] {
        *result =
            Edge(u"frmMain.cmdImport_Click()", true, false, [&] { return run->Run(source, this); });
    });
    m_worker->setObjectName(u"conversion"_s);
    connect(m_worker, &QThread::finished, this, [this, result] {
        m_worker->wait();
        delete m_worker;
        m_worker = nullptr;
        runEnded(*result);
    });
    m_worker->start();
}

void frmMain::runEnded(bool result) {
    if (result) {
        // A run that was stopped and still returned true ends without a message.
        if (!m_cDbImp->Stopped()) {
            nxApp::MsgBox(u"Importazione eseguita."_s, 0);
        }
    } else {
        nxApp::MsgBox(u"Importazione fallita."_s, 0);
    }
    pgBarTbl->setValue(0);
    statusPanel1->clear();
    EnableControls(true);
    if (m_runEnded) {
        m_runEnded();
    }
}

void frmMain::cmdStop_Click() {
    if (m_cDbImp) {
        m_cDbImp->Stopped(true);
    }
}
