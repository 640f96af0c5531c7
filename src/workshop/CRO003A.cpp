#include "workshop/CRO003A.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// An amount takes more digits than the column.
bool isSequence(const QString& value) {
    bool fits = false;
    value.toInt(&fits);
    return fits;
}

std::vector<DetailField> processFields() {
    using namespace field;
    return {
        note(u"In a customer repair order module, various process codes are used to track and "
             u"manage the different stages and actions involved in handling a repair order. "_s),
        text("edProcessCode", u"Process Code"_s,
             {.width = 32,
              .limit = 10,
              .upperCase = true,
              .key = true,
              .emptyText = u"Enter the unique \"Process Code\""_s}),
        text("edDescription", u"Description"_s, {.width = 60, .limit = 100, .upperCase = true}),
        amount("edProcessSeq", u"Sequence"_s, {.limit = 20, .decimals = 0}),
    };
}

// The same step may come again in the work: a code is taken only together with its sequence.
DetailFacts processFacts() {
    return {
        .unit = u"CRO003A"_s,
        .caption = u"Workshop Centre: Process Code Management"_s,
        .saveCaption = u"Save Code"_s,
        .table = "CROProcessMst",
        .errorNo = u"003-001"_s,
        .fields = processFields(),
        .checks = {{"edProcessCode", isFilled, u"Please enter the process code."_s},
                   {"edDescription", isNotBlank, u"Please enter the process code description."_s},
                   {"edProcessSeq", isSequence, u"The sequence is too large."_s}},
        .unique = {"CO ProcessSeq ProcessCode",
                   u"Technician code already exists. Enter a unique one."_s, "edProcessCode"},
        .inserts = "CO ProcessSeq ProcessCode Description",
        .updates = "Description ProcessSeq",
        .firstInUpdate = "edDescription",
    };
}

} // namespace

TfrmCRO003A::TfrmCRO003A(QWidget* parent)
    : DetailScreen(processFacts(), parent) {}
