// The vocabulary of the workshops: codes that orders use.
#pragma once

#include <array>

namespace velcro::demo {

struct WorkshopCode
{
    const char* code;
    const char* description;
    const char* notes;
};

struct Technician
{
    const char* code;
    const char* name;
    const char* cellphone;
};

inline constexpr std::array<WorkshopCode, 14> faultCodes = {{
    {"NOPOWER", "DOES NOT SWITCH ON", ""},
    {"TRIPS", "TRIPS THE MAINS", "TEST ON ISOLATED SUPPLY"},
    {"NOISE", "NOISY OR RATTLING", ""},
    {"OVERHEAT", "OVERHEATS", "CHECK VENTS"},
    {"SCREEN", "SCREEN CRACKED OR DARK", ""},
    {"BATTERY", "BATTERY DOES NOT HOLD", ""},
    {"CHARGE", "DOES NOT CHARGE", "CHARGER TO BE HANDED IN"},
    {"LEAK", "LEAKS WATER OR OIL", ""},
    {"SOUND", "NO SOUND OR DISTORTED", ""},
    {"REMOTE", "REMOTE CONTROL NOT WORKING", ""},
    {"BLADE", "BLADE OR BIT BLUNT", ""},
    {"SWITCH", "SWITCH OR TRIGGER BROKEN", ""},
    {"CABLE", "CABLE DAMAGED", "DO NOT PLUG IN"},
    {"INTERMIT", "FAULT COMES AND GOES", "ASK WHEN IT HAPPENS"},
}};

inline constexpr std::array<WorkshopCode, 10> intakeCodes = {{
    {"BOX", "ORIGINAL BOX", ""},
    {"CHARGER", "CHARGER OR POWER SUPPLY", ""},
    {"MANUAL", "MANUAL", ""},
    {"REMOTE", "REMOTE CONTROL", "WITH BATTERIES"},
    {"INVOICE", "PROOF OF PURCHASE", ""},
    {"SCRATCH", "SCRATCHES SEEN AT INTAKE", "PHOTOGRAPH"},
    {"DENT", "DENTS SEEN AT INTAKE", "PHOTOGRAPH"},
    {"LIQUID", "TRACES OF LIQUID", ""},
    {"BAG", "CARRY BAG", ""},
    {"DATA", "CUSTOMER ASKS TO KEEP DATA", "NO RESET WITHOUT CONSENT"},
}};

inline constexpr std::array<WorkshopCode, 6> statusCodes = {{
    {"0", "BOOKED IN", ""},
    {"1", "IN THE WORKSHOP", ""},
    {"2", "WAITING FOR THE CUSTOMER", ""},
    {"3", "WAITING FOR PARTS", ""},
    {"8", "READY FOR COLLECTION", ""},
    {"9", "COLLECTED", ""},
}};

inline constexpr std::array<Technician, 7> technicians = {{
    {"T01", "KASIMIR THOLE", "082-555-0104"},
    {"T02", "RINDA OSTRAVANE", "083-555-0142"},
    {"T03", "TAMMON LUNDCROFT", "0725550143"},
    {"T04", "ILWYN GRUNSTADT", "084-555-0144"},
    {"T05", "SORSIMIR PELLHORN", ""},
    {"T06", "VELDORA WICKMERE", "071-555-0146"},
    {"OUT", "SENT OUT TO THE MAKER", ""},
}};

/// In the order of the work.
inline constexpr std::array<WorkshopCode, 9> processCodes = {{
    {"RECEIVE", "RECEIVED IN WORKSHOP", ""},
    {"DIAGNOSE", "FAULT FINDING", ""},
    {"QUOTE", "QUOTATION SENT", ""},
    {"APPROVE", "QUOTATION ACCEPTED", ""},
    {"PARTS", "PARTS ORDERED", ""},
    {"REPAIR", "REPAIR", ""},
    {"TEST", "TEST RUN", ""},
    {"CLEAN", "CLEANED AND PACKED", ""},
    {"NOTIFY", "CUSTOMER NOTIFIED", ""},
}};

} // namespace velcro::demo
