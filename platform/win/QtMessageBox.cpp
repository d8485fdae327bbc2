#include "platform/win/QtMessageBox.h"

#include "platform/win/Error.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QThread>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace win {
namespace {

// What Italian Windows writes on its buttons.
QString systemCaption(long button) {
    switch (button) {
    case id::kOk:
        return u"OK"_s;
    case id::kCancel:
        return u"Annulla"_s;
    case id::kAbort:
        return u"Interrompi"_s;
    case id::kRetry:
    case id::kTryAgain:
        return u"Riprova"_s;
    case id::kIgnore:
        return u"Ignora"_s;
    case id::kYes:
        return u"Sì"_s;
    case id::kNo:
        return u"No"_s;
    case id::kContinue:
        return u"Continua"_s;
    case id::kHelp:
        return u"Guida"_s;
    default:
        return {};
    }
}

QString buttonName(long button) {
    switch (button) {
    case id::kOk:
        return u"IDOK"_s;
    case id::kCancel:
        return u"IDCANCEL"_s;
    case id::kAbort:
        return u"IDABORT"_s;
    case id::kRetry:
        return u"IDRETRY"_s;
    case id::kIgnore:
        return u"IDIGNORE"_s;
    case id::kYes:
        return u"IDYES"_s;
    case id::kNo:
        return u"IDNO"_s;
    case id::kHelp:
        return u"IDHELP"_s;
    case id::kTryAgain:
        return u"IDTRYAGAIN"_s;
    case id::kContinue:
        return u"IDCONTINUE"_s;
    default:
        return {};
    }
}

QStyle::StandardPixmap iconFor(long flags) {
    switch (flags & mb::kIconMask) {
    case mb::kIconStop:
        return QStyle::SP_MessageBoxCritical;
    case mb::kIconQuestion:
        return QStyle::SP_MessageBoxQuestion;
    case mb::kIconExclamation:
        return QStyle::SP_MessageBoxWarning;
    case mb::kIconInformation:
        return QStyle::SP_MessageBoxInformation;
    default:
        return QStyle::SP_CustomBase; // no icon
    }
}

class BoxDialog : public QDialog {
public:
    BoxDialog(const MessageBoxRequest& request, QWidget* parent)
        : QDialog(parent), m_buttons(buttonsFor(request.flags)) {
        setObjectName(u"messageBox"_s);
        setWindowTitle(request.title);
        setModal(true);
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);

        auto* body = new QHBoxLayout;
        const QStyle::StandardPixmap icon = iconFor(request.flags);
        if (icon != QStyle::SP_CustomBase) {
            auto* iconLabel = new QLabel(this);
            iconLabel->setObjectName(u"icon"_s);
            iconLabel->setProperty("standardIcon", static_cast<int>(icon));
            const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
            iconLabel->setPixmap(style()->standardIcon(icon, nullptr, this).pixmap(size, size));
            body->addWidget(iconLabel, 0, Qt::AlignTop);
        }
        auto* text = new QLabel(this);
        text->setObjectName(u"text"_s);
        text->setTextFormat(Qt::PlainText);
        text->setText(QString(request.text).replace(u"\r\n"_s, u"\n"_s));
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        body->addWidget(text, 1);

        auto* row = new QHBoxLayout;
        row->addStretch();
        const int defaultIndex = static_cast<int>((request.flags & mb::kDefaultButtonMask) >> 8);
        for (int i = 0; i < m_buttons.size(); ++i) {
            const long button = m_buttons[i];
            auto* push = new QPushButton(
                i < request.captions.size() ? request.captions[i] : systemCaption(button), this);
            push->setObjectName(buttonName(button));
            push->setAutoDefault(false);
            if (button == id::kHelp) {
                connect(push, &QPushButton::clicked, this, [help = request.help] {
                    if (help) {
                        help();
                    }
                });
            } else {
                connect(push, &QPushButton::clicked, this, [this, button] { done(button); });
            }
            if (i == (defaultIndex < m_buttons.size() ? defaultIndex : 0)) {
                push->setDefault(true);
                push->setFocus();
            }
            row->addWidget(push);
        }
        row->addStretch();

        auto* layout = new QVBoxLayout(this);
        layout->addLayout(body);
        layout->addLayout(row);
    }

    void reject() override {
        if (m_buttons.contains(id::kCancel)) {
            done(id::kCancel);
        } else if (m_buttons.size() == 1 || (m_buttons.size() == 2 && m_buttons[1] == id::kHelp)) {
            if (m_buttons[0] == id::kOk) {
                done(id::kOk);
            }
        }
    }

private:
    QList<long> m_buttons;
};

} // namespace

long QtMessageBox::show(const MessageBoxRequest& request) {
    auto* app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (app == nullptr) {
        throw Error(u"message box: no window system for \"%1\""_s.arg(request.text));
    }
    if (QThread::currentThread() != app->thread()) {
        throw Error(u"message box: not on the window thread for \"%1\""_s.arg(request.text));
    }
    QWidget* parent = qobject_cast<QWidget*>(request.owner);
    if (parent == nullptr) {
        parent = QApplication::activeWindow();
    }
    if (request.beep) {
        QApplication::beep();
    }
    BoxDialog dialog(request, parent);
    return dialog.exec();
}

} // namespace win
