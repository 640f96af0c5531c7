#include "repairs/CRO104A.h"

#include "data/DataUVEL.h"
#include "data/PeriodAndTax.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/Settings.h"
#include "data/StatementText.h"
#include "lookups/CRO920.h"
#include "lookups/SysSTK.h"
#include "lookups/SysSTKFindItem.h"
#include "ui/AmountEdit.h"
#include "ui/DecimalText.h"
#include "ui/Modal.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::AmountEdit;

namespace {

// clang-format off

std::vector<DetailField> lineFields() {
    using namespace field;
    const auto own = [](int decimals) { return FieldOptions{.beside = true, .decimals = decimals}; };
    const auto first = [](int decimals) { return FieldOptions{.decimals = decimals}; };
    const auto shown = [](bool beside, int decimals) {
        return FieldOptions{.beside = beside, .readOnly = true, .decimals = decimals};
    };
    return {
        group(u" [ Product ] "_s),
        text("edStockCode", u"Stock Code"_s, {.width = 26, .limit = 25, .upperCase = true, .key = true, .browse = true}),
        text("edLinkCode", u"Link Code"_s, {.beside = true, .width = 26, .limit = 25, .readOnly = true}),
        text("edDescription1", u"Description #1"_s, {.width = 32, .limit = 50, .readOnly = true}),
        text("edDescription2", u"Description #2"_s, {.beside = true, .width = 32, .limit = 50, .readOnly = true}),
        group(u" [ Customer ] "_s),
        amount("edQuantity", u"Quantity"_s, first(2)),
        amount("edVATRate", u"VAT Rate"_s, shown(true, 4)),
        amount("edPriceExcl", u"Price Excl."_s, first(5)),
        amount("edPriceIncl", u"Price Incl."_s, own(5)),
        amount("edLineTotalExcl", u"Total Excl."_s, first(5)),
        amount("edLineTotalIncl", u"Total Incl."_s, own(5)),
        amount("edLineVAT", u"Total VAT"_s, shown(false, 5)),
        text("edNotes", u"Notes"_s, {.beside = true, .width = 36, .limit = 100, .upperCase = true}),
        group(u" [ Cost ] "_s),
        amount("edCostExcl", u"Cost Excl."_s, shown(false, 2)),
        amount("edCostIncl", u"Cost Incl."_s, shown(true, 2)),
        amount("edTotalCostExcl", u"Total Excl."_s, shown(false, 2)),
        amount("edTotalCostIncl", u"Total Incl."_s, shown(true, 2)),
        amount("edProfit", u"Profit"_s, shown(false, 2)),
        amount("edGP", u"GP %"_s, shown(true, 2)),
    };
}

// clang-format on

// The description comes with the product and is not typed.
bool isFound(const QString& description) {
    return isNotBlank(description);
}

DetailFacts lineFacts(const TfrmCRO104A& screen, const QString& vatCode) {
    const QString noStockCode = u"Enter a Valid Stock Code"_s;
    return {
        .unit = u"CRO104A"_s,
        .caption = u"Workshop Centre Quotation: Maintain Lines"_s,
        .saveCaption = u"Save Line"_s,
        .deleteCaption = u"Delete Record"_s,
        .table = "CRORepItmQuoteDet",
        .errorNo = u"104A-001"_s,
        .errorText = u"SQL Error on Table: CRORepItmQuoteDet :-"_s,
        .fields = lineFields(),
        .checks = {{"edStockCode", isNotBlank, noStockCode},
                   {"edDescription1", isFound, noStockCode, "edStockCode"},
                   {"edQuantity", isNotZero, u"Cannot be capture zero (0) quantity item"_s}},
        .unique = {"CO Branch CRONo ItemNo StockCode LinkCode",
                   u"Stock Item Already Exists. Update the Existing Values"_s, nullptr,
                   u" WITH (NOLOCK)"_s},
        .inserts = "CO Branch CRONo ItemNo StockCode LinkCode Description1 Quantity PriceExcl "
                   "PriceIncl LineVAT LineTotalExcl LineTotalIncl VATCode VATRate CostExcl "
                   "CostIncl TotalCostExcl TotalCostIncl Profit Notes",
        .updates = "Quantity PriceExcl PriceIncl LineVAT LineTotalExcl LineTotalIncl VATCode "
                   "VATRate CostExcl CostIncl TotalCostExcl TotalCostIncl Profit Notes",
        .values = {{"CRONo", [&screen] { return screen.xCRONo; }},
                   {"ItemNo", [&screen] { return QString::number(screen.xItemNo); }},
                   {"VATCode", [&vatCode] { return vatCode; }}},
        .validatesDelete = false,
        .firstInUpdate = "edQuantity",
    };
}

/// Which of a product's costs a company calculates with: "List", "Buy", "Avg" or "Last".
QString costKind() {
    static const QMap<QString, QString> kinds = {
        {u"S"_s, u"List"_s}, {u"B"_s, u"Buy"_s}, {u"A"_s, u"Avg"_s}};
    return kinds.value(sfvel_GetParam(u"CO"_s, 3), u"Last"_s);
}

std::pair<double, double> costsOf(const TfrmCRO920& picked) {
    const QString kind = costKind();
    if (kind == "List"_L1) {
        return {picked.xListCostExcl, picked.xListCostIncl};
    }
    if (kind == "Buy"_L1) {
        return {picked.xBuyCostExcl, picked.xBuyCostIncl};
    }
    if (kind == "Avg"_L1) {
        return {picked.xAvgCostExcl, picked.xAvgCostIncl};
    }
    return {picked.xLastCostExcl, picked.xLastCostIncl};
}

} // namespace

