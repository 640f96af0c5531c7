#include "platform/seat/HighContrast.h"

#include "platform/seat/WindowsApi.h"

namespace velcro::seat {

bool wantsHighContrast() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace velcro::seat
