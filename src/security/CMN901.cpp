#include "security/CMN901.h"

#include "data/DataUVEL.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "security/SupervisorRights.h"

#include <QLineEdit>
#include <QTimer>

namespace {

const RightReads rightReads{dialogAndFalse("100413", "SQL Error on Table: SYSGrpAccess\r",
                                           "VTILL905", "Allowed_To_OverRide"),
                            dialogAndFalse("100414", "SQL Error on Table: SYSUSERACCESS\r",
                                           "VTILL905", "Allowed_To_OverRide"),
                            "[Options]"};

} // namespace

TfrmCMN901::TfrmCMN901()
    : SignInForm(QStringLiteral("CMN901"), QStringLiteral("Supervisor Over-ride")) {
    setWindowTitle(QStringLiteral("Double Supervisor Over-Ride Required"));
    addRequest();
    addSupervisor(supervisors_[0], QStringLiteral("1"), QStringLiteral("First Supervisor"));
    addSupervisor(supervisors_[1], QStringLiteral("2"), QStringLiteral("Second Supervisor"));
    addButton({.name = QStringLiteral("btnOK"),
               .caption = QStringLiteral(" Proceed"),
               .handler = [this] { btnOKClick(); },
               .role = ButtonFacts::Role::Main});
    addButton({.name = QStringLiteral("btnCancel"),
               .caption = QStringLiteral("Cancel"),
               .key = Qt::Key_Escape,
               .handler = [this] { finish(QStringLiteral("CANCEL")); }});
}

void TfrmCMN901::addSupervisor(Supervisor& supervisor, const QString& xNo, const QString& title) {
    form().group(title);
    supervisor.code = addCode(QStringLiteral("edSuper") + xNo, QStringLiteral("User Code"));
    supervisor.password = addPassword(QStringLiteral("edPswd") + xNo, QStringLiteral("Password"));
    onEnter(supervisor.code, [this, &supervisor] {
        if (!supervisor.code->text().trimmed().isEmpty()) {
            goOn();
        }
    });
    onEnter(supervisor.password, [this, &supervisor, xNo] {
        if (supervisor.password->text().trimmed().isEmpty()) {
            return;
        }
        if (ValidateSuper(xNo)) {
            goOn();
        } else {
            goTo(supervisor.password);
        }
    });
}

TfrmCMN901::Supervisor& TfrmCMN901::supervisor(const QString& xNo) {
    return supervisors_[xNo == QLatin1String("1") ? 0 : 1];
}

// The right to use a module has the number 0: it can never be lent here.
void TfrmCMN901::FormShow() {
    xReturn = QStringLiteral("START");
    resetStatusBar();
    showRequest(xModCode, xAccessNo);
    for (auto& each : supervisors_) {
        each.user.clear();
        each.pswd.clear();
        each.group.clear();
    }
    if (xAccessNo == 0) {
        sfg_ErrorDlg(QStringLiteral("100412"),
                     QStringLiteral("No Access ID was passed for Verification"),
                     QStringLiteral("VST995"), QStringLiteral("FormShow"));
        QTimer::singleShot(0, this, &QDialog::reject);
    }
    supervisors_[0].code->setFocus();
}

bool TfrmCMN901::ValidateSuper(const QString& xNo) {
    resetStatusBar();
    if (xNo == QLatin1String("2") &&
        supervisors_[0].code->text().trimmed() == supervisors_[1].code->text().trimmed()) {
        displayError(QStringLiteral("Both Supervisor Codes cannot be the same"));
        return false;
    }
    if (!readSupervisor(xNo)) {
        return false;
    }
    if (supervisor(xNo).pswd != supervisor(xNo).password->text()) {
        displayError(QStringLiteral("Password for Supervisor %1 is INVALID").arg(xNo));
        return false;
    }
    if (!Allowed_To_OverRide(xNo)) {
        displayError(xNo == QLatin1String("1")
                         ? QStringLiteral("Supervisor 1 is NOT ALLOWED to Grant Access here")
                         : QStringLiteral("Supervisor 2 is NOT ALLOWED to Grant Access Here"));
        return false;
    }
    return true;
}

bool TfrmCMN901::readSupervisor(const QString& xNo) {
    Supervisor& who = supervisor(xNo);
    return readRows(
        gData->Velmara,
        {
            "SELECT UserCode, UserPswd, UserGroup ",
            " FROM SysUser ",
            " WHERE UserCode = " + QuotedStr(who.code->text()),
        },
        dialogAndFalse("100411", "SQL Error on Table: SYSUSER\r", "VTILL995", "btnOKClick"),
        [&](const Statement& user) {
            if (user.IsEmpty()) {
                displayError(QStringLiteral("Supervisor %1 Code entered is Invalid").arg(xNo));
                return false;
            }
            who.user = user.FieldByName("UserCode").AsString();
            who.pswd = user.FieldByName("UserPswd").AsString();
            who.group = user.FieldByName("UserGroup").AsString();
            return true;
        });
}

bool TfrmCMN901::Allowed_To_OverRide(const QString& xNo) {
    const Supervisor& who = supervisor(xNo);
    const QString option = optionOfUser({who.group, who.user, xModCode, xAccessNo}, rightReads);
    return option == QLatin1String("Y") || option == QLatin1String("V");
}

// The result is "OK" from the first press on: a caller trusts it however the form is closed, and
// only Cancel takes it back.
void TfrmCMN901::btnOKClick() {
    resetStatusBar();
    xReturn = QStringLiteral("OK");
    for (const auto& xNo : {QStringLiteral("1"), QStringLiteral("2")}) {
        if (!ValidateSuper(xNo)) {
            goTo(supervisor(xNo).code);
            return;
        }
    }
    xAuthUser1 = supervisors_[0].code->text();
    xAuthUser2 = supervisors_[1].code->text();
    gSParam[1] = xAuthUser1;
    gSParam[2] = xAuthUser2;
    finish(QStringLiteral("OK"));
}
