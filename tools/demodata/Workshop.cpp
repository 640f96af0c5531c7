#include "Workshop.h"

#include "InsertScript.h"
#include "Sample.h"

#include <string_view>

namespace velcro::demo {

namespace {

template <typename Codes>
void addCodes(InsertScript& script, const char* company, const char* type, const Codes& codes) {
    for (const auto& code : codes) {
        script.add({company, type, code.code, code.description, code.notes});
    }
}

} // namespace

void writeWorkshopCodes(std::ostream& out) {
    InsertScript codes("CROCodeMaster", {"CO", "CodeType", "Code", "Description", "Notes"});
    InsertScript people("CROTechMst", {"CO", "TechCode", "TechName", "Cellphone"});
    InsertScript steps("CROProcessMst", {"CO", "ProcessSeq", "ProcessCode", "Description"});
    for (const char* company : {"01", "02"}) {
        addCodes(codes, company, "F", faultCodes);
        addCodes(codes, company, "I", intakeCodes);
        addCodes(codes, company, "S", statusCodes);
        for (const auto& technician : technicians) {
            people.add({company, technician.code, technician.name, technician.cellphone});
        }
        int sequence = 0;
        for (const auto& step : processCodes) {
            steps.add({company, sequence += 10, step.code, step.description});
        }
    }
    codes.writeTo(out);
    people.writeTo(out);
    steps.writeTo(out);
}

} // namespace velcro::demo
