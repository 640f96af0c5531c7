#include "lookups/CRO920.h"

#include "data/DataUVEL.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/Settings.h"
#include "data/StatementText.h"
#include "lookups/CRO921.h"
#include "lookups/SysSTK.h"
#include "ui/DecimalText.h"
#include "ui/Modal.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::GridColumn;

namespace {

GridColumn money(const char* field, const char* caption) {
    return {field, caption, velcro::ui::moneyText, velcro::ui::CellType::Decimal};
}

std::vector<GridColumn> productColumns() {
    return {
        {"StockType", "Type", sk_GetStockTypeName},
        {"StockCode", "Stock Code"},
        {"LinkCode", "Link Code"},
        {"Description1", "Description #1"},
        {"Onhand"},
        money("Excl", "Selling Ex."),
        money("Incl", "Selling In."),
        money("LastCostExcl", "L/Cost Excl."),
        money("LastCostIncl", "L/Cost Incl."),
        money("AvgCostExcl", "A/Cost Excl."),
        money("AvgCostIncl", "A/Cost Incl."),
        {"SuppCode", "Suppliers Code"},
        {"Barcode"},
        {"DeptCode", "Dept. Code"},
    };
}

// Without brackets a term also matches outside of the branch, the type and the status.
ListFacts productFacts() {
    return {
        .unit = u"CRO920"_s,
        .caption = u"Stock Master: Product Selection"_s,
        .failure = {u"920-001"_s, u"SQL Error Reading STKMASTER"_s, ListFailure::Then::GoesOn,
                    false},
        .columns = productColumns(),
        .hidden = {{"RecID"}, {"Description2", "Description #2"}},
        .search = {.terms = {u" AND T0.[StockCode] LIKE '%"_s, u" OR T0.[LinkCode] LIKE '%"_s,
                             u" OR T0.[Description1] LIKE '%"_s, u" OR T0.[Description2] LIKE '%"_s,
                             u" OR T0.[Barcode] LIKE '%"_s, u" OR T0.[SuppCode] LIKE '%"_s},
                   .onLeaving = true,
                   .cap = 1000,
                   .alsoKeys = {Qt::Key_F4}},
        .cap = 1000,
    };
}

} // namespace

TfrmCRO920::TfrmCRO920(QWidget* parent)
    : SelectionScreen(productFacts(), results(), parent) {
    setButtons(
        {.options = {selectButton()}, .functions = {searchButton(), restoreButton({Qt::Key_F12})}});
}

std::vector<PickedField> TfrmCRO920::results() {
    return {
        {"RecID", &xRecID},
        {"StockCode", &xStockCode},
        {"LinkCode", &xLinkCode},
        {"Barcode", &xBarcode},
        {"Description1", &xDescription1},
        {"Description2", &xDescription2},
        {"StockType", &xStockType},
        {"Units", &xUnits},
        {"SQMBox", &xSQMBox},
        {"CostDecimal", &xCostDecimal},
        {"QtyDecimal", &xQtyDecimal},
        {"SellDecimal", &xSellDecimal},
        {"ListCostExcl", &xListCostExcl},
        {"ListCostIncl", &xListCostIncl},
        {"BuyCostExcl", &xBuyCostExcl},
        {"BuyCostIncl", &xBuyCostIncl},
        {"LastCostExcl", &xLastCostExcl},
        {"LastCostIncl", &xLastCostIncl},
        {"AvgCostExcl", &xAvgCostExcl},
        {"AvgCostIncl", &xAvgCostIncl},
        {"VATCode", &xVATCode},
        {"Excl", &xExcl},
        {"Incl", &xIncl},
    };
}

// Also where the user's own layout shows them.
void TfrmCRO920::beforeRead(bool /*whole*/) {
    if (xShowCosts == "Y"_L1) {
        return;
    }
    const auto& columns = grid().rowModel().columns();
    for (int i = 0; i < int(columns.size()); ++i) {
        if (columns[i].field.contains("Cost"_L1)) {
            grid().setColumnHidden(i, true);
        }
    }
    grid().standOnShownColumn();
}

QStringList TfrmCRO920::statementLines(const QString& xSQL) const {
    return baseLines() + filterLines() + QStringList{xSQL, " ORDER BY T0.Description1"};
}

