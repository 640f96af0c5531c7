#include "lookups/VEL012.h"

#include "data/Session.h"
#include "data/StatementText.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

TfrmVEL012::TfrmVEL012(QWidget* parent)
    : LinkedItems({.unit = u"VEL012"_s,
                   .caption = u"STOCK MASTER : Select a LINKED Item"_s,
                   .failure = {u"999999"_s, u"SQL Error on Table: STKMaster :-"_s},
                   .columns = packs()},
                  parent) {
    setButtons({.options = {selectButton(u"Select Item"_s, u"dxSelect"_s)},
                .closeName = u"dxExit"_s,
                .closeCaption = u"Exit"_s});
}

QStringList TfrmVEL012::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT RecID, StockCode, LinkCode, Description1, Units, Barcode, ",
        " SuppCode, Variant, Singles ",
        " FROM STKMaster WITH (NOLOCK)  ",
        " WHERE CO = " + QuotedStr(gCO),
        " AND Branch = " + QuotedStr(gStkBranch),
        " AND StockCode = " + QuotedStr(edStockCode->text()),
        " AND StockType <> " + QuotedStr("P"),
        " AND Status <> " + QuotedStr("X"),
        " ORDER BY Units DESC ",
    };
}

void TfrmVEL012::afterRead() {
    grid().scrollTo(grid().model()->index(1, 0), QAbstractItemView::PositionAtTop);
}

void TfrmVEL012::nothingToPick() {
    xReturnRecID = 0;
}
