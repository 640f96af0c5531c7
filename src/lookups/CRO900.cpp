#include "lookups/CRO900.h"

#include "data/Session.h"
#include "data/StatementText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ListFacts customerFacts() {
    return {
        .unit = u"CRO900"_s,
        .caption = u"Debtors: Customer Selection"_s,
        .failure = {u"900-001"_s, u"SQL Error on Table: DEBMaster :-"_s, ListFailure::Then::GoesOn},
        .columns = {{"Account"},
                    {"Name", "Debtors Name"},
                    {"Contact"},
                    {"Cellphone"},
                    {"Telephone"},
                    {"Telephone2", "Telephone #2"}},
        .hidden = {{"RecID"}, {"IDNo", "ID Number"}, {"DefBranch", "Default Branch"}},
        .search = {.terms = {u"AND [Account] LIKE '%"_s, u" OR [Name] LIKE '%"_s,
                             u" OR [IDNo] LIKE '%"_s, u" OR [Cellphone] LIKE '%"_s},
                   .end = u" ORDER BY [Name]"_s,
                   .onLeaving = true,
                   .alsoKeys = {Qt::Key_F4}},
        .cap = 2000,
    };
}

} // namespace

TfrmCRO900::TfrmCRO900(QWidget* parent)
    : SelectionScreen(customerFacts(),
                      {{"Account", &xAccount},
                       {"Name", &xName},
                       {"IDNo", &xIDNo},
                       {"Cellphone", &xCellphone},
                       {"Telephone", &xTelephone},
                       {"Telephone2", &xTelephone2},
                       {"DefBranch", &xDefBranch}},
                      parent) {
    auto select = selectButton();
    select.needsRecord = true;
    setButtons({.options = {select}, .functions = {searchButton(), restoreButton({Qt::Key_F12})}});
    hideKeyCapsBySeat();
}

// clang-format off
QStringList TfrmCRO900::statementLines(const QString& xSQL) const {
    const QStringList scope = {
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gDebBranch)};
    if (xSQL.trimmed().isEmpty()) {
        return QStringList{
            "SELECT TOP(2000) [Account], [Name], [Cellphone], [Telephone], [Telephone2], [Contact], [IDNo], [DefBranch]",
            " FROM DEBMaster WITH (NOLOCK)"} + scope + QStringList{
            " ORDER BY [Name]"};
    }
    return QStringList{
            "SELECT [Account], [Name], [Cellphone], [Telephone],  [Telephone2], [Contact], [IDNo], [DefBranch]",
            "  FROM DEBMaster WITH (NOLOCK)"} + scope + QStringList{xSQL};
}
// clang-format on

void TfrmCRO900::beforeRead(bool whole) {
    findChild<QWidget*>(u"btnRestoreGrid"_s)->setVisible(!whole);
}

bool TfrmCRO900::rowPicked() {
    xDisplay = xAccount + u" - "_s + xName;
    return true;
}
