#include "platform/seat/Shell.h"

#include <QDesktopServices>
#include <QUrl>

namespace velcro::seat {

namespace {
std::function<bool(const QString&)> otherOpener;
}

bool openWithDesktop(const QString& target) {
    return otherOpener ? otherOpener(target)
                       : QDesktopServices::openUrl(QUrl::fromUserInput(target));
}

void setDesktopOpener(const std::function<bool(const QString&)>& opener) {
    otherOpener = opener;
}

} // namespace velcro::seat
