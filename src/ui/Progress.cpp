#include "ui/Progress.h"

#include "ui/Events.h"
#include "ui/Modal.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace velcro::ui {

namespace {
constexpr int betweenPaints = 50; // milliseconds
}

Progress::Progress(const QString& title, int total)
    : title_(title)
    , total_(total) {
    since_.start();
    sincePaint_.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Progress::~Progress() {
    QApplication::restoreOverrideCursor();
    if (form_) {
        hideOverWork(*form_);
    }
}

bool Progress::isCancelled() const {
    return cancelled_;
}

bool Progress::isShown() const {
    return form_ && form_->isVisible();
}

bool Progress::step(int done, const QString& what) {
    const bool late = since_.elapsed() >= patience;
    if (cancelled_ || !late || (form_ && sincePaint_.elapsed() < betweenPaints)) {
        return !cancelled_;
    }
    if (!form_) {
        show();
    }
    what_->setText(what);
    bar_->setValue(total_ > 0 ? done : 0);
    const StopWatch stop(*form_->findChild<QPushButton*>(QStringLiteral("btnCancel")));
    pumpEvents();
    sincePaint_.restart();
    return !cancelled_;
}

void Progress::show() {
    form_ = std::make_unique<QDialog>(QApplication::activeWindow());
    form_->setObjectName(QStringLiteral("Progress"));
    form_->setWindowTitle(title_);
    form_->setMinimumWidth(420);
    what_ = new QLabel(form_.get());
    what_->setObjectName(QStringLiteral("lblWhat"));
    what_->setTextFormat(Qt::PlainText);
    what_->setWordWrap(true);
    bar_ = new QProgressBar(form_.get());
    bar_->setObjectName(QStringLiteral("gauge"));
    bar_->setAccessibleName(title_);
    bar_->setRange(0, total_);
    bar_->setMinimumHeight(36);
    auto* cancel = new QPushButton(QObject::tr("Cancel  [Esc]"), form_.get());
    cancel->setObjectName(QStringLiteral("btnCancel"));
    cancel->setMinimumSize(140, 44);
    QObject::connect(cancel, &QPushButton::clicked, form_.get(), &QDialog::reject);
    QObject::connect(form_.get(), &QDialog::rejected, form_.get(), [this] { cancelled_ = true; });
    auto* layout = new QVBoxLayout(form_.get());
    layout->addWidget(what_);
    layout->addWidget(bar_);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    showOverWork(*form_);
}

} // namespace velcro::ui
