#include "repairs/CRO102.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/CRO102A.h"
#include "repairs/SysCRO.h"
#include "ui/AmountEdit.h"
#include "ui/FormBuilder.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

ListFacts processListFacts() {
    return {
        .unit = u"CRO102"_s,
        .caption = u"Workshop Centre: Repair Order Item Processes"_s,
        .failure = {u"102-001"_s, u"SQL Error reading object \"CRORepItmProcess\". Details: "_s},
        // No field has the names of the two codes: their columns stay blank, and the detail screen
        // tells them.
        .columns = {{"TimeStamp", "Time Stamp"},
                    {"Technician Code"},
                    {"Process Code"},
                    {"ProcessID", "Process #ID"},
                    {"Notes"}},
        .hidden = {{"RecID"},
                   {"CO"},
                   {"Branch"},
                   {"CRONo"},
                   {"ItemNo"},
                   {"TranDate"},
                   {"TranTime"},
                   {"TechCode"},
                   {"ProcessCode"}},
        .statusCode = u"CRO101"_s,
    };
}

} // namespace

TfrmCRO102::TfrmCRO102(QWidget* parent)
    : MaintenanceList(processListFacts(), gData->Velmara, parent) {
    velcro::ui::FormBuilder band(&above());
    const velcro::ui::EditOptions shown = {.readOnly = true};
    edCRONo = band.edit(u"edCRONo"_s, u"Order #No"_s, shown);
    edItemNo = band.beside().amount(u"edItemNo"_s, u"Item #No"_s, 0, true);
    edDescription1 =
        band.edit(u"edDescription1"_s, u"Description"_s, {.width = 40, .readOnly = true});
    edSerialNo = band.beside().edit(u"edSerialNo"_s, u"Serial #No"_s, shown);
    setButtons({
        .options = {addButton(u"New* Process"_s), updateButton(u"Edit Process"_s),
                    deleteButton(u"Remove Process"_s)},
        .functions = {restoreButton(), printButton()},
    });
}

QStringList TfrmCRO102::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], * ",
        "  FROM CRORepItmProcess WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
        "   AND [CRONo] = " + QuotedStr(edCRONo->text()),
        "   AND [ItemNo] = " + QuotedStr(edItemNo->number()),
    };
}

void TfrmCRO102::afterRead() {
    cro_LocateMainRecord(grid());
}

void TfrmCRO102::ShowDetailForm(int xFunction) {
    if (xFunction == 1) {
        openDetail(xFunction, 0);
    } else if (hasCurrentRecord()) {
        openDetail(xFunction, currentText("RecID").toInt());
    }
}

void TfrmCRO102::openDetail(int xFunction, int xRecID) {
    showDetail<TfrmCRO102A>(xFunction, xRecID);
}
