#include "security/CMN999A.h"

#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "screens/SysFuncGlobal.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

TfrmCMN999A::TfrmCMN999A(const QString& xUserCode)
    : SignInForm(QStringLiteral("CMN999A"), QStringLiteral("VELMARA : Change System Password"))
    , userCode_(xUserCode) {
    setWindowTitle(QStringLiteral("Change System Password"));
    auto* note = new QLabel(QStringLiteral("You password must be changed.\n"
                                           "Please enter and Confirm your New Password"));
    form().control(note, QStringLiteral("lblNote"), QString());
    edUser = form().edit(QStringLiteral("edUser"), QStringLiteral("User"),
                         {.width = 30, .readOnly = true});
    edUser->setFocusPolicy(Qt::NoFocus);
    edPswd1 = addPassword(QStringLiteral("edPswd1"), QStringLiteral("New Password"));
    edPswd2 = addPassword(QStringLiteral("edPswd2"), QStringLiteral("Confirm Password"));
    onEnter(edPswd2, [this] { btnOKClick(); });
    addButton({.name = QStringLiteral("btnShowPswd"),
               .caption = QStringLiteral("Show Password"),
               .handler = [this] { btnShowPswdClick(); }});
    addButton({.name = QStringLiteral("btnOK"),
               .caption = QStringLiteral("OK"),
               .handler = [this] { btnOKClick(); },
               .role = ButtonFacts::Role::Main,
               .cap = QStringLiteral("ENTER")}); // in the second password
    addButton({.name = QStringLiteral("btnCancel"),
               .caption = QStringLiteral("Cancel"),
               .key = Qt::Key_Escape,
               .handler = [this] { finish(QStringLiteral("CANCEL")); }});
}

void TfrmCMN999A::FormShow() {
    xReturn = QStringLiteral("START");
    resetStatusBar();
    if (!GetUser()) {
        QTimer::singleShot(0, this, &QDialog::reject);
        return;
    }
    edUser->setText(userCode_ + QStringLiteral(" - ") + Query1.FieldByName("UserName").AsString());
    edPswd1->setFocus();
}

bool TfrmCMN999A::GetUser() {
    Query1.Open(
        {"SELECT * FROM SYSUser WITH (NOLOCK) ", " WHERE [UserCode] = " + QuotedStr(userCode_)});
    return !Query1.IsEmpty();
}

bool TfrmCMN999A::Validation() {
    resetStatusBar();
    const QString first = edPswd1->text().trimmed();
    const QString second = edPswd2->text().trimmed();
    if (first.isEmpty() || second.isEmpty()) {
        refuse(QStringLiteral("Passwords cannot be Blank"), edPswd1);
    } else if (first != second) {
        refuse(QStringLiteral("The Two Passwords DONT Match"), edPswd1);
    } else if (first == defaultPassword) {
        refuse(QStringLiteral("Password cannot be the Default Password"), edPswd1);
    } else if (gUserPswd == first) {
        refuse(QStringLiteral("New Password cannot be the same as the Current Password"), edPswd1);
    } else {
        return true;
    }
    return false;
}

// The text goes in as typed: a blank at its end shuts the user out at the next log-in, which trims.
bool TfrmCMN999A::UpdatePswd() {
    sfg_AddSQL(
        {
            "UPDATE SYSUSER SET ",
            " USERPSWD = " + QuotedStr(edPswd1->text()) + ",",
            " PSWDDATE = " + QuotedStr(sfg_Date(0)),
            " WHERE RecID = " + QuotedStr(Query1.FieldByName("RecID").AsInteger()),
        },
        "NEW");
    return gData->vel_ExecSQL(1);
}

void TfrmCMN999A::btnOKClick() {
    if (Validation() && UpdatePswd()) {
        sfg_MessageDlg(QStringLiteral("New Password Updated"), 0);
        finish(QStringLiteral("OK"));
    }
}

void TfrmCMN999A::btnShowPswdClick() {
    for (QLineEdit* edit : {edPswd1, edPswd2}) {
        const bool hidden = edit->echoMode() == QLineEdit::Password;
        edit->setEchoMode(hidden ? QLineEdit::Normal : QLineEdit::Password);
    }
}
