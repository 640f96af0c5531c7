#include "repairs/CRO104.h"

#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/OnScreenKeyboard.h"
#include "repairs/CRO104A.h"
#include "screens/Combos.h"
#include "screens/SysFuncGlobal.h"
#include "ui/AmountEdit.h"
#include "ui/DateEdit.h"
#include "ui/DecimalText.h"
#include "ui/FormBuilder.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;
using velcro::seat::hasKeyboard;
using velcro::ui::connectHandler;
using velcro::ui::DateEdit;
using velcro::ui::GridColumn;

namespace {

GridColumn money(const char* field, const char* caption = "") {
    return {field, caption, velcro::ui::moneyText, velcro::ui::CellType::Decimal};
}

ListFacts quotationFacts() {
    return {
        .unit = u"CRO104"_s,
        .caption = u"Workshop Centre: Quotation"_s,
        .failure = {u"104-002"_s, u"SQL Error on Table: CRORepItmQuoteDet :-"_s,
                    ListFailure::Then::GoesOn},
        .columns = {{"ItemCode", "Item Code"},
                    {"Description1", "Description #1"},
                    {"Quantity"},
                    money("PriceExcl", "Price Ex."),
                    money("PriceIncl", "Price In."),
                    money("LineVAT", "Total VAT"),
                    money("LineTotalExcl", "Total Excl."),
                    money("LineTotalIncl", "Total Incl."),
                    {"Notes"}},
        .hidden = {{"RecID"},
                   {"CO"},
                   {"Branch"},
                   {"CRONo"},
                   {"ItemNo"},
                   {"StockCode"},
                   {"LinkCode"},
                   {"VATCode"},
                   {"VATRate"},
                   money("CostExcl"),
                   money("CostIncl"),
                   money("TotalCostExcl"),
                   money("TotalCostIncl"),
                   money("Profit")},
    };
}

} // namespace

TfrmCRO104::TfrmCRO104(QWidget* parent)
    : MaintenanceList(quotationFacts(), gData->Velmara, parent) {
    makeHeader();
    setButtons({
        .options = {addButton(u"Insert* Line"_s), updateButton(u"Update Line"_s),
                    deleteButton(u"Remove Line"_s)},
        .functions = {restoreButton(),
                      {.name = u"btnKeyboard"_s,
                       .caption = u"Touch Keyboard"_s,
                       .handler = hasKeyboard() ? sfg_ShowTouchKeyboard : std::function<void()>()}},
    });
    // The edit that is typed into keeps the focus.
    findChild<QWidget*>(u"btnKeyboard"_s)->setFocusPolicy(Qt::NoFocus);
}

void TfrmCRO104::makeHeader() {
    velcro::ui::FormBuilder form(&above());
    edCRONo = form.edit(u"edCRONo"_s, u"Order #No"_s, {.width = 12, .readOnly = true});
    edItemNo = form.beside().amount(u"edItemNo"_s, u"Item #No"_s, 0, true);
    edTranDate = form.date(u"edTranDate"_s, u"Order Date"_s);
    edOrderNo =
        form.beside().edit(u"edOrderNo"_s, u"Quote #No"_s,
                           {.width = 18, .readOnly = true, .emptyText = u"*system generated*"_s});
    cmbTechCode = form.combo(u"cmbTechCode"_s, u"Technician"_s, {}, 24);
    edNotes = form.beside().edit(u"edNotes"_s, u"Notes"_s,
                                 {.width = 32, .limit = 100, .upperCase = true});
    edDepositRequired = form.amount(u"edDepositRequired"_s, u"Deposit"_s);
    edDepositPaid = form.beside().amount(u"edDepositPaid"_s, u"Paid"_s);
    form.stretch();
    // On the smallest screen the second column gives way, beside the panel of buttons.
    for (QWidget* second :
         std::initializer_list<QWidget*>{edItemNo, edOrderNo, edNotes, edDepositPaid}) {
        second->setMinimumWidth(second->minimumWidth() * 3 / 4);
    }
    for (auto* control : above().findChildren<QLineEdit*>()) {
        control->installEventFilter(this);
    }
    cmbTechCode->installEventFilter(this);
    connectHandler(edTranDate, &DateEdit::dateRefused, this,
                   [this] { displayError(u"Order Date is not a date. Type it as yyyy/mm/dd."_s); });
}

