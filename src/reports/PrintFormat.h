// Session values that the launch of a report fills: how the letterhead is printed, and which report
// it is.
#pragma once

#include <QString>

inline QString gPrtFmt; // "W" takes the letterhead from the values below
inline QString gPrtCOName, gPrtCOAdd1, gPrtCOAdd2, gPrtCOAdd3, gPrtCOAdd4;
inline QString gPrtCOTel, gPrtCOFax, gPrtCOEMail;

inline QString gRepName, gRepDesc; // code and title
