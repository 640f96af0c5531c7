#include "repairs/CRO101.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/CRO101A.h"
#include "repairs/CRO102.h"
#include "repairs/CRO103.h"
#include "repairs/CRO104.h"
#include "repairs/SysCRO.h"
#include "ui/AmountEdit.h"
#include "ui/FormBuilder.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

ListFacts itemFacts() {
    return {
        .unit = u"CRO101"_s,
        .caption = u"Workshop Centre: Repair Order Item Management"_s,
        .failure = {u"101-001"_s, u"SQL Error reading object \"CRORepItems\". Details: "_s},
        .columns = {{"ItemNo", "Item #No"},
                    {"ModelNo", "Model Number"},
                    {"SerialNo", "Serial Number"},
                    {"InWarranty", "In Warranty"},
                    {"Notes"}},
        .hidden = {{"RecID"}, {"CO"}, {"CRONo", "Order #No"}},
    };
}

} // namespace

TfrmCRO101::TfrmCRO101(const RepairOrderKey& order, QWidget* parent)
    : MaintenanceList(itemFacts(), gData->Velmara, parent)
    , order_(order) {
    makeBand();
    auto print = printButton();
    print.caption = u"Print     Item"_s;
    setButtons({
        .options = {addButton(u"New* Item"_s), updateButton(u"Edit Item"_s),
                    deleteButton(u"Remove Item"_s),
                    belowButton(u"btnImages"_s, u"Item Images"_s, Qt::Key_F4,
                                u"Pictures of the item [F4]"_s, &TfrmCRO101::showImages),
                    belowButton(u"btnProcesses"_s, u"Item Process"_s, Qt::Key_F5,
                                u"Work steps on the item [F5]"_s, &TfrmCRO101::showProcesses),
                    belowButton(u"btnQuotation"_s, u"Item Estimate"_s, {},
                                u"Estimate of the item [F6]"_s, &TfrmCRO101::showQuotation,
                                u"ItemNo"_s)},
        .functions = {restoreButton(), print},
    });
}

ButtonFacts TfrmCRO101::belowButton(const QString& name, const QString& caption,
                                    const QKeySequence& key, const QString& hint,
                                    void (TfrmCRO101::*show)(), const QString& locateBy) {
    return {
        .name = name,
        .caption = caption,
        .key = key,
        .handler = [=, this] { showForCurrent([this, show](int) { (this->*show)(); }, locateBy); },
        .needsRecord = true,
        .hint = hint};
}

// The item's number is not handed over.
void TfrmCRO101::showProcesses() {
    TfrmCRO102 processes(this);
    processes.edCRONo->setText(order_.xCRONo);
    processes.edSerialNo->setText(currentText("SerialNo"));
    processes.edDescription1->setText(currentText("Description1"));
    velcro::ui::runModal(processes);
}

void TfrmCRO101::showQuotation() {
    TfrmCRO104 quotation(this);
    quotation.edCRONo->setText(order_.xCRONo);
    quotation.edItemNo->setNumber(currentText("ItemNo"));
    velcro::ui::runModal(quotation);
}

void TfrmCRO101::makeBand() {
    velcro::ui::FormBuilder form(&above());
    form.edit(u"edCRONo"_s, u"Order #No"_s, {.width = 12, .readOnly = true})
        ->setText(order_.xCRONo);
    form.beside()
        .edit(u"edAccount"_s, u"Account"_s, {.width = 12, .readOnly = true})
        ->setText(order_.xAccount);
    form.edit(u"edName"_s, u"Name"_s, {.width = 60, .readOnly = true})->setText(order_.xName);
    form.stretch();
}

// The inner join behind the outer one drops an item whose serial number or stock row is gone,
// though its order still counts it.
QStringList TfrmCRO101::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT T0.*, T2.Description1",
        "  FROM CRORepItems T0",
        "  LEFT OUTER JOIN STKSerialMst T1",
        "    ON T1.CO = T0.CO",
        "   AND T1.Branch = " + QuotedStr(gStkBranch),
        "   AND T1.SerialNo = T0.SerialNo",
        "  INNER JOIN STKMaster T2",
        "    ON T2.CO = T1.CO",
        "   AND T2.Branch = T1.Branch",
        "   AND T2.StockCode = T1.StockCode",
        "   AND T2.LinkCode = T1.LinkCode",
        " WHERE T0.CO = " + QuotedStr(gCO),
        "   AND T0.Branch = " + QuotedStr(gBranch),
        "   AND T0.CRONo = " + QuotedStr(order_.xCRONo),
    };
}

void TfrmCRO101::afterRead() {
    cro_LocateMainRecord(grid());
}

void TfrmCRO101::openDetail(int xFunction, int xRecID) {
    showDetail<TfrmCRO101A>(xFunction, xRecID,
                            [this](TfrmCRO101A& detail) { detail.showOrder(order_); });
}

void TfrmCRO101::showImages() {
    TfrmCRO103 form({order_.xCRONo, currentText("ItemNo")}, currentText("SerialNo"),
                    currentText("Description1"), this);
    velcro::ui::runModal(form);
}
