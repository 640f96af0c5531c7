#include "repairs/CRO101A.h"

#include "data/DateTimeText.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysLoadData.h"
#include "lookups/CRO910.h"
#include "repairs/SysCRO.h"
#include "ui/Modal.h"

#include <QLineEdit>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::ChecklistGrid;
using velcro::ui::connectHandler;

namespace {

// clang-format off

std::vector<DetailField> itemFields() {
    using namespace field;
    return {
        text("edCRONo", u"Order #No"_s, {.width = 10, .readOnly = true}),
        text("edAccount", u"Account"_s, {.beside = true, .width = 10, .readOnly = true}),
        text("edName", u"Name"_s, {.beside = true, .width = 44, .readOnly = true}),
        page("pgItemInfo", u"Item Information"_s),
        text("edSerialNo", u"Serial Number"_s, {.width = 30, .browse = true}),
        text("edStockCode", u"Stock Code"_s, {.width = 30, .readOnly = true}),
        text("edLinkCode", u"Link Code"_s, {.beside = true, .width = 25, .readOnly = true}),
        text("edDescription1", u"Description"_s, {.width = 50, .readOnly = true}),
        text("edItemNo", u"Item #No"_s, {.width = 20, .readOnly = true, .emptyText = u"*system generated*"_s}),
        text("edModelNo", u"Model Number"_s, {.width = 30, .limit = 100}),
        toggle("tsWarranty", u"Warranty"_s, u"In Warranty"_s, u"Out of Warranty"_s, {.column = "InWarranty"}),
        text("edNotes", u"Notes"_s, {.width = 50, .limit = 100}),
        page("pgItemIntakes", u"Intakes"_s),
        other("grdIntakes", u"Intakes"_s, [] { return ItemChecklist::makeGrid(intakeChecklist); }),
        page("pgItemFaults", u"Faults"_s),
        other("grdFaults", u"Faults"_s, [] { return ItemChecklist::makeGrid(faultChecklist); }),
    };
}

// clang-format on

// The stock code comes with the serial number and is not typed.
bool isKnown(const QString& stockCode) {
    return isNotBlank(stockCode);
}

DetailFacts itemFacts() {
    return {
        .unit = u"CRO101A"_s,
        .caption = u"Workshop Centre: Repair Order Item Management"_s,
        .saveCaption = u"Save    Item"_s,
        .table = "CRORepItems",
        .errorNo = u"101A-003"_s,
        .fields = itemFields(),
        .checks = {{"edSerialNo", isNotBlank, u"Serial number field cannot be empty."_s},
                   {"edStockCode", isKnown, u"Serial number entered is invalid"_s, "edSerialNo"},
                   {"edModelNo", isNotBlank, u"Model number field cannot be empty."_s}},
        .inserts = "CO Branch CRONo ItemNo ModelNo SerialNo InWarranty Notes",
        .updates = "ModelNo SerialNo InWarranty Notes",
        .firstInUpdate = "edModelNo",
    };
}

} // namespace

TfrmCRO101A::TfrmCRO101A(QWidget* parent)
    : DetailScreen(itemFacts(), parent)
    , edSerialNo(control("edSerialNo"))
    , edItemNo(control("edItemNo"))
    , intakes_(intakeChecklist, *control<ChecklistGrid>("grdIntakes"))
    , faults_(faultChecklist, *control<ChecklistGrid>("grdFaults")) {
    // What the stock does not know is told where it is asked for.
    lookUp("edSerialNo",
           {.find = [this] { return GetSerialData() ? LookUp::Found : LookUp::Refused; },
            .browse = [this](const QString&) { return BrowseSTKSerialMst(); },
            .onLeaving = true,
            .browsesOnLeaving = false,
            .findsAfterBrowse = true});
    countInTab("pgItemIntakes", *control<ChecklistGrid>("grdIntakes"));
    countInTab("pgItemFaults", *control<ChecklistGrid>("grdFaults"));
}