TfrmCRO104A::TfrmCRO104A(QWidget* parent)
    : DetailScreen(lineFacts(*this, vatCode_), parent)
    , edStockCode(control("edStockCode"))
    , edLinkCode(control("edLinkCode")) {
    lookUp("edStockCode", {.find = [this] { return find(); },
                           .browse = [this](const QString&) { return BrowseSTKMaster(); },
                           .onLeaving = true,
                           .findsBlank = true,
                           .blank = u"Invalid Stock Code Entered"_s});
    // What is typed over a product that was picked is another one.
    velcro::ui::connectHandler(edStockCode, &QLineEdit::textEdited, this, [this] {
        stockRecID_ = 0;
        edLinkCode->clear();
    });
    velcro::ui::connectHandler(&amount("edQuantity"), &QLineEdit::editingFinished, this,
                               [this] { CalculateTotals(); });
}

AmountEdit& TfrmCRO104A::amount(const char* name) const {
    return *control<AmountEdit>(name);
}

void TfrmCRO104A::setDecimals(const Decimals& decimals) {
    amount("edQuantity").setDecimals(decimals.quantity);
    for (const char* name : {"edPriceExcl", "edPriceIncl", "edLineTotalExcl", "edLineTotalIncl"}) {
        amount(name).setDecimals(decimals.selling);
    }
    for (const char* name : {"edCostExcl", "edCostIncl", "edTotalCostExcl", "edTotalCostIncl"}) {
        amount(name).setDecimals(decimals.cost);
    }
}

// The branch stands without quotes: one that is no number is refused by the server.
QStringList TfrmCRO104A::selectLines() const {
    return {
        "SELECT T0.*, T1.Description2, T1.QtyDecimal, T1.CostDecimal, T1.SellDecimal",
        "  FROM CRORepItmQuoteDet T0",
        "  LEFT OUTER JOIN STKMaster T1",
        "    ON T1.CO = T0.CO",
        "   AND T1.Branch = " + gStkBranch,
        "   AND T1.StockCode = T0.StockCode",
        "   AND T1.LinkCode = T0.LinkCode",
        " WHERE T0.RecID = " + QuotedStr(xRecID),
    };
}

// A line whose product is gone keeps the decimals that it can be typed with.
void TfrmCRO104A::rowRead(const Statement& row) {
    if (!row.FieldByName("SellDecimal").IsNull()) {
        setDecimals({row.FieldByName("QtyDecimal").AsInteger(),
                     row.FieldByName("SellDecimal").AsInteger(),
                     row.FieldByName("CostDecimal").AsInteger()});
    }
}

void TfrmCRO104A::rowLoaded(const Statement& row) {
    vatCode_ = row.FieldByName("VATCode").AsString();
    CalculateTotals();
}

// ---- product ----

LookUp::Answer TfrmCRO104A::find() {
    if (edStockCode->isReadOnly()) {
        return LookUp::Found;
    }
    sfi_AllowKit = true;
    sfi_AllowArchive = false;
    sfi_PickChild = true;
    if (stockRecID_ == 0) {
        const bool byLink = !edLinkCode->text().trimmed().isEmpty();
        stockRecID_ = sfi_FindStockItem((byLink ? edLinkCode : edStockCode)->text(), {}, this);
    }
    if (stockRecID_ == 0) {
        return LookUp::Unknown;
    }
    if (!GetStockData(stockRecID_)) {
        forget();
        return LookUp::Refused;
    }
    lockKey(edStockCode);
    return LookUp::Found;
}

