// The statements that the header screen of a repair order writes with.
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/CRO100A.h"
#include "ui/DateEdit.h"

// clang-format off

void TfrmCRO100A::AddData() {
    const auto text = [](const QLineEdit* edit) { return QuotedStr(edit->text()) + ","; };
    sfg_AddSQL("INSERT INTO CRORepMst ( "
               "[CO], [Branch], [CRONo], [TranDate], [Account], [Name], "
               "[Address1], [Address2], [Address3], [Address4], [PostCode], "
               "[Telephone1], [Telephone2], [Cellphone], [Contact], [EMail], "
               "[Reference], [ReceiveDate], [ReceiveMthd], [ReceiveItems], [Status], "
               "[DTODate], [DTOTime], [DTOUser], [DTOMacID]"
               " ) VALUES ( " +
               QuotedStr(gCO) + "," + QuotedStr(gBranch) + "," + text(edCRONo) + text(edTranDate) +
               text(edAccount) + text(edName) +
               text(edAddress1) + text(edAddress2) + text(edAddress3) + text(edAddress4) +
               text(edPostCode) +
               text(edTelephone1) + text(edTelephone2) + text(edCellphone) + text(edContact) +
               text(edEMail) +
               text(edReference) + text(edReceiveDate) +
               QuotedStr(wReceiveMthd) + "," + QuotedStr(0) + "," + QuotedStr(0) + "," +
               sfg_AddDTO(), "NEW");
}

// The account, the number, the count of items and the status are left out on purpose.
void TfrmCRO100A::UpdateData() {
    const auto text = [](const QLineEdit* edit) { return QuotedStr(edit->text()) + ", "; };
    sfg_AddSQL("UPDATE CRORepMst SET "
               "[TranDate]    = " + text(edTranDate) +
               "[Name]        = " + text(edName) +
               "[Address1]    = " + text(edAddress1) +
               "[Address2]    = " + text(edAddress2) +
               "[Address3]    = " + text(edAddress3) +
               "[Address4]    = " + text(edAddress4) +
               "[PostCode]    = " + text(edPostCode) +
               "[Telephone1]  = " + text(edTelephone1) +
               "[Telephone2]  = " + text(edTelephone2) +
               "[Cellphone]   = " + text(edCellphone) +
               "[Contact]     = " + text(edContact) +
               "[EMail]       = " + text(edEMail) +
               "[Reference]   = " + text(edReference) +
               "[ReceiveDate] = " + text(edReceiveDate) +
               "[ReceiveMthd] = " + QuotedStr(wReceiveMthd) + ", " +
               sfg_UpdateDTO() +
               " WHERE [RecID] = " + QuotedStr(xRecID), "NEW");
}

// An order goes with everything below it, the audit included.
void TfrmCRO100A::DeleteData() {
    sfg_AddSQL("DELETE FROM CRORepMst"
               " WHERE [RecID] = " + QuotedStr(xRecID), "NEW");
    for (const auto* table :
         {"CRORepItems", "CRORepItmFaults", "CRORepItmImages", "CRORepItmIntake",
          "CRORepItmProcess", "CRORepItmQuoteDet", "CRORepItmQuoteHdr", "CRORepItmAudit"}) {
        sfg_AddSQL(QString("DELETE FROM ") + table +
                   " WHERE [CO] = " + QuotedStr(gCO) +
                   "   AND [Branch] = " + QuotedStr(gBranch) +
                   "   AND [CRONo] = " + QuotedStr(edCRONo->text()), "");
    }
}
