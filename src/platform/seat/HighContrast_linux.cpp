#include "platform/seat/HighContrast.h"

#include <QSettings>
#include <QStandardPaths>

namespace velcro::seat {

// Desktops tell it by the name of their theme.
bool wantsHighContrast() {
    const auto path =
        QStandardPaths::locate(QStandardPaths::ConfigLocation, "gtk-3.0/settings.ini");
    auto theme = qEnvironmentVariable("GTK_THEME");
    if (theme.isEmpty() && !path.isEmpty()) {
        theme = QSettings(path, QSettings::IniFormat).value("Settings/gtk-theme-name").toString();
    }
    return theme.startsWith(QLatin1String("HighContrast"));
}

} // namespace velcro::seat