void TfrmCRO104A::forget() {
    stockRecID_ = 0;
    for (const char* name : {"edStockCode", "edLinkCode", "edDescription1", "edDescription2"}) {
        control(name)->clear();
    }
}

// The code that the selection holds is taken also when nothing was picked: it is blank then.
bool TfrmCRO104A::BrowseSTKMaster() {
    TfrmCRO920 selection(this);
    if (edStockCode->text().trimmed() != "?"_L1) {
        selection.xStartSearch = edStockCode->text();
    }
    velcro::ui::runModal(selection);
    stockRecID_ = selection.xRecID;
    edStockCode->setText(selection.xStockCode);
    edLinkCode->setText(selection.xLinkCode);
    if (stockRecID_ == 0) {
        return false;
    }
    vatCode_ = selection.xVATCode;
    setDecimals({selection.xQtyDecimal, selection.xSellDecimal, selection.xCostDecimal});
    amount("edVATRate").setValue(sfvel_GetVATRate(vatCode_, {}));
    amount("edQuantity").setValue(1);
    amount("edPriceExcl").setValue(selection.xExcl);
    amount("edPriceIncl").setValue(selection.xIncl);
    const auto [excl, incl] = costsOf(selection);
    amount("edCostExcl").setValue(excl);
    amount("edCostIncl").setValue(incl);
    CalculateTotals();
    return true;
}

bool TfrmCRO104A::GetStockData(int xRecID) {
    return readRows(gData->vMstQuery1,
                    {
                        "SELECT * FROM STKMaster WITH (NOLOCK) ",
                        " WHERE [RecID] = " + QuotedStr(xRecID),
                    },
                    dialogAndFalse("104A-002", "SQL Error on Table: STKMaster :-\r", unitName(),
                                   "GetStockData"),
                    [this](const Statement& row) {
                        return row.IsEmpty() ? refuse(edStockCode, u"Invalid Stock Code Entered"_s)
                                             : takeProduct(row);
                    });
}

bool TfrmCRO104A::takeProduct(const Statement& row) {
    for (const char* column : {"StockCode", "LinkCode", "Description1", "Description2"}) {
        control(("ed" + QByteArray(column)).constData())
            ->setText(row.FieldByName(column).AsString());
    }
    vatCode_ = row.FieldByName("VATCode").AsString();
    const QString status = row.FieldByName("Status").AsString();
    if (status.compare("A"_L1, Qt::CaseInsensitive) != 0) {
        return refuse(edStockCode, u"The Item Status is NOT ACTIVE : Status = "_s + status);
    }
    setDecimals({row.FieldByName("QtyDecimal").AsInteger(),
                 row.FieldByName("SellDecimal").AsInteger(),
                 row.FieldByName("CostDecimal").AsInteger()});
    const QString cost = costKind();
    amount("edCostExcl").setValue(row.FieldByName(cost + "CostExcl").AsFloat());
    amount("edCostIncl").setValue(row.FieldByName(cost + "CostIncl").AsFloat());
    amount("edVATRate").setValue(sfvel_GetVATRate(vatCode_, {}));
    sk_GetSellPrice(control("edStockCode")->text(), control("edLinkCode")->text(),
                    sfvel_GetParam(u"BRANCH"_s, 6));
    amount("edPriceExcl").setValue(gPExcl);
    amount("edPriceIncl").setValue(gPIncl);
    return true;
}

// ---- arithmetic ----

// What the edits show is what is calculated with. A unit value of 0 leaves the total beside it as
// it was.
void TfrmCRO104A::CalculateTotals() {
    const double quantity = amount("edQuantity").value();
    if (quantity == 0) {
        return;
    }
    static constexpr const char* pairs[][2] = {{"edPriceExcl", "edLineTotalExcl"},
                                               {"edPriceIncl", "edLineTotalIncl"},
                                               {"edCostExcl", "edTotalCostExcl"},
                                               {"edCostIncl", "edTotalCostIncl"}};
    for (const auto& [unit, total] : pairs) {
        if (amount(unit).value() != 0) {
            amount(total).setValue(amount(unit).value() * quantity);
        }
    }
    const double sold = amount("edLineTotalExcl").value();
    amount("edLineVAT").setValue(amount("edLineTotalIncl").value() - sold);
    amount("edProfit").setValue(sold - amount("edTotalCostExcl").value());
    const double profit = amount("edProfit").value();
    amount("edGP").setValue(sold != 0 ? profit / sold * 100 : 0);
}

bool TfrmCRO104A::Validation() {
    CalculateTotals();
    return checksPass() && isUnique();
}