// Enter leads through the header. In the grid it opens a line.
bool TfrmCRO104::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextChild();
            return true;
        }
    }
    return MaintenanceList::eventFilter(watched, event);
}

void TfrmCRO104::FormShow() {
    sld_LoadCombo(u"CROTechMst"_s, *cmbTechCode, u"*BLANK*"_s);
    ExtractData();
    MaintenanceList::FormShow();
}

void TfrmCRO104::ExtractData() {
    readRows(gData->Velmara,
             {
                 "SELECT * FROM CRORepItmQuoteHdr",
                 " WHERE [CO] = " + QuotedStr(gCO),
                 "   AND [Branch] = " + QuotedStr(gBranch),
                 "   AND [CRONo] = " + QuotedStr(edCRONo->text()),
             },
             dialogAndFalse("104-001", "SQL Error on Table: CRORepItmQuoteHdr :-\r", unitName(),
                            "ExtractData"),
             [this](const Statement& row) {
                 if (!row.IsEmpty()) {
                     takeHeader(row);
                 }
             });
}

void TfrmCRO104::takeHeader(const Statement& row) {
    const auto text = [&row](const char* column) { return row.FieldByName(column).AsString(); };
    recID_ = row.FieldByName("RecID").AsInteger();
    techCode_ = text("TechCode");
    tranDate_ = text("TranDate");
    edCRONo->setText(text("CRONo"));
    edItemNo->setNumber(text("ItemNo"));
    edOrderNo->setText(text("OrderNo"));
    edTranDate->setText(tranDate_);
    edDepositRequired->setNumber(text("DepositRequired"));
    edDepositPaid->setNumber(text("DepositPaid"));
    edNotes->setText(text("Notes"));
    if (!techCode_.isEmpty()) {
        cmbTechCode->setCurrentIndex(sfg_FindComboIndex(techCode_, *cmbTechCode, true));
    }
}

QStringList TfrmCRO104::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT * FROM CRORepItmQuoteDet",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
        "   AND [CRONo] = " + QuotedStr(edCRONo->text()),
    };
}

void TfrmCRO104::openDetail(int xFunction, int xRecID) {
    showDetail<TfrmCRO104A>(xFunction, xRecID);
}

// A date that cannot be read would be lost with the screen.
void TfrmCRO104::reject() {
    if (!edTranDate->tidy()) {
        edTranDate->setFocus();
        return;
    }
    MaintenanceList::reject();
}

// The header is saved whichever way the screen closes, and the screen closes whatever the save does.
void TfrmCRO104::done(int result) {
    velcro::ui::guarded([this] { UpdateCRORepItmQuoteHdr(); });
    MaintenanceList::done(result);
}

// The technician stays as he was read, whoever is chosen in the combo.
void TfrmCRO104::UpdateCRORepItmQuoteHdr() {
    const auto& date = edTranDate->isAcceptable() ? edTranDate->text() : tranDate_;
    sfg_AddSQL(
        {
            "UPDATE CRORepItmQuoteHdr SET ",
            "       [TranDate] = " + QuotedStr(date) + ", ",
            "       [TechCode] = " + QuotedStr(techCode_) + ", ",
            "       [DepositRequired] = " + QuotedStr(edDepositRequired->number()) + ", ",
            "       [DepositPaid] = " + QuotedStr(edDepositPaid->number()) + ", ",
            "       [OrderNo] = " + QuotedStr(edOrderNo->text()) + ", ",
            "       [Notes] = " + QuotedStr(edNotes->text()),
            " WHERE [RecID] = " + QuotedStr(recID_),
        },
        u"NEW"_s);
    gData->vel_ExecSQL(1);
}
