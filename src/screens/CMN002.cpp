#include "screens/CMN002.h"

#include "data/Session.h"
#include "screens/SysFuncGlobal.h"
#include "ui/Events.h"
#include "ui/Modal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>

namespace {

constexpr MessageLook information{"frmCMN002", "System  Information Message", "info", 0xff1f6f9c,
                                  0xffffffff};
constexpr MessageLook message{"frmCMN003", "System Message", "message", 0xff2f7d4f, 0xffffffff};
constexpr MessageLook warning{"frmCMN006", "System Warning", "warning", 0xfff2c230, 0xff2a2205};

/// The screen behind is painted before the caller's next statement runs.
void showMessage(QDialog& form) {
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
}

} // namespace

TfrmTextMessage::TfrmTextMessage(const MessageLook& look, const QString& text, int xTimer)
    : MessageForm(look) {
    addText(QStringLiteral("edMessage"), text, tr("Message"));
    btnClose = addCloseButton();
    closeAfter(xTimer);
}

TfrmCMN002::TfrmCMN002(const QString& message, int xTimer, const QString& version)
    : TfrmTextMessage(information, QStringLiteral("\r\r") + message, xTimer) {
    auto* lblVersion = new QLabel(tr("Version : %1").arg(version), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    buttons().insertWidget(0, lblVersion);
}

TfrmCMN003::TfrmCMN003(const QString& message, int xTimer)
    : TfrmTextMessage(::message, QStringLiteral("\r") + message, xTimer) {}

TfrmCMN006::TfrmCMN006(const QString& message, int xTimer)
    : TfrmTextMessage(warning, QStringLiteral("\r") + message, xTimer) {}

void sfg_InfoDlg(const QString& sMessage, int xTimer) {
    TfrmCMN002 form(sMessage, xTimer, gVersion);
    showMessage(form);
}

void sfg_MessageDlg(const QString& sMessage, int xTimer) {
    TfrmCMN003 form(sMessage, xTimer);
    showMessage(form);
}

void sfg_WarningDlg(const QString& sMessage, int xTimer) {
    TfrmCMN006 form(sMessage, xTimer);
    showMessage(form);
}
