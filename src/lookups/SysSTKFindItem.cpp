#include "lookups/SysSTKFindItem.h"

#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "lookups/VEL012.h"
#include "ui/Modal.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Read
{
    const char* number;
    const char* text;
    const char* routine;
};

// The dialog's places are taken in another order than everywhere else, and stay so.
template <typename Take>
auto read(Statement& query, const QStringList& lines, const Read& what, const Take& take) {
    try {
        return readRows(query, lines, raised(), take);
    } catch (const std::runtime_error& error) {
        sfg_ErrorDlg(what.text + u"\r\r"_s + errorText(error), what.routine, what.number,
                     u"SysFindItem"_s);
        return std::invoke_result_t<Take, Statement&>{};
    }
}

bool takeFound(const Statement& rows) {
    if (rows.IsEmpty()) {
        return false;
    }
    sfi_FoundStockCode = rows.FieldByName("StockCode").AsString();
    sfi_FoundLinkCode = rows.FieldByName("LinkCode").AsString();
    return true;
}

QString foundStockCode(bool found) {
    return found ? sfi_FoundStockCode : QString();
}

QStringList scope() {
    return {" WHERE CO = " + QuotedStr(gCO), " AND Branch = " + QuotedStr(gStkBranch)};
}

QStringList byIndex(const QString& xIndex) {
    static const QMap<QString, QString> columns = {
        {u"STOCKCODE"_s, u"StockCode"_s}, {u"LINKCODE"_s, u"LinkCode"_s},
        {u"BARCODE"_s, u"Barcode"_s},     {u"SUPPCODE"_s, u"SuppCode"_s},
        {u"ALTSUPP"_s, u"SuppCode"_s},
    };
    QStringList lines = {" AND " + columns[xIndex] + " = " + QuotedStr(sfi_StockCode)};
    if (columns[xIndex] == "SuppCode"_L1 && !sfi_Supplier.isEmpty()) {
        lines << " AND Supplier = " + QuotedStr(sfi_Supplier);
    }
    return lines;
}

QStringList allowed() {
    QStringList lines;
    if (!sfi_AllowKit) {
        lines << " AND (StockType <> " + QuotedStr("K") << " AND KitFunction <> " + QuotedStr("3")
              << " AND KitFunction <> " + QuotedStr("4") << " )";
    }
    if (!sfi_AllowArchive) {
        lines << " AND Status <> " + QuotedStr("X");
    }
    return lines;
}

// The typed text is gone for good: what follows searches for the code that the alternative stands
// for, also when that finds nothing.
int searchFound(QWidget* parent) {
    const bool byLink = !sfi_FoundLinkCode.trimmed().isEmpty();
    sfi_StockCode = byLink ? sfi_FoundLinkCode : sfi_FoundStockCode;
    return sfi_SearchStockCode(byLink ? u"LINKCODE"_s : u"STOCKCODE"_s, parent);
}

} // namespace

int sfi_FindStockItem(const QString& xStockCode, const QString& xSupplier, QWidget* parent) {
    sfi_Supplier = xSupplier;
    if (xStockCode.trimmed().isEmpty()) {
        return 0;
    }
    sfi_StockCode = xStockCode.trimmed();
    for (const auto& index : {u"BARCODE"_s, u"LINKCODE"_s, u"STOCKCODE"_s}) {
        if (const int found = sfi_SearchStockCode(index, parent); found > 0) {
            return found;
        }
    }
    if (!sfi_SearchAltBarcode().isEmpty()) {
        if (const int found = searchFound(parent); found > 0) {
            return found;
        }
    }
    if (const int found = sfi_SearchStockCode(u"SUPPCODE"_s, parent); found > 0) {
        return found;
    }
    return sfi_SearchAltSupplier().isEmpty() ? 0 : searchFound(parent);
}

int sfi_SearchStockCode(const QString& xIndex, QWidget* parent) {
    return read(gData->vQuery1,
                QStringList{"SELECT RecID, StockType, StockCode, LinkCode, Description1",
                            " FROM STKMaster WITH (NOLOCK)"} +
                    scope() + byIndex(xIndex) + allowed() +
                    QStringList{"ORDER BY StockCode, LinkCode "},
                {"900001", "Error Reading STKMaster : ", "sfi_SearchStockCode"},
                [parent](const Statement& rows) {
                    if (rows.IsEmpty()) {
                        return 0;
                    }
                    const bool isParent = rows.FieldByName("StockType").AsString() == "P"_L1;
                    return isParent && sfi_PickChild ? sfi_PickChildren(parent)
                                                     : rows.FieldByName("RecID").AsInteger();
                });
}

QString sfi_SearchAltBarcode() {
    return foundStockCode(
        read(gData->vQuery2,
             {
                 "SELECT StockCode, LinkCode ",
                 " FROM STKAltBarCodes ",
                 "WHERE CO = " + QuotedStr(gCO),
                 " AND Branch = " + QuotedStr(gStkBranch),
                 " AND Barcode = " + QuotedStr(sfi_StockCode),
             },
             {"900003", "Error Reading STKAltBarCodes : ", "sfi_SearchAltBarcode"}, takeFound));
}

QString sfi_SearchAltSupplier() {
    const Read first = {"900005", "Error Reading STKALTSUPPLIERS : ", "sfi_SearchAltSupplier"};
    const Read others = {"900006", "Error Reading STKAltSuppliers : ", "sfi_SearchAltSupplier"};
    for (const char* column : {"StockCode", "LinkCode", "SuppCode"}) {
        QStringList lines = {
            " SELECT [StockCode], [LinkCode] ",
            " FROM STKAltSuppliers WITH (NOLOCK) ",
            " WHERE [CO] = " + QuotedStr(gCO),
            "   AND [Branch] = " + QuotedStr(gStkBranch),
            QStringLiteral("   AND [%1] = ").arg(QLatin1String(column)) + QuotedStr(sfi_StockCode),
        };
        if (column == "SuppCode"_L1 && !sfi_Supplier.isEmpty()) {
            lines << " AND [Account] = " + QuotedStr(sfi_Supplier);
        }
        if (read(gData->vQuery2, lines, column == "StockCode"_L1 ? first : others, takeFound)) {
            return sfi_FoundStockCode;
        }
    }
    return {};
}

int sfi_PickChildren(QWidget* parent) {
    TfrmVEL012 children(parent);
    children.edStockCode->setText(gData->vQuery1.FieldByName("StockCode").AsString());
    children.edDescription1->setText(gData->vQuery1.FieldByName("Description1").AsString());
    velcro::ui::runModal(children);
    return children.xReturnRecID;
}
