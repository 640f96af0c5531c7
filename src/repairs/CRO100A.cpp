#include "repairs/CRO100A.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/Statement.h"
#include "data/StatementText.h"
#include "data/SysLoadData.h"
#include "data/TextHelpers.h"
#include "data/Validators.h"
#include "repairs/SysCRO.h"
#include "screens/Combos.h"
#include "ui/DateEdit.h"

#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

using velcro::ui::connectHandler;
using velcro::ui::FormBuilder;

namespace {

constexpr int textLimit = 100;

QStringList receiveMethods() {
    return {
        QStringLiteral("WALKIN - WALKIN"),
        QStringLiteral("COURIER - COURIER/DELIVERY"),
        QStringLiteral("PICKUP - PICKUP SERVICE"),
        QStringLiteral("ONLINE - ONLINE SUBMISSION"),
        QStringLiteral("ONSITE - ONSITE REQUEST"),
        QStringLiteral("APPOINTMENT - PRESCHEDULED APPOINTMENT"),
        QStringLiteral("DROPOFF - DROP OFF BOX"),
        QStringLiteral("WARRANTY - WARRANTY RETURN"),
        QStringLiteral("THIRDPARTY - THIRD PARTY SUBMISSIONS"),
        QStringLiteral("INTERNAL - INTERNAL TRANSFER"),
    };
}

} // namespace

TfrmCRO100A::TfrmCRO100A(QWidget* parent)
    : DetailScreen(QStringLiteral("CRO100A"),
                   QStringLiteral("Workshop Centre: Repair Order Management"),
                   QStringLiteral("Save Order"), parent) {
    FormBuilder form(pnlMain);
    declareOrder(form);
    declareBilling(form);
    form.stretch();
    setFirstControl(edTranDate);
    moveOnWithEnter({edAccount});
    connectHandler(edAccount, &QLineEdit::returnPressed, this, &TfrmCRO100A::edAccountEntered);
}

void TfrmCRO100A::declareOrder(FormBuilder& form) {
    form.group(QStringLiteral(" [ Repair Order Information ] "));
    edCRONo = form.edit(QStringLiteral("edCRONo"), QStringLiteral("Order #No"),
                        {.readOnly = true, .emptyText = QStringLiteral("*system generated*")});
    edCRONo->setFocusPolicy(Qt::ClickFocus);
    edReference = form.beside().edit(QStringLiteral("edReference"), QStringLiteral("Reference"),
                                     {.width = 26, .limit = textLimit});
    edTranDate = form.date(QStringLiteral("edTranDate"), QStringLiteral("Order Date"));
    edReceiveDate =
        form.beside().date(QStringLiteral("edReceiveDate"), QStringLiteral("Received Date"));
    cmbReceiveMthd = form.combo(QStringLiteral("cmbReceiveMthd"), QStringLiteral("Received Method"),
                                receiveMethods(), 36);
}

void TfrmCRO100A::declareBilling(FormBuilder& form) {
    form.group(QStringLiteral(" [ Billing Information ] "));
    edAccount = form.edit(
        QStringLiteral("edAccount"), QStringLiteral("Account"),
        {.limit = textLimit, .upperCase = true, .emptyText = QStringLiteral("Select customer")});
    connectHandler(form.browseButton(edAccount), &QToolButton::clicked, this,
                   &TfrmCRO100A::edAccountClickBtn);
    struct Declared
    {
        QLineEdit*& edit;
        const char* name;
        const char* label;
        bool beside;
        int width;
    };
    const Declared edits[] = {
        {edName, "edName", "Name", true, 32},
        {edAddress1, "edAddress1", "Address 1", false, 32},
        {edAddress2, "edAddress2", "Address 2", true, 32},
        {edAddress3, "edAddress3", "Address 3", false, 32},
        {edAddress4, "edAddress4", "Address 4", true, 32},
        {edPostCode, "edPostCode", "Post Code", false, 14},
        {edContact, "edContact", "Contact", true, 32},
        {edCellphone, "edCellphone", "Cellphone", false, 20},
        {edTelephone1, "edTelephone1", "Telephone (Home)", true, 20},
        {edTelephone2, "edTelephone2", "Telephone (Work)", false, 20},
        {edEMail, "edEMail", "E-Mail", true, 32},
    };
    for (const auto& declared : edits) {
        if (declared.beside) {
            form.beside();
        }
        declared.edit =
            form.edit(QString::fromLatin1(declared.name), QString::fromLatin1(declared.label),
                      {.width = declared.width, .limit = textLimit});
    }
}