// Seen from every page, so that nobody overlooks what was ticked.
void TfrmCRO101A::countInTab(const char* page, const ChecklistGrid& list) {
    auto* pager = findChild<QTabWidget*>(u"MainPager"_s);
    const int index = pager->indexOf(findChild<QWidget*>(page));
    const QString caption = pager->tabText(index);
    connectHandler(&list, &ChecklistGrid::ticksChanged, this, [=](int count) {
        pager->setTabText(index, count == 0 ? caption : u"%1 (%2)"_s.arg(caption).arg(count));
    });
}

void TfrmCRO101A::showOrder(const RepairOrderKey& order) {
    control("edCRONo")->setText(order.xCRONo);
    control("edAccount")->setText(order.xAccount);
    control("edName")->setText(order.xName);
}

void TfrmCRO101A::FormShow() {
    DetailScreen::FormShow();
    whatWasNotRead();
    for (auto* list : findChildren<ChecklistGrid*>()) {
        connectHandler(list, &ChecklistGrid::edited, this, [this] { touch(); });
    }
    // A serial number that was booked in can be typed over, but nobody comes by it.
    if (!adding()) {
        lockKey(edSerialNo);
        edSerialNo->setReadOnly(false);
    }
}

// What was not shown would be overwritten by the save.
void TfrmCRO101A::whatWasNotRead() {
    if (adding() || !btnSave->isEnabled()) {
        return;
    }
    if (!rowRead_) {
        saveNothing();
        displayError(u"This item is not there any more: another user has removed it."_s);
    } else if (!listsRead_ && !deleting()) {
        saveNothing();
    }
}

// A note that is being typed is something that could be lost.
void TfrmCRO101A::reject() {
    intakes_.endEdit();
    faults_.endEdit();
    DetailScreen::reject();
}

void TfrmCRO101A::setDefaults() {
    DetailScreen::setDefaults();
    const bool intakes = intakes_.load(unitName());
    const bool faults = faults_.load(unitName());
    listsRead_ = intakes && faults;
}

void TfrmCRO101A::rowLoaded(const Statement& /*row*/) {
    rowRead_ = true;
    GetSerialData();
    const bool intakes = intakes_.tickStored(item(), unitName());
    const bool faults = faults_.tickStored(item(), unitName());
    listsRead_ = listsRead_ && intakes && faults;
}

ItemKey TfrmCRO101A::item() const {
    return {control("edCRONo")->text(), edItemNo->text()};
}

// The edits take what the selection holds also when nothing was picked: they are blank then.
bool TfrmCRO101A::BrowseSTKSerialMst() {
    TfrmCRO910 selection(this);
    velcro::ui::runModal(selection);
    edSerialNo->setText(selection.xSerialNo);
    control("edStockCode")->setText(selection.xStockCode);
    control("edLinkCode")->setText(selection.xLinkCode);
    control("edDescription1")->setText(selection.xDescription1);
    return selection.xRecID != 0;
}

// What has become of the article plays no part: one marked deleted or invoiced is repaired too.
bool TfrmCRO101A::GetSerialData() {
    return readRows(
        gData->vMstQuery2,
        {
            "SELECT T0.*, T1.Description1",
            "  FROM STKSerialMst T0",
            " INNER JOIN STKMaster T1",
            "    ON T1.CO = T0.CO",
            "   AND T1.Branch = T0.Branch",
            "   AND T1.StockCode = T0.StockCode",
            "   AND T1.LinkCode = T0.LinkCode",
            " WHERE T0.CO = " + QuotedStr(gCO),
            "   AND T0.Branch = " + QuotedStr(gStkBranch),
            "   AND T0.SerialNo = " + QuotedStr(edSerialNo->text()),
        },
        dialogAndFalse("101A-006", sqlErrorOnTable("STKSerialMst") + "\r", unitName(),
                       "GetSerialData"),
        [this](const Statement& serial) {
            if (serial.IsEmpty()) {
                return refuse(edSerialNo, u"Invalid Serial Number Entered"_s);
            }
            for (const char* column : {"SerialNo", "StockCode", "LinkCode", "Description1"}) {
                control(qPrintable(u"ed"_s + column))
                    ->setText(serial.FieldByName(column).AsString());
            }
            return true;
        });
}