// A product with several balances stands in the list once for each.
QStringList TfrmCRO920::baseLines() const {
    return {
        "SELECT TOP(1000) T0.*,",
        " COALESCE(T1.Excl,0.00) AS Excl, ",
        " COALESCE(T1.Incl,0.00) AS Incl, ",
        " (SELECT SUM(Onhand) FROM STKBalance WITH (NOLOCK)",
        " WHERE CO = T0.CO",
        "   AND Branch = T0.Branch",
        "   AND StockCode = T0.StockCode) AS [Onhand]",
        " FROM STKMaster T0 WITH (NOLOCK)",
        " LEFT OUTER JOIN STKPrice T1 WITH (NOLOCK) ",
        "   ON T1.CO = T0.CO ",
        "  AND T1.Branch = T0.Branch ",
        "  AND T1.StockCode = T0.StockCode",
        "  AND T1.LinkCode = T0.LinkCode",
        "  AND T1.PriceCode = " + QuotedStr(sfvel_GetParam(u"CO"_s, 33)),
        " LEFT OUTER JOIN STKBalance T2 WITH (NOLOCK)",
        "   ON T2.CO = T0.CO",
        "  AND T2.Branch = T0.Branch",
        "  AND T2.StockCode = T0.StockCode ",
        " WHERE T0.CO = " + QuotedStr(gCO),
        "   AND T0.Branch = " + QuotedStr(gStkBranch),
    };
}

QStringList TfrmCRO920::filterLines() const {
    QStringList lines = {xStockTypeFilter.isEmpty()
                             ? " AND T0.StockType <> " + QuotedStr("P")
                             : " AND T0.StockType = " + QuotedStr(xStockTypeFilter)};
    if (!xSupplier.isEmpty()) {
        lines << " AND T0.Supplier = " + QuotedStr(xSupplier);
    }
    const QString start = xStartSearch.trimmed();
    if (!start.isEmpty() && start != "?"_L1) {
        const QString anywhere = QuotedStr(u'%' + start + u'%');
        lines << " AND ( T0.StockCode LIKE " + anywhere << "  OR T0.Description1 LIKE " + anywhere
              << "  OR T0.Suppcode LIKE " + anywhere << "  OR T0.Barcode LIKE " + anywhere << " ) ";
    }
    return lines << " AND T0.Status <> " + QuotedStr("X");
}

bool TfrmCRO920::rowPicked() {
    return xStockType.compare("P"_L1, Qt::CaseInsensitive) != 0 || ShowChildren();
}

bool TfrmCRO920::ShowChildren() {
    if (!hasCurrentRecord()) {
        return false;
    }
    TfrmCRO921 children(this);
    children.edStockCode->setText(currentText("StockCode"));
    children.edDescription1->setText(currentText("Description1"));
    velcro::ui::runModal(children);
    if (children.xReturnRecID == 0) {
        return false;
    }
    takeChild(children.xReturnRecID);
    return true;
}

void TfrmCRO920::takeChild(int recID) {
    const QStringList lines = {
        "SELECT T0.*,",
        "       COALESCE(T1.Excl,0.00) AS Excl,",
        "       COALESCE(T1.Incl,0.00) AS Incl",
        "  FROM STKMaster T0",
        "  LEFT OUTER JOIN STKPrice T1",
        "    ON T1.CO = T0.CO",
        "   AND T1.Branch = T0.Branch",
        "   AND T1.StockCode = T0.StockCode",
        "   AND T1.LinkCode = T0.LinkCode",
        "   AND T1.PriceCode = " + QuotedStr(sfvel_GetParam(u"CO"_s, 33)),
        " WHERE T0.RecID = " + QuotedStr(recID),
    };
    try {
        readRows(gData->vLoadQuery1, lines, raised(), [this](const Statement& row) {
            if (!row.IsEmpty()) {
                pickFrom(row);
            }
        });
    } catch (const std::runtime_error&) {
        // The user is not told why.
        sfg_ErrorDlg(u"920-002"_s, u"SQL Error Reading : STKMaster"_s, unitName(),
                     u"ShowChildren"_s);
    }
}