void TfrmCRO100A::setDefaults() {
    const auto today = sfg_Date(0);
    edTranDate->setText(today);
    edReceiveDate->setText(today);
    cmbReceiveMthd->setCurrentIndex(0);
}

std::vector<TfrmCRO100A::BoundEdit> TfrmCRO100A::boundEdits() const {
    return {
        {"CRONo", edCRONo},           {"TranDate", edTranDate},
        {"Account", edAccount},       {"Name", edName},
        {"Address1", edAddress1},     {"Address2", edAddress2},
        {"Address3", edAddress3},     {"Address4", edAddress4},
        {"PostCode", edPostCode},     {"Telephone1", edTelephone1},
        {"Telephone2", edTelephone2}, {"Cellphone", edCellphone},
        {"Contact", edContact},       {"EMail", edEMail},
        {"Reference", edReference},   {"ReceiveDate", edReceiveDate},
    };
}

void TfrmCRO100A::ExtractData() {
    try {
        readOrder();
    } catch (const std::exception& error) {
        sfg_ErrorDlg(QStringLiteral("100A-001"),
                     QStringLiteral("SQL Error reading object \"CRORepMst\". Details: \r") +
                         errorText(error),
                     unitName(), QStringLiteral("ExtractData"));
        saveNothing();
    }
}

void TfrmCRO100A::readOrder() {
    Statement qryCRORepMst(gData->Velmara);
    qryCRORepMst.NewRead();
    qryCRORepMst.SQL.Add("SELECT * FROM CRORepMst");
    qryCRORepMst.SQL.Add(" WHERE [RecID] = " + QuotedStr(xRecID));
    qryCRORepMst.Open();
    if (qryCRORepMst.IsEmpty()) {
        return;
    }
    for (const auto& bound : boundEdits()) {
        bound.edit->setText(qryCRORepMst.FieldByName(QString::fromLatin1(bound.column)).AsString());
    }
    wReceiveMthd = qryCRORepMst.FieldByName(QStringLiteral("ReceiveMthd")).AsString();
    wStatus = qryCRORepMst.FieldByName(QStringLiteral("Status")).AsString();
    if (!wReceiveMthd.isEmpty()) {
        cmbReceiveMthd->setCurrentIndex(sfg_FindComboIndex(wReceiveMthd, *cmbReceiveMthd, true));
    }
}

bool TfrmCRO100A::Validation() {
    clearRefusal();
    wReceiveMthd =
        sfg_StripCode(cmbReceiveMthd->currentText(), QLatin1Char('-'), QStringLiteral("Y"));
    return valuesAreThere() && valuesAreWellFormed() && (!adding() || takeNumber());
}

bool TfrmCRO100A::valuesAreThere() {
    if (edAccount->text().isEmpty()) {
        return refuse(edAccount, QStringLiteral("Account field cannot be empty."));
    }
    if (edName->text().isEmpty()) {
        return refuse(edName, QStringLiteral("Name field cannot be empty."));
    }
    if (edCellphone->text().isEmpty()) {
        return refuse(edCellphone, QStringLiteral("Cellphone field cannot be empty."));
    }
    if (edTranDate->text().trimmed().isEmpty()) {
        return refuse(edTranDate, QStringLiteral("Transaction Date field cannot be empty."));
    }
    return true;
}

