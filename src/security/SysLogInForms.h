// Picks the log-in screen of this seat.
#pragma once

#include <QString>

/// By the fingerprint settings of the seat: "N" the standard screen, "Y" the reader's screen with
/// the standard one to fall back on, anything else none at all. False when it was cancelled. After
/// a log-in the day's end-of-day run is looked after.
bool slif_Show_LogInForm();

// Each opens its screen and returns how it ended: "OK" or "CANCEL".
QString slif_Standard_Login_Form();
QString slif_DP_Biometric_Login_Form();
QString slif_ZKT_Biometric_Login_Form();
