#include "screens/LookUp.h"

#include "screens/DetailScreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::connectHandler;
using velcro::ui::guarded;

namespace {

bool isEnter(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           !key.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

LookUp::LookUp(DetailScreen& screen, QLineEdit& edit, Rules rules)
    : QObject(&screen)
    , screen_(screen)
    , edit_(edit)
    , rules_(std::move(rules)) {
    edit.installEventFilter(this);
    if (auto* button = screen.findChild<QToolButton*>(u"btn"_s + edit.objectName().mid(2))) {
        connectHandler(button, &QToolButton::clicked, this, &LookUp::browseClicked);
    }
}

void LookUp::browseClicked() {
    screen_.touch();
    if (!rules_.browse({})) {
        stay();
    }
}

// The keys that lead on are answered before the focus leaves, so that what is typed right after them
// meets the control that the answer leads to.
bool LookUp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool enter = isEnter(key);
        const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
        bool goesOn = true;
        if (enter || (tab && rules_.onLeaving)) {
            guarded([&] {
                goesOn = false;
                goesOn = run(tab || !rules_.onEnter);
                if (goesOn && enter) {
                    screen_.goOn();
                }
            });
        }
        return enter || !goesOn;
    }
    if (event->type() == QEvent::FocusOut && rules_.onLeaving) {
        const bool byMouse = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        QMetaObject::invokeMethod(
            this, [this, byMouse] { guarded([&] { left(byMouse); }); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

// A page that was turned over takes the edit out of sight with it.
void LookUp::left(bool byMouse) {
    if (byMouse || (screen_.isVisible() && !edit_.isVisible())) {
        run(true);
    }
}

bool LookUp::run(bool leaving) {
    screen_.clearRefusal();
    const bool browses = edit_.text().trimmed() == "?"_L1 && (!leaving || rules_.browsesOnLeaving);
    if (browses) {
        rules_.browse({});
    }
    const bool blank = edit_.text().trimmed().isEmpty();
    if (blank && !rules_.findsBlank && !(browses && rules_.findsAfterBrowse)) {
        return leaving || stay();
    }
    Answer answer = rules_.find();
    if (answer == Unknown) {
        if (blank || !rules_.browsesUnknown || !rules_.browse(edit_.text())) {
            return stayUnknown(blank ? rules_.blank : rules_.unknown);
        }
        answer = rules_.find();
    }
    return answer == Found || stay();
}

bool LookUp::stayUnknown(const QString& refusal) {
    if (!refusal.isEmpty()) {
        screen_.refuse(&edit_, refusal);
    }
    return stay();
}

// The next scan takes the place of the text that was refused.
bool LookUp::stay() {
    edit_.setFocus();
    edit_.selectAll();
    return false;
}
