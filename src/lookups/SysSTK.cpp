#include "lookups/SysSTK.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Clock.h"

#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int withoutEnd = 5; // days ahead that stand for no end

const std::pair<const char*, double*> prices[] = {
    {"Excl", &gPExcl},
    {"Incl", &gPIncl},
    {"MUP", &gPMUP},
    {"GP", &gPGP},
    {"DiscP", &gPDiscP},
    {"DiscV", &gPDiscV},
    {"MaxDiscP", &gPMaxDiscP},
    {"MaxDiscV", &gPMaxDiscV},
    {"DefaultMUP", &gPDefaultMUP},
    {"DefaultGP", &gPDefaultGP},
};

void reset() {
    for (const auto& [column, value] : prices) {
        *value = 0;
    }
    gIRecID = 0;
}

void take(const Statement& row) {
    for (const auto& [column, value] : prices) {
        *value = row.FieldByName(column).AsFloat();
    }
    gIRecID = row.FieldByName("RecID").AsInteger();
    gPFromDate = row.FieldByName("FromDate").AsString();
    gPToDate = row.FieldByName("ToDate").AsString();
    gPPriceRule = row.FieldByName("PriceRule").AsString();
    gPRounding = row.FieldByName("Rounding").AsString();
}

// Dates are compared as the texts that they are.
bool isInForce(const Statement& row, const QDate& today) {
    const auto from = row.FieldByName("FromDate").AsString().trimmed();
    const auto to = row.FieldByName("ToDate").AsString().trimmed();
    return from <= dateText(today) &&
           (to.isEmpty() ? dateText(today.addDays(withoutEnd)) : to) >= dateText(today);
}

bool takeFirstInForce(Statement& rows) {
    if (rows.IsEmpty()) {
        return false;
    }
    const auto today = velcro::seat::now().date();
    for (; !rows.Eof(); rows.Next()) {
        if (isInForce(rows, today)) {
            take(rows);
            break;
        }
    }
    return true;
}

} // namespace

bool sk_GetSellPrice(const QString& xStockCode, const QString& xLinkCode, const QString& xPRCode,
                     const QString& xBranch, const QString& xCO) {
    reset();
    return readRows(
        gData->vLoadQuery1,
        {
            "SELECT * FROM STKPrice WITH (NOLOCK) ",
            " WHERE CO = " + QuotedStr(xCO.trimmed().isEmpty() ? gCO : xCO),
            " AND Branch = " + QuotedStr(xBranch.trimmed().isEmpty() ? gStkBranch : xBranch),
            " AND StockCode = " + QuotedStr(xStockCode),
            " AND LinkCode = " + QuotedStr(xLinkCode),
            " AND PriceCode = " + QuotedStr(xPRCode),
        },
        dialogAndFalse("200011", "SQL Error Reading : STKPRICE \r", "SysSTK", "sk_GetSellPrice"),
        takeFirstInForce);
}

QString sk_GetStockTypeName(const QString& xStockType) {
    static const QMap<QString, QString> names = {
        {u"N"_s, u"Normal Item"_s}, {u"P"_s, u"Parent Item"_s},  {u"K"_s, u"Kit Item"_s},
        {u"M"_s, u"Misc.Item"_s},   {u"X"_s, u"Service Item"_s}, {u"C"_s, u"Child Item"_s},
        {u"E"_s, u"Empties"_s},     {u"H"_s, u"Pallet Item"_s},
    };
    return names.value(xStockType);
}
