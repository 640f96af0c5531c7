#include "workshop/CRO002A.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<DetailField> technicianFields() {
    using namespace field;
    return {
        note(u"The workshop's repair team, consisting of a manager, technicians, and support "
             u"staff, handles customer appliance and device repairs."_s),
        text("edTechCode", u"Technician Code"_s,
             {.width = 32,
              .limit = 10,
              .upperCase = true,
              .key = true,
              .emptyText = u"Enter the unique \"Technician Code\""_s}),
        text("edTechName", u"Technician Name"_s, {.width = 60, .limit = 100, .upperCase = true}),
        text("edCellphone", u"Cellphone"_s, {.limit = 20}),
    };
}

// Refusals and the number of a failed read are those of the system codes, which users know.
DetailFacts technicianFacts() {
    return {
        .unit = u"CRO002A"_s,
        .caption = u"Workshop Centre: Technician Management"_s,
        .saveCaption = u"Save Technician"_s,
        .table = "CROTechMst",
        .errorNo = u"001-001"_s,
        .fields = technicianFields(),
        .checks = {{"edTechCode", isFilled, u"Please enter the system code."_s},
                   {"edTechName", isNotBlank, u"Please enter the system code description."_s}},
        .unique = {"CO TechCode", u"Technician code already exists. Enter a unique one."_s,
                   "edTechCode"},
        .inserts = "CO TechCode TechName Cellphone",
        .updates = "TechName Cellphone",
        .firstInUpdate = "edTechName",
    };
}

} // namespace

TfrmCRO002A::TfrmCRO002A(QWidget* parent)
    : DetailScreen(technicianFacts(), parent) {}
