#include "repairs/SysCRO.h"

#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "lookups/CRO900.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"

#include <utility>

namespace {

QStringList scopeOf(const QString& xCRONo) {
    return {
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
        "   AND [CRONo] = " + QuotedStr(xCRONo),
    };
}

int numberFrom(const QString& table, const QString& field, const QStringList& lines) {
    gErrorCode = 0;
    gErrorMsg.clear();
    const int number =
        readRows(gData->vLoadQuery1, lines, keptInErrorMsg("SQL Error on Table: " + table + ":\r"),
                 [&field](const Statement& rows) { return rows.FieldByName(field).AsInteger(); });
    gErrorCode = gErrorMsg.isEmpty() ? 0 : 1;
    return number;
}

// What follows the highest number; a failed read has none.
int nextAfter(int highest) {
    return gErrorCode == 0 ? highest + 1 : 0;
}

} // namespace

void cro_LocateMainRecord(velcro::ui::RowGrid& grid) {
    if (gMainRecID > 0) {
        grid.locate(QStringLiteral("RecID"), QString::number(std::exchange(gMainRecID, 0)));
    }
}

QString cro_BrowseDEBMaster(QString xStartSearch, QWidget* parent) {
    sfg_ResetParamFields({});
    if (xStartSearch.trimmed() == QLatin1String("?")) {
        xStartSearch.clear();
    }
    TfrmCRO900 selection(parent);
    selection.xStartSearch = xStartSearch;
    velcro::ui::runModal(selection);
    gSParam[1] = selection.xName;
    gSParam[2] = selection.xDefBranch;
    return selection.xAccount;
}

int cro_GenerateItemNo(const QString& xCRONo) {
    return nextAfter(numberFrom("CRORepItems", "MaxItemNo",
                                QStringList{
                                    "SELECT MAX(CAST(ItemNo AS INT)) AS [MaxItemNo]",
                                    "  FROM CRORepItems WITH (NOLOCK)",
                                } + scopeOf(xCRONo)));
}

int cro_GenerateImageID(const QString& xCRONo, const QString& xItemNo) {
    return nextAfter(numberFrom("CRORepItmImages", "MaxImageID",
                                QStringList{
                                    "SELECT MAX(CAST(ImageID AS INT)) AS [MaxImageID]",
                                    "  FROM CRORepItmImages WITH (NOLOCK)",
                                } + scopeOf(xCRONo) +
                                    QStringList{"   AND [ItemNo] = " + QuotedStr(xItemNo)}));
}

int cro_GetReceivedItemCount(const QString& xCRONo) {
    return numberFrom("CRORepItems", "ReceivedItems",
                      QStringList{
                          "SELECT COUNT(RecID) AS [ReceivedItems]",
                          "  FROM CRORepItems WITH (NOLOCK)",
                      } + scopeOf(xCRONo));
}
