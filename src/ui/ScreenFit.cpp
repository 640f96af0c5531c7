#include "ui/ScreenFit.h"

#include "ui/Handler.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr int around = 10; // what is seen beside the control that is worked in

const QString fitName = QStringLiteral("ScreenFit");

class ScreenFit : public QObject
{
public:
    explicit ScreenFit(QWidget& window)
        : QObject(&window)
        , window_(window) {
        setObjectName(fitName);
        window.installEventFilter(this);
        fit();
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
        case QEvent::Show:
            // After the window has found its own place.
            QMetaObject::invokeMethod(
                this, [this] { fit(); }, Qt::QueuedConnection);
            break;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowActivate:
            // A user who drags the window elsewhere does not change its frame.
            if (window_.isVisible() && frame() != frame_) {
                fit();
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    QSize frame() const { return window_.frameGeometry().size() - window_.size(); }

    void fit() {
        frame_ = frame();
        const QRect room = window_.screen()->availableGeometry();
        window_.resize(window_.size().boundedTo(room.size() - frame_));
        if (!window_.isVisible()) {
            return;
        }
        const QRect whole = window_.frameGeometry();
        const QPoint lowest(room.right() + 1 - whole.width(), room.bottom() + 1 - whole.height());
        const QPoint place(std::max(room.left(), std::min(whole.left(), lowest.x())),
                           std::max(room.top(), std::min(whole.top(), lowest.y())));
        if (place != whole.topLeft()) {
            window_.move(place);
        }
    }

    QWidget& window_;
    QSize frame_;
};

} // namespace

void keepOnScreen(QWidget& window) {
    if (window.findChild<QObject*>(fitName, Qt::FindDirectChildrenOnly) == nullptr) {
        new ScreenFit(window);
    }
}

ScrollPage::ScrollPage(QWidget* form, QWidget* parent)
    : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(form);
    // However the focus got there.
    connectHandler(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now)) {
            bringIntoSight(*now);
        }
    });
}

void ScrollPage::bringIntoSight(const QWidget& control) {
    const QRect place(control.mapTo(widget(), QPoint()), control.size());
    ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + around,
                  place.height() / 2 + around);
}

// Its own size follows the form's.
bool ScrollPage::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::event(event);
}

QSize ScrollPage::sizeHint() const {
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

QSize ScrollPage::minimumSizeHint() const {
    const int bar = verticalScrollBar()->sizeHint().width();
    return {std::min(widget()->minimumSizeHint().width() + bar, 6 * touchHeight),
            std::min(widget()->minimumSizeHint().height(), 2 * touchHeight)};
}

} // namespace velcro::ui
