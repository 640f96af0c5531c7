#include "lookups/CRO921.h"

#include "data/Session.h"
#include "data/StatementText.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

TfrmCRO921::TfrmCRO921(QWidget* parent)
    : LinkedItems({.unit = u"CRO921"_s,
                   .caption = u"Stock Master: Linked Item Selection "_s,
                   .failure = {u"921-001"_s, u"SQL Error on Table: STKMaster :-"_s,
                               ListFailure::Then::GoesOn},
                   .columns = packs(),
                   .statusCode = u"CRO911"_s},
                  parent) {
    setButtons({.options = {selectButton()}, .functions = {restoreButton()}});
}

QStringList TfrmCRO921::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT [RecID], [StockCode], [LinkCode], [Description1], [Units], [Barcode], [SuppCode], "
        "[Variant], [Singles]",
        "  FROM STKMaster",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gStkBranch),
        "   AND [StockCode] = " + QuotedStr(edStockCode->text()),
        "   AND [StockType] <> " + QuotedStr("P"),
        "   AND [Status] <> " + QuotedStr("X"),
        " ORDER BY [Units] DESC",
    };
}
