#include "support/FocusTold.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>

namespace velcro::test {

namespace {
QStringList told;
} // namespace

QStringList focusTold(const std::function<void()>& work) {
    told.clear();
    auto* system = QGuiApplicationPrivate::platformIntegration()->accessibility();
    system->setActive(true); // or nobody is told anything
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::Focus && event->accessibleInterface() != nullptr) {
            told << event->accessibleInterface()->text(QAccessible::Name);
        }
    });
    work();
    QAccessible::installUpdateHandler(before);
    system->setActive(false);
    return told;
}

} // namespace velcro::test
