// The window's side of a run: what each event of the conversion shows in the activity list, the
// two bars, the record counter and the status bar.

#include "console/FeedText.h"
#include "console/frmMain.h"

#include "frame/ListControl.h"
#include "frame/nxApp.h"
#include "frame/nxSys.h"

#include <QFontMetrics>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// lstLog as the library's list: the scroll range is fitted to the widest line.
class LogList : public ListControl {
public:
    explicit LogList(QListWidget* list) : m_list(list) {}
    void AddItem(const QString& text) override { m_list->addItem(text); }
    void RemoveItem(int index) override { delete m_list->takeItem(index); }
    int ListCount() const override { return m_list->count(); }
    int NewIndex() const override { return m_list->count() - 1; }
    void ListIndex(int index) override { m_list->setCurrentRow(index); }
    void Refresh() override { m_list->repaint(); }
    QString List(int index) const override {
        const QListWidgetItem* item = m_list->item(index);
        return item != nullptr ? item->text() : QString();
    }
    int TextWidth(const QString& text) const override {
        return m_list->fontMetrics().horizontalAdvance(text);
    }
    void SetHorizontalExtent(int pixels) override {
        m_list->setHorizontalScrollBarPolicy(
            pixels > m_list->viewport()->width() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    }

private:
    QListWidget* m_list;
};

} // namespace

void frmMain::addLogLine(const QString& line) {
    lstLog->addItem(line);
    // The newest line is selected, and so in view.
    lstLog->setCurrentRow(lstLog->count() - 1);
}

void frmMain::setStatus(const QString& text) {
    statusPanel1->setText(text);
}

void frmMain::m_cDbImp_EVTImportStart() {
    addLogLine(feed::importStart());
}

void frmMain::m_cDbImp_EVTImportEnd() {
    addLogLine(feed::importEnd());
    LogList list(lstLog);
    nxApp::Sys().SetListBoxHScrollbar(&list);
}

void frmMain::m_cDbImp_EVTSysTableImportStart(std::int16_t Count) {
    pgBarTbl->setMaximum(Count);
}

void frmMain::m_cDbImp_EVTSysTableImporting(std::int16_t Index, const QString& Table) {
    const QString text = feed::sysTableImporting(Table);
    addLogLine(text);
    setStatus(text);
    pgBarTbl->setValue(Index); // a value beyond the bar is refused by it, and the bar stays
}

void frmMain::m_cDbImp_EVTTableImportStart(std::int32_t Records) {
    lblRec->setText(u"0 / "_s + QString::number(Records));
    pgBarRec->setMinimum(0);
    pgBarRec->setMaximum(Records >= 1 ? Records : 1);
    pgBarRec->setValue(0);
}

void frmMain::m_cDbImp_EVTRecordImporting(std::int32_t Current, std::int32_t Total) {
    lblRec->setText(QString::number(Current) + u" / "_s + QString::number(Total));
    lblRec->repaint();
    pgBarRec->setValue(std::min(Current, Total));
}

void frmMain::m_cDbImp_EVTTableImportEnd() {
    lblRec->clear();
    pgBarRec->setValue(0);
}

void frmMain::m_cDbImp_EVTUserTableImportStart(std::int16_t Count) {
    addLogLine(feed::userTableImportStart(Count));
    pgBarTbl->setValue(0);
    pgBarTbl->setMaximum(Count);
}

void frmMain::m_cDbImp_EVTUserTableImporting(std::int16_t Index, const QString& Table,
                                             const vb::Variant& Description) {
    addLogLine(feed::userTableImporting(Table, Description));
    setStatus(u"Importazione tabella utente '"_s + Description.toString() + u"'"_s);
    pgBarTbl->setValue(Index);
}

void frmMain::m_cDbImp_EVTUserTableCreating(const QString& Table, const vb::Variant& Description) {
    addLogLine(feed::userTableCreating(Table, Description));
}

void frmMain::m_cDbImp_EVTUserTableDataCopy(const QString& Table, const vb::Variant& Description) {
    addLogLine(feed::userTableDataCopy(Table, Description));
}

void frmMain::m_cDbImp_EVTUserTableIndexCreating(const QString& Table,
                                                 const vb::Variant& Description) {
    addLogLine(feed::userTableIndexCreating(Table, Description));
}

void frmMain::m_cDbImp_EVTUserTableNotExisting(const QString& Table,
                                               const vb::Variant& Description) {
    addLogLine(feed::userTableNotExisting(Table, Description));
}

void frmMain::m_cDbImp_EVTDictionayImportStart(std::int16_t Count) {
    addLogLine(feed::dictionaryImportStart(Count));
    pgBarTbl->setValue(0);
    pgBarTbl->setMaximum(Count);
}

void frmMain::m_cDbImp_EVTDictionaryImporting(std::int16_t Index, const QString& Dictionary) {
    addLogLine(feed::dictionaryImporting(Dictionary));
    setStatus(u"Importazione dizionario '"_s + Dictionary + u"'"_s);
    // The dictionary bar is held at its upper end only.
    pgBarTbl->setValue(pgBarTbl->maximum() >= Index ? Index : pgBarTbl->maximum());
}

void frmMain::m_cDbImp_EVTDictionaryNotExisting(const QString& Dictionary) {
    addLogLine(feed::dictionaryNotExisting(Dictionary));
}

void frmMain::m_cDbImp_EVTDictionaryCreating(const QString& Dictionary, std::int16_t Stage) {
    if (const std::optional<QString> line = feed::dictionaryCreating(Dictionary, Stage)) {
        addLogLine(*line);
    }
}

void frmMain::m_cDbImp_EVTError(std::int32_t Kind, const QString& Message, bool AskViewLog) {
    if (const std::optional<QString> line = feed::errorLine(Kind, Message)) {
        lstLog->addItem(*line);
    }
    if (Kind == 0 || Kind == 1) {
        nxApp::MsgBox(Message, 48);
    } else if (Kind == 5) {
        if (!AskViewLog) {
            nxApp::MsgBox(feed::verificationBox(Message, false), 48);
        } else if (nxApp::MsgBox(feed::verificationBox(Message, true), 36) == 6) {
            // The log lies beside the source database.
            nxSys& sys = nxApp::Sys();
            sys.Shell(QString(), QString(), sys.GetDir(m_sourcePath) + u"ConversionLog.txt"_s,
                      QString(), 1, 4);
        }
    }
    // Whatever the kind, the newest line ends selected.
    lstLog->setCurrentRow(lstLog->count() - 1);
}
