#include "lookups/CRO910.h"

#include "data/Session.h"
#include "data/StatementText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString statusText(const QString& stored) {
    static const QMap<QString, QString> texts = {
        {u"0"_s, u"Open"_s},     {u"2"_s, u"Marked Return"_s}, {u"5"_s, u"Captured on IBT"_s},
        {u"9"_s, u"Invoiced"_s}, {u"D"_s, u"Deleted"_s},
    };
    return texts.value(stored, stored);
}

ListFacts serialFacts() {
    return {
        .unit = u"CRO910"_s,
        .caption = u"Serial Tracking: Serial Number Selection"_s,
        // The number is a sibling screen's and stays so.
        .failure = {u"920-001"_s, u"SQL Error on Table: STKSerialMst :-"_s,
                    ListFailure::Then::GoesOn},
        .columns = {{"Status", {}, statusText},
                    {"SerialNo", "Serial No."},
                    {"StockCode", "Stock Code"},
                    {"Description1", "Description #1"}},
        .hidden = {{"RecID"}},
        .search = {.terms = {u"AND T0.[StockCode] LIKE '%"_s, u" OR T0.[LinkCode] LIKE '%"_s,
                             u" OR T0.[SerialNo] LIKE '%"_s, u" OR T1.[Description1] LIKE '%"_s},
                   .end = u" ORDER BY T0.[SerialNo] DESC"_s,
                   .cap = 1000,
                   .alsoKeys = {Qt::Key_F4}},
        .cap = 1000,
    };
}

} // namespace

TfrmCRO910::TfrmCRO910(QWidget* parent)
    : SelectionScreen(serialFacts(),
                      {{"RecID", &xRecID},
                       {"Status", &xStatus},
                       {"SerialNo", &xSerialNo},
                       {"StockCode", &xStockCode},
                       {"LinkCode", &xLinkCode},
                       {"Description1", &xDescription1}},
                      parent) {
    setButtons(
        {.options = {selectButton()}, .functions = {searchButton(), restoreButton({Qt::Key_F12})}});
    hideKeyCaps();
}

QStringList TfrmCRO910::statementLines(const QString& xSQL) const {
    return {
        "SELECT TOP(1000) T0.RecID, T0.Status, T0.SerialNo, T0.StockCode, T0.LinkCode, "
        "T1.Description1",
        "  FROM STKSerialMst T0",
        " INNER JOIN STKMaster T1",
        "    ON T1.CO = T0.CO",
        "   AND T1.Branch = T0.Branch",
        "   AND T1.StockCode = T0.StockCode",
        "   AND T1.LinkCode = T0.LinkCode",
        " WHERE T0.CO = " + QuotedStr(gCO),
        "   AND T0.Branch = " + QuotedStr(gBranch),
        xSQL.isEmpty() ? QString(" ORDER BY T0.SerialNo DESC") : xSQL,
    };
}

void TfrmCRO910::searchEntered() {
    if (!query().Eof()) {
        btnSearchClick();
    }
}
