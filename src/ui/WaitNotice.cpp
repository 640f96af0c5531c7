#include "ui/WaitNotice.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace velcro::ui {

bool WaitNotice::goOn(const QString& text, qint64 waitedMilliseconds) {
    if (!hold_) {
        hold_.emplace();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    if (!notice_ && waitedMilliseconds >= patience) {
        show(text);
    }
    std::optional<StopWatch> stop;
    if (notice_) {
        stop.emplace(*notice_->findChild<QPushButton*>());
    }
    pumpPaint();
    return !stopped_;
}

void WaitNotice::over() {
    if (!hold_) {
        return;
    }
    QApplication::restoreOverrideCursor();
    stopped_ = false;
    if (notice_) {
        notice_->hide();
        notice_->deleteLater();
        notice_.clear();
    }
    hold_.reset();
}

// A part of the window and no form: the keyboard stays where the user left it.
void WaitNotice::show(const QString& text) {
    auto* window = QApplication::activeWindow();
    window = window != nullptr ? window : QApplication::activeModalWidget();
    if (window == nullptr) {
        return;
    }
    notice_ = new QFrame(window);
    notice_->setObjectName(QStringLiteral("WaitNotice"));
    notice_->setFrameShape(QFrame::StyledPanel);
    notice_->setAutoFillBackground(true);
    auto* told = new QLabel(text, notice_);
    told->setObjectName(QStringLiteral("lblWait"));
    told->setTextFormat(Qt::PlainText);
    auto* button = new QPushButton(QObject::tr("Stop waiting  [Esc]"), notice_);
    button->setObjectName(QStringLiteral("btnStopWaiting"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setMinimumHeight(44);
    QObject::connect(button, &QPushButton::clicked, notice_, [this] { stopped_ = true; });
    auto* layout = new QVBoxLayout(notice_);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(12);
    layout->addWidget(told);
    layout->addWidget(button, 0, Qt::AlignCenter);
    notice_->adjustSize();
    notice_->move((window->width() - notice_->width()) / 2,
                  (window->height() - notice_->height()) / 2);
    notice_->show();
    notice_->raise();
}

} // namespace velcro::ui
