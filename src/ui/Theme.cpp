#include "ui/Theme.h"

#include <QApplication>
#include <QStyleFactory>

namespace velcro::ui {

void applyTheme(QApplication& application) {
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

} // namespace velcro::ui
