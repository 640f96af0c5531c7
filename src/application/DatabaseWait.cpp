#include "application/DatabaseWait.h"

#include "platform/sqlserver/Waiting.h"
#include "ui/WaitNotice.h"

#include <QCoreApplication>

using velcro::sql::WaitFor;

namespace {

QString told(WaitFor what) {
    return what == WaitFor::Server
               ? QCoreApplication::translate("DatabaseWait", "Waiting for the server to answer.")
               : QCoreApplication::translate("DatabaseWait",
                                             "Waiting for another program to finish saving.");
}

} // namespace

void watchDatabaseWaits() {
    static velcro::ui::WaitNotice notice;
    velcro::sql::setWaitHook({
        [](WaitFor what, std::chrono::milliseconds waited) {
            return notice.goOn(told(what), waited.count());
        },
        [] { notice.over(); },
    });
}
