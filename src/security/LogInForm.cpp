#include "security/LogInForm.h"

#include "data/DataUCMN.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/SessionFile.h"
#include "data/StatementText.h"
#include "screens/Combos.h"
#include "screens/SysFuncGlobal.h"
#include "security/CMN999A.h"
#include "ui/Modal.h"

#include <QComboBox>

namespace {

constexpr int leastWidth = 960;

QDate dateOfPassword() {
    try {
        return StrToDate(gPswdDate);
    } catch (const VelmaraError&) {
        throw VelmaraError(QStringLiteral("The day on which your password was set cannot be read. "
                                          "Ask the system administrator."));
    }
}

// The password is still good on its expiry date.
bool passwordHasExpired() {
    return gAllowPswdExp == QLatin1String("Y") &&
           dateText(dateOfPassword().addDays(gPswdExpDays)) < sfg_Date(0);
}

} // namespace

LogInForm::LogInForm(const QString& unit)
    : SignInForm(unit, gEXETitle, leastWidth) {}

void LogInForm::addDatabases() {
    cmbDatabase =
        form().combo(QStringLiteral("cmbDatabase"), QStringLiteral("Select Company"), {}, 32);
}

void LogInForm::addVersion() {
    StatusBar1().addPanel(velcro::ui::psHTML, QStringLiteral("Version : ") + gVersion);
}

void LogInForm::begin() {
    setWindowTitle(gEXETitle);
    StatusBar1().setPanelText(1, gEXETitle);
    xReturn = QStringLiteral("START");
    resetStatusBar();
}

bool LogInForm::loadDatabases(Offer offer) {
    QStringList lines{
        "SELECT * FROM vcSettings WITH (NOLOCK)",
        " WHERE [Suite] = " + QuotedStr(gSuite),
    };
    if (!gSvrCatCode.trimmed().isEmpty()) {
        lines << "   AND [SvrCatCode] = " + QuotedStr(gSvrCatCode);
    }
    if (offer == Offer::CategoriesOfSeat && !gSvrCatString.trimmed().isEmpty()) {
        lines << "   AND [SvrCatCode] IN (" + gSvrCatString + ")";
    }
    lines << (offer == Offer::CategoriesOfSeat ? " ORDER BY [DisplaySeq] "
                                               : " ORDER BY [DisplaySeq]");
    if (!readRows(cData->vcQuery1, lines, raised(),
                  [this](Statement& rows) { return fillDatabases(rows); })) {
        sfg_ErrorDlg(QStringLiteral("900002"),
                     QStringLiteral("There are NO Company/Branches Loaded on the System"),
                     unitName(), QStringLiteral("LoadSettings"));
        return false;
    }
    lastDatabase_ = sfg_ReadSession_INIFile(QStringLiteral("DBDisplayName"));
    selectDatabase(lastDatabase_);
    return true;
}

bool LogInForm::fillDatabases(Statement& rows) {
    if (rows.IsEmpty()) {
        return false;
    }
    cmbDatabase->clear();
    for (; !rows.Eof(); rows.Next()) {
        cmbDatabase->addItem(rows.FieldByName("DisplayName").AsString());
    }
    return true;
}

void LogInForm::selectDatabase(const QString& xDisplayName) {
    cmbDatabase->setCurrentIndex(qMax(0, sfg_FindComboIndex(xDisplayName, *cmbDatabase, false)));
}

bool LogInForm::changePassword(const QString& userCode) {
    TfrmCMN999A form(userCode);
    velcro::ui::runModal(form);
    return form.xReturn == QLatin1String("OK");
}

bool LogInForm::passwordMayStay(const QString& password, const std::function<bool()>& change) {
    if (password.trimmed() == defaultPassword && !change()) {
        return false;
    }
    return !passwordHasExpired() || change();
}

BusyCursor::BusyCursor() {
    sfg_SetCursor(QStringLiteral("BUSY"));
}

BusyCursor::~BusyCursor() {
    if (!keep) {
        sfg_SetCursor(QStringLiteral("RESET"));
    }
}