bool TfrmCRO101A::Validation() {
    return checksPass() && (!adding() || takeItemNo());
}

// The serial number is asked for as the number that its edit reads as, which is 0 whatever stands in
// it: an article may be booked in any number of times.
bool TfrmCRO101A::takeItemNo() {
    const QString order = item().xCRONo;
    edItemNo->setText(QString::number(cro_GenerateItemNo(order)));
    const QString taken = "SELECT [RecID] FROM CRORepItems"
                          " WHERE [CO] = " +
                          QuotedStr(gCO) +                            //
                          "   AND [Branch] = " + QuotedStr(gBranch) + //
                          "   AND [CRONo] = " + QuotedStr(order) +    //
                          "   AND [SerialNo] = " + QuotedStr(0);
    if (sld_CheckDuplicates(taken, u"CRORepItems"_s)) {
        velcro::ui::bringForward(*edSerialNo);
        return refuse(nullptr, u"Repair order item already exists."_s);
    }
    return true;
}

void TfrmCRO101A::AddData() {
    sfg_ClearSQL2();
    DetailScreen::AddData();
    addTicks();
    addAudit(u"Order Item Added"_s);
    addQuotation();
}

// The ticks are taken away in a transaction of their own before they are written anew. While they
// stay, the rest of the item stays as well.
void TfrmCRO101A::UpdateData() {
    sfg_ClearSQL2();
    faults_.addDeletion(item());
    intakes_.addDeletion(item());
    if (gData->vel_ExecSQL(2)) {
        DetailScreen::UpdateData();
        addTicks();
        addAudit(u"Order Item Modified"_s);
    }
}

void TfrmCRO101A::DeleteData() {
    DetailScreen::DeleteData();
    for (const char* table : {"CRORepItmFaults", "CRORepItmImages", "CRORepItmIntake",
                              "CRORepItmProcess", "CRORepItmQuoteDet", "CRORepItmQuoteHdr"}) {
        sfg_AddSQL(item().deletion(table), {});
    }
    addAudit(u"Order Item Deleted"_s);
}

void TfrmCRO101A::addTicks() {
    intakes_.addTicks(item());
    faults_.addTicks(item());
}

void TfrmCRO101A::addAudit(const QString& event) {
    sfg_AddSQL(item().insertion("CRORepItmAudit",
                                "[TranDate], [TranTime], [ProcessCode], [TechCode], [Notes]",
                                {sfg_Date(0), sfg_Time(), {}, {}, event}),
               {});
}

// Without a number there is no quotation, and without a quotation no item: nothing is saved.
void TfrmCRO101A::addQuotation() {
    const QString number = sld_GenerateDocNo(gCO, gBranch, u"CRO"_s, u"CROQOT"_s);
    if (number == "0"_L1) {
        sfg_ErrorDlg(u"100A-002"_s,
                     u"Error generating customer repair order item quotation number"_s, unitName(),
                     u"Validation"_s);
        sfg_ClearSQL();
        return;
    }
    sfg_AddSQL(item().insertion(
                   "CRORepItmQuoteHdr",
                   "[TranDate], [TechCode], [Status], [DepositRequired], "
                   "[DepositPaid], [OrderNo], [Notes]",
                   {sfg_Date(0), {}, u"0"_s, u"0"_s, u"0"_s, number, control("edNotes")->text()}),
               {});
}

// Whatever became of the save, the order is told how many items it has now.
void TfrmCRO101A::afterSave() {
    UpdateReceivedItems();
}

void TfrmCRO101A::UpdateReceivedItems() {
    const QString order = item().xCRONo;
    sfg_AddSQL({"UPDATE CRORepMst SET",
                " [ReceiveItems] = " + QuotedStr(cro_GetReceivedItemCount(order)),
                " WHERE [CO] = " + QuotedStr(gCO), "   AND [Branch] = " + QuotedStr(gBranch),
                "   AND [CRONo] = " + QuotedStr(order)},
               u"NEW"_s);
    gData->vel_ExecSQL(1);
}
