#include "application/CMN012.h"

#include "screens/Terminate.h"
#include "ui/Events.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr MessageLook shutdown{"frmCMN012", "Application Shutdown", "power", 0xff7a2e8c,
                               0xffffffff};
}

TfrmCMN012::TfrmCMN012()
    : MessageForm(shutdown) {
    addText(QStringLiteral("memMessage"),
            tr("This application has been idle and is shutting down..."), tr("Message"));
    gauge_ = new QProgressBar(this);
    gauge_->setObjectName(QStringLiteral("gauge"));
    gauge_->setAccessibleName(tr("Seconds left"));
    gauge_->setRange(0, countFrom);
    gauge_->setFormat(QStringLiteral("%v"));
    gauge_->setMinimumHeight(36);
    body().addWidget(gauge_);
    addButton({.name = QStringLiteral("btnReturn"),
               .caption = tr("Return to Application"),
               .key = Qt::Key_Escape,
               .handler = [this] { returnToApplication(); },
               .role = ButtonFacts::Role::Main});
    Timer1_.setInterval(1000);
    velcro::ui::connectHandler(&Timer1_, &QTimer::timeout, this, &TfrmCMN012::tick);
}

void TfrmCMN012::showEvent(QShowEvent* event) {
    MessageForm::showEvent(event);
    sCnt_ = countFrom;
    gauge_->setValue(sCnt_);
    Timer1_.start();
}

void TfrmCMN012::tick() {
    Timer1_.stop();
    --sCnt_;
    if (sCnt_ < 1) {
        reject();
        terminateApplication();
        return;
    }
    gauge_->setValue(sCnt_);
    velcro::ui::pumpEvents();
    if (isVisible()) {
        Timer1_.start();
    }
}

void TfrmCMN012::returnToApplication() {
    Timer1_.stop();
    accept();
}

void sfg_Application_ShutDown() {
    TfrmCMN012 form;
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
}