bool TfrmCRO100A::valuesAreWellFormed() {
    const auto badPhone = [](const QLineEdit* edit) {
        return !edit->text().isEmpty() && !sfg_Validate_PhoneNo(edit->text());
    };
    if (badPhone(edCellphone)) {
        return refuse(edCellphone, QStringLiteral("Invalid cellphone number format."));
    }
    if (badPhone(edTelephone1)) {
        return refuse(edTelephone1,
                      QStringLiteral("Invalid telephone number format for Telephone1."));
    }
    if (badPhone(edTelephone2)) {
        return refuse(edTelephone2,
                      QStringLiteral("Invalid telephone number format for Telephone2."));
    }
    if (!edEMail->text().isEmpty() && !sfg_Validate_ValidateEmailAddy(edEMail->text())) {
        return refuse(edEMail, QStringLiteral("Invalid email address format."));
    }
    return true;
}

// Every add that comes here takes a number, also one that fails afterwards.
bool TfrmCRO100A::takeNumber() {
    edCRONo->setText(
        sld_GenerateDocNo(gCO, gBranch, QStringLiteral("CRO"), QStringLiteral("CROMST")));
    edCRONo->repaint();
    if (edCRONo->text() == QLatin1String("0")) {
        sfg_ErrorDlg(QStringLiteral("100A-002"),
                     QStringLiteral("Error generating customer repair order number"), unitName(),
                     QStringLiteral("Validation"));
        return false;
    }
    const auto taken =
        sld_CheckDuplicates("SELECT [RecID] FROM CRORepMst"
                            " WHERE [CO] = " +
                                QuotedStr(gCO) + "   AND [Branch] = " + QuotedStr(gBranch) +
                                "   AND [CRONo] = " + QuotedStr(edCRONo->text()),
                            QStringLiteral("CRORepMst"));
    return !taken ||
           refuse(nullptr, QStringLiteral("Repair order already exists. Please contact support."));
}

void TfrmCRO100A::edAccountClickBtn() {
    browseAccount({});
}

void TfrmCRO100A::browseAccount(const QString& xStartSearch) {
    edAccount->setText(cro_BrowseDEBMaster(xStartSearch, this));
    if (edAccount->text().trimmed().isEmpty()) {
        edAccount->setFocus();
    } else {
        edName->setText(gSParam[1]);
    }
}

void TfrmCRO100A::edAccountEntered() {
    clearRefusal();
    if (edAccount->text().trimmed() == QLatin1String("?")) {
        browseAccount({});
    }
    if (edAccount->text().trimmed().isEmpty()) {
        edAccount->setFocus();
        return;
    }
    if (!GetDebtor()) {
        browseAccount(edAccount->text());
        if (edAccount->text().trimmed().isEmpty()) {
            refuse(edAccount, QStringLiteral("Account Number Entered was NOT FOUND"));
            return;
        }
        if (!GetDebtor()) {
            edAccount->setFocus();
            return;
        }
    }
    edName->setFocus(Qt::TabFocusReason);
}

bool TfrmCRO100A::GetDebtor() {
    auto& query = gData->vLoadQuery1;
    try {
        query.NewRead();
        query.SQL.Add("SELECT [Account], [Name] FROM DEBMaster");
        query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
        query.SQL.Add("   AND [Branch] = " + QuotedStr(gDebBranch));
        query.SQL.Add("   AND [Account] = " + QuotedStr(edAccount->text()));
        query.Open();
    } catch (const std::exception& error) {
        sfg_ErrorDlg(QStringLiteral("100A-003"),
                     QStringLiteral("SQL Error reading DEBMaster\r") + errorText(error), unitName(),
                     QStringLiteral("GetDebtor"));
        return false;
    }
    if (query.IsEmpty()) {
        return false;
    }
    edAccount->setText(query.FieldByName(QStringLiteral("Account")).AsString());
    edName->setText(query.FieldByName(QStringLiteral("Name")).AsString());
    return true;
}
