#include "security/CMN900.h"

#include "data/DataUVEL.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "security/SupervisorRights.h"

#include <QLineEdit>

namespace {
const RightReads rightReads{
    dialogAndFalse("100102", "SQL Error on Table: SYSGrpAccess\r", "VTILL900", "LoadSuperAccess"),
    dialogAndFalse("100102", "SQL Error on Table: SYSGrpAccess\r", "VTILL900", "LoadSuperAccess"),
    "*"};
}

TfrmCMN900::TfrmCMN900()
    : SignInForm(QStringLiteral("CMN900"), QStringLiteral("Supervisor Overide Function")) {
    setWindowTitle(QStringLiteral("Supervisor Over-Ride Code Required"));
    addRequest();
    edSuperCode =
        addCode(QStringLiteral("edSuperCode"), QStringLiteral("Supervisor Code"), anyLength);
    edSuperPswd = addPassword(QStringLiteral("edSuperPswd"), QStringLiteral("Password"), anyLength);
    addButton({.name = QStringLiteral("btnProceed"),
               .caption = QStringLiteral("   &Proceed"),
               .key = Qt::Key_F10,
               .handler = [this] { btnProceedClick(); },
               .role = ButtonFacts::Role::Main});
    addButton({.name = QStringLiteral("btnCancel"),
               .caption = QStringLiteral("   &Cancel"),
               .key = Qt::Key_Escape,
               .handler = [this] { finish(QStringLiteral("CANCEL")); }});
}

void TfrmCMN900::FormShow() {
    xReturn = QStringLiteral("START");
    resetStatusBar();
    showRequest(xModCode, xAccessNo);
    edSuperCode->setFocus();
}

// An inactive supervisor may authorise too.
void TfrmCMN900::btnProceedClick() {
    resetStatusBar();
    if (!readSupervisor()) {
        return;
    }
    if (userPswd_.trimmed() != edSuperPswd->text().trimmed()) {
        refuse(QStringLiteral("The password entered is INVALID"), edSuperPswd);
    } else if (supervisor_ != QLatin1String("Y")) {
        refuse(QStringLiteral("The code entered is NOT a Supervisor"), edSuperCode);
    } else if (!CheckSuperAccess()) {
        gErrorLogMsg = QStringLiteral("Module [%1] Access No. [%2]").arg(xModCode).arg(xAccessNo);
        sfg_ErrorDlg(QStringLiteral("100414"),
                     QStringLiteral("The Supervisor User Code DOES NOT have sufficient rights to "
                                    "grant access for this Security Request"),
                     unitName(), QStringLiteral("btnProceed"));
        xReturn = QStringLiteral("ERROR");
    } else {
        finish(QStringLiteral("OK"));
    }
}

bool TfrmCMN900::readSupervisor() {
    return readRows(
        gData->Velmara,
        {
            "SELECT * FROM SysUser WITH (NOLOCK) ",
            " WHERE [UserCode] = " + QuotedStr(edSuperCode->text()),
        },
        dialogAndFalse("100099", "Error Reading SYSUSER\r", "VTILL992", "btnProceedClick"),
        [this](const Statement& user) {
            if (user.IsEmpty()) {
                refuse(QStringLiteral("The Supervisor Code entered is INVALID"), edSuperCode);
                return false;
            }
            userPswd_ = user.FieldByName("UserPswd").AsString();
            supervisor_ = user.FieldByName("Supervisor").AsString();
            userGroup_ = user.FieldByName("UserGroup").AsString();
            return true;
        });
}

bool TfrmCMN900::CheckSuperAccess() {
    const QString option =
        optionOfUser({userGroup_, edSuperCode->text(), xModCode, xAccessNo}, rightReads);
    return option == QLatin1String("Y") || option == QLatin1String("G");
}
