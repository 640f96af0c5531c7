#include "repairs/CRO100A.h"

#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/SysCRO.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList receiveMethods = {
    u"WALKIN - WALKIN"_s,
    u"COURIER - COURIER/DELIVERY"_s,
    u"PICKUP - PICKUP SERVICE"_s,
    u"ONLINE - ONLINE SUBMISSION"_s,
    u"ONSITE - ONSITE REQUEST"_s,
    u"APPOINTMENT - PRESCHEDULED APPOINTMENT"_s,
    u"DROPOFF - DROP OFF BOX"_s,
    u"WARRANTY - WARRANTY RETURN"_s,
    u"THIRDPARTY - THIRD PARTY SUBMISSIONS"_s,
    u"INTERNAL - INTERNAL TRANSFER"_s,
};

// clang-format off

std::vector<DetailField> orderFields() {
    using namespace field;
    return {
        group(u" [ Repair Order Information ] "_s),
        text("edCRONo", u"Order #No"_s, {.readOnly = true, .emptyText = u"*system generated*"_s}),
        date("edTranDate", u"Order Date"_s, {.today = true}),
        date("edReceiveDate", u"Received Date"_s, {.beside = true, .today = true}),
        combo("cmbReceiveMthd", u"Received Method"_s, receiveMethods, {.width = 36}),
        text("edReference", u"Reference"_s, {.beside = true, .width = 26, .limit = 100}),
        group(u" [ Billing Information ] "_s),
        text("edAccount", u"Account"_s, {.limit = 100, .upperCase = true, .browse = true,
                                         .emptyText = u"Select customer"_s}),
        text("edName", u"Name"_s, {.beside = true, .width = 32, .limit = 100}),
        text("edAddress1", u"Address 1"_s, {.width = 32, .limit = 100}),
        text("edAddress2", u"Address 2"_s, {.beside = true, .width = 32, .limit = 100}),
        text("edAddress3", u"Address 3"_s, {.width = 32, .limit = 100}),
        text("edAddress4", u"Address 4"_s, {.beside = true, .width = 32, .limit = 100}),
        text("edPostCode", u"Post Code"_s, {.width = 14, .limit = 100}),
        text("edContact", u"Contact"_s, {.beside = true, .width = 32, .limit = 100}),
        text("edCellphone", u"Cellphone"_s, {.limit = 100}),
        text("edTelephone1", u"Telephone (Home)"_s, {.beside = true, .limit = 100}),
        text("edTelephone2", u"Telephone (Work)"_s, {.limit = 100}),
        text("edEMail", u"E-Mail"_s, {.beside = true, .width = 32, .limit = 100}),
    };
}

std::vector<FieldCheck> orderChecks() {
    return {
        {"edAccount", isFilled, u"Account field cannot be empty."_s},
        {"edName", isFilled, u"Name field cannot be empty."_s},
        {"edCellphone", isFilled, u"Cellphone field cannot be empty."_s},
        {"edTranDate", isNotBlank, u"Transaction Date field cannot be empty."_s},
        {"edCellphone", isPhone, u"Invalid cellphone number format."_s},
        {"edTelephone1", isPhoneOrEmpty, u"Invalid telephone number format for Telephone1."_s},
        {"edTelephone2", isPhoneOrEmpty, u"Invalid telephone number format for Telephone2."_s},
        {"edEMail", isEMailOrEmpty, u"Invalid email address format."_s},
    };
}

// An update leaves the account, the number, the count of items and the status on purpose.
DetailFacts orderFacts() {
    return {
        .unit = u"CRO100A"_s,
        .caption = u"Workshop Centre: Repair Order Management"_s,
        .saveCaption = u"Save Order"_s,
        .table = "CRORepMst",
        .errorNo = u"100A-001"_s,
        .fields = orderFields(),
        .checks = orderChecks(),
        .unique = {"CO Branch CRONo",
                   u"Repair order already exists. Please contact support."_s},
        .inserts = "CO Branch CRONo TranDate Account Name Address1 Address2 Address3 Address4 "
                   "PostCode Telephone1 Telephone2 Cellphone Contact EMail Reference ReceiveDate "
                   "ReceiveMthd ReceiveItems Status",
        .updates = "TranDate Name Address1 Address2 Address3 Address4 PostCode Telephone1 "
                   "Telephone2 Cellphone Contact EMail Reference ReceiveDate ReceiveMthd",
        .values = {{"ReceiveItems", always(u"0"_s)}, {"Status", always(u"0"_s)}},
        .stamped = true,
        .addedText = u"Order %1 is booked in."_s,
        .numberControl = "edCRONo",
    };
}

// clang-format on

} // namespace

TfrmCRO100A::TfrmCRO100A(QWidget* parent)
    : DetailScreen(orderFacts(), parent)
    , edAccount(control("edAccount"))
    , edName(control("edName")) {
    lookUp("edAccount",
           {.find = [this] { return GetDebtor() ? LookUp::Found : LookUp::Unknown; },
            .browse = [this](const QString& xStartSearch) { return browseAccount(xStartSearch); },
            .unknown = u"Account Number Entered was NOT FOUND"_s});
}

// Every add that comes to its number takes one, also an add that fails afterwards.
bool TfrmCRO100A::Validation() {
    return checksPass() &&
           (!adding() || takeNumber("edCRONo", u"CROMST"_s,
                                    u"Error generating customer repair order number"_s)) &&
           isUnique();
}

// An order goes with everything below it, the audit included.
void TfrmCRO100A::DeleteData() {
    DetailScreen::DeleteData();
    for (const auto* table :
         {"CRORepItems", "CRORepItmFaults", "CRORepItmImages", "CRORepItmIntake",
          "CRORepItmProcess", "CRORepItmQuoteDet", "CRORepItmQuoteHdr", "CRORepItmAudit"}) {
        sfg_AddSQL(QString("DELETE FROM ") + table +               //
                       " WHERE [CO] = " + QuotedStr(gCO) +         //
                       "   AND [Branch] = " + QuotedStr(gBranch) + //
                       "   AND [CRONo] = " + QuotedStr(form().value(u"CRONo"_s)),
                   "");
    }
}

bool TfrmCRO100A::browseAccount(const QString& xStartSearch) {
    edAccount->setText(cro_BrowseDEBMaster(xStartSearch, this));
    if (edAccount->text().trimmed().isEmpty()) {
        return false;
    }
    edName->setText(gSParam[1]);
    return true;
}

bool TfrmCRO100A::GetDebtor() {
    return readRows(
        gData->vLoadQuery1,
        {
            "SELECT [Account], [Name] FROM DEBMaster",
            " WHERE [CO] = " + QuotedStr(gCO),
            "   AND [Branch] = " + QuotedStr(gDebBranch),
            "   AND [Account] = " + QuotedStr(edAccount->text()),
        },
        dialogAndFalse("100A-003", "SQL Error reading DEBMaster\r", unitName(), "GetDebtor"),
        [this](const Statement& rows) {
            if (rows.IsEmpty()) {
                return false;
            }
            edAccount->setText(rows.FieldByName("Account").AsString());
            edName->setText(rows.FieldByName("Name").AsString());
            return true;
        });
}
