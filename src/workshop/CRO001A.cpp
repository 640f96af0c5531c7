#include "workshop/CRO001A.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<DetailField> codeFields() {
    using namespace field;
    return {
        note(u"The maintain system codes screen in Velmara Retail Software allows users to manage "
             u"the standard codes used in a system. These codes include: intake codes and fault "
             u"codes."_s),
        combo("cmbCodeType", u"Code Type"_s,
              {u"F - FAULTS"_s, u"I - INTAKES"_s, u"S - STATUSES"_s}),
        text("edCode", u"System Code"_s,
             {.width = 32,
              .limit = 10,
              .upperCase = true,
              .key = true,
              .emptyText = u"Enter the unique \"System Code\""_s}),
        text("edDescription", u"Description"_s, {.width = 60, .limit = 100, .upperCase = true}),
        text("edNotes", u"Notes"_s, {.width = 60, .limit = 100, .upperCase = true}),
    };
}

// The type can be chosen anew on a code that is there, and an update leaves it all the same.
DetailFacts codeFacts() {
    return {
        .unit = u"CRO001A"_s,
        .caption = u"Workshop Centre: System Code Management"_s,
        .saveCaption = u"Save Code"_s,
        .table = "CROCodeMaster",
        .errorNo = u"001-001"_s,
        .fields = codeFields(),
        .checks = {{"cmbCodeType", isNotBlank, u"Please select the type of code."_s},
                   {"edCode", isFilled, u"Please enter the system code."_s},
                   {"edDescription", isNotBlank, u"Please enter the system code description."_s}},
        .unique = {"CO CodeType Code", u"System code already exists. Enter a unique one."_s,
                   "cmbCodeType"},
        .inserts = "CO CodeType Code Description Notes",
        .updates = "Description Notes",
        .firstInUpdate = "edDescription",
    };
}

} // namespace

TfrmCRO001A::TfrmCRO001A(QWidget* parent)
    : DetailScreen(codeFacts(), parent) {}
