#include "platform/seat/RegionalFormats.h"

#include "platform/seat/WindowsApi.h"

namespace velcro::seat {

void forceSystemFormats() {
    const LCID locale = GetSystemDefaultLCID();
    SetLocaleInfoW(locale, LOCALE_SDATE, L"/");
    SetLocaleInfoW(locale, LOCALE_SSHORTDATE, L"yyyy/MM/dd");
    SetLocaleInfoW(locale, LOCALE_STIMEFORMAT, L"HH:mm:ss");
    SetLocaleInfoW(locale, LOCALE_SDECIMAL, L".");
    SetLocaleInfoW(locale, LOCALE_STHOUSAND, L" ");
}

} // namespace velcro::seat
