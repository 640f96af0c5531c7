#include "application/ServiceWait.h"

#include "messaging/Breathing.h"
#include "platform/http/Waiting.h"
#include "ui/Events.h"
#include "ui/WaitNotice.h"

#include <QCoreApplication>

void watchServiceWaits() {
    static velcro::ui::WaitNotice notice;
    gLetScreensPaint = velcro::ui::pumpEvents;
    velcro::http::setWaitHook({
        [](std::chrono::milliseconds waited) {
            return notice.goOn(QCoreApplication::translate(
                                   "ServiceWait", "Waiting for the message service to answer."),
                               waited.count());
        },
        [] { notice.over(); },
    });
}
