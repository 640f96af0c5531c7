#include "repairs/CRO100.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/CRO100A.h"
#include "repairs/CRO101.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ListFacts registerFacts() {
    return {
        .unit = u"CRO100"_s,
        .caption = u"Workshop Centre: Repair Orders Management"_s,
        .failure = {u"100-001"_s, u"SQL Error reading object \"CRORepMst\". Details: "_s},
        .columns = {{"Status"},
                    {"CRONo", "Order #No"},
                    {"TranDate", "Date"},
                    {"Account"},
                    {"Name"},
                    {"Cellphone"},
                    {"EMail"},
                    {"Reference"},
                    {"ReceiveDate", "Received Date"},
                    {"ReceiveMthd", "Received Method"},
                    {"ReceiveItems", "Received Items"}},
        .hidden = {{"RecID"},
                   {"CO"},
                   {"Branch"},
                   {"Address1"},
                   {"Address2"},
                   {"Address3"},
                   {"Address4"},
                   {"PostCode"},
                   {"Telephone1"},
                   {"Telephone2"},
                   {"Contact"},
                   {"DTODate"},
                   {"DTOTime"},
                   {"DTOUser"},
                   {"DTOMacID"}},
        // Without brackets only the first term is bound to the company and branch: a match on the
        // others is wanted from everywhere.
        .search = {.terms = {u"AND [CRONo] LIKE '%"_s, u" OR [Account] LIKE '%"_s,
                             u" OR [Name] LIKE '%"_s, u" OR [Cellphone] LIKE '%"_s,
                             u" OR [Reference] LIKE '%"_s}},
        .spokenBy = u"CRONo"_s,
    };
}

} // namespace

TfrmCRO100::TfrmCRO100(QWidget* parent)
    : MaintenanceList(registerFacts(), gData->Velmara, parent) {
    setButtons({
        .options = {linesButton(), addButton(u"New* Order"_s),
                    updateButton(u"Edit Order"_s, Qt::CTRL | Qt::Key_Return),
                    deleteButton(u"Remove Order"_s)},
        .functions = {searchButton(), restoreButton(), printButton()},
    });
}

QStringList TfrmCRO100::statementLines(const QString& xSQL) const {
    QStringList lines = {
        "SELECT * FROM CRORepMst WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
    };
    if (!xSQL.isEmpty()) {
        lines << xSQL;
    }
    return lines << " ORDER BY [CRONo] DESC";
}

void TfrmCRO100::openDetail(int xFunction, int xRecID) {
    showDetail<TfrmCRO100A>(xFunction, xRecID);
}

ButtonFacts TfrmCRO100::linesButton() {
    return {.name = u"btnLines"_s,
            .caption = u"Order Items"_s,
            .key = Qt::Key_Return,
            .handler = [this] { showForCurrent([this](int xRecID) { showItems(xRecID); }); },
            .needsRecord = true,
            .role = ButtonFacts::Role::Main};
}

void TfrmCRO100::showItems(int xRecID) {
    TfrmCRO101 items({xRecID, currentText("CRONo"), currentText("Account"), currentText("Name")},
                     this);
    velcro::ui::runModal(items);
}
