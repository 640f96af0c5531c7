#include "repairs/CRO102A.h"

#include "data/DateTimeText.h"
#include "data/StatementText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<DetailField> processFields() {
    using namespace field;
    const FieldOptions wide = {.width = 36};
    return {
        note(u"In a customer repair order module, various process codes are used to track and "
             u"manage the different stages and actions involved in handling a repair order. "_s),
        text("edCRONo", u"Order #No"_s, {.readOnly = true, .loads = false}),
        amount("edItemNo", u"Item #No"_s, {.beside = true, .readOnly = true, .decimals = 0}),
        text("edDescription1", u"Description"_s, {.width = 40, .readOnly = true}),
        text("edSerialNo", u"Serial #No"_s, {.beside = true, .readOnly = true}),
        text("edTimeStamp", u"Time Stamp"_s, {.limit = 10, .readOnly = true}),
        codes("cmbTechCode", u"Technician"_s, u"CROTechMst"_s, u"*BLANK*"_s, wide),
        codes("cmbProcessCode", u"Process"_s, u"CROProcessMst"_s, u"*BLANK*"_s, wide),
        text("edProcessID", u"Process #ID"_s,
             {.readOnly = true, .emptyText = u"*system generated*"_s}),
        text("edNotes", u"Notes"_s, {.width = 60, .limit = 100}),
    };
}

// Nobody hands over the order and the item: a new step is stored without an order, under item 0.
DetailFacts processFacts() {
    return {
        .unit = u"CRO102A"_s,
        .caption = u"Workshop Centre: Item Processes"_s,
        .saveCaption = u"Save Process"_s,
        .table = "CRORepItmProcess",
        .errorNo = u"102A-001"_s,
        .fields = processFields(),
        .inserts = "CO Branch CRONo ItemNo TranDate TranTime TechCode ProcessCode ProcessID Notes",
        .updates = "TechCode ProcessCode Notes",
        .values = {{"TranDate", [] { return sfg_Date(0); }}, {"TranTime", sfg_Time}},
        .validatesDelete = false,
        .keyCapsBySeat = true,
    };
}

} // namespace

TfrmCRO102A::TfrmCRO102A(QWidget* parent)
    : DetailScreen(processFacts(), parent) {}

QStringList TfrmCRO102A::selectLines() const {
    return {
        "SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], * ",
        "  FROM CRORepItmProcess",
        " WHERE [RecID] = " + QuotedStr(xRecID),
    };
}

// A change takes a number too, shows it, and saves it nowhere.
bool TfrmCRO102A::Validation() {
    return checksPass() &&
           takeNumber("edProcessID", u"CROPRC"_s, u"Error generating repair order process id"_s);
}
