#include "screens/CMN001.h"

#include "data/Prompts.h"
#include "data/Session.h"
#include "screens/SysFuncGlobal.h"
#include "screens/Terminate.h"
#include "ui/Events.h"
#include "ui/Handler.h"
#include "ui/MessageBox.h"
#include "ui/Modal.h"
#include "ui/StatusBar.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using velcro::ui::StatusBar;

namespace {

constexpr MessageLook failure{"frmCMN001", "System Error", "error", 0xffb3261e, 0xffffffff};

void showErrorForm(const QString& errorNo, const QString& message, const QString& prgName,
                   const QString& routine) {
    TfrmCMN001 form(errorNo, message, prgName, routine);
    gErrorLogMsg.clear();
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
}

void showErrorBox(const QString& title, const QString& text) {
    velcro::ui::showMessageBox(QApplication::activeWindow(), title, text);
}

} // namespace

TfrmCMN001::TfrmCMN001(const QString& errorNo, const QString& message, const QString& prgName,
                       const QString& routine)
    : MessageForm(failure) {
    body().setSpacing(3);
    auto* where = new QHBoxLayout; // one line, so that the text has room on a form this low
    body().addLayout(where);
    addFact(QStringLiteral("lblErrorNo"), tr("Error Number"), errorNo, where);
    addFact(QStringLiteral("lblPrgName"), tr("Program"), prgName, where);
    addFact(QStringLiteral("lblRoutine"), tr("Routine"), routine, where);
    auto* edMessage =
        addText(QStringLiteral("edMessage"), QStringLiteral("\r") + message, tr("Error"));
    edMessage->setMinimumHeight(60);
    const bool hasLog = !gErrorLogMsg.trimmed().isEmpty();
    addFact(QStringLiteral("lblLogMsg"), {}, hasLog ? gErrorLogMsg : QString())->setVisible(hasLog);
    addComments(gErrorComment);
    const auto terminate = [this] {
        reject();
        terminateApplication();
    };
    auto* btnAppTerminate = addButton({.name = QStringLiteral("btnAppTerminate"),
                                       .caption = tr("Terminate Application"),
                                       .handler = terminate,
                                       .role = ButtonFacts::Role::Danger});
    buttons().insertWidget(0, btnAppTerminate);
    addCloseButton();
    addStatusBar();
    resize(620, gErrorComment.trimmed().isEmpty() ? heightWithoutComments : 470);
}

void TfrmCMN001::addComments(const QString& comment) {
    auto* pnlComments = new QGroupBox(tr("Suggestions / Solutions"), this);
    pnlComments->setObjectName(QStringLiteral("pnlComments"));
    auto* memComment =
        addText(QStringLiteral("memComment"), QStringLiteral("\r") + comment, tr("Suggestions"));
    auto* inside = new QVBoxLayout(pnlComments);
    inside->addWidget(memComment);
    body().addWidget(pnlComments, 1);
    pnlComments->setVisible(!comment.trimmed().isEmpty());
}

void TfrmCMN001::addStatusBar() {
    auto* bar = new StatusBar(this);
    bar->setObjectName(QStringLiteral("StatusBar1"));
    bar->addPanel(velcro::ui::psText, QStringLiteral("CMN001"));
    bar->addPanel(velcro::ui::psText, tr("Version : ") + gVersion, -1);
    layout()->addWidget(bar);
}

void connectPrompts() {
    gPrompts.errorForm = showErrorForm;
    gPrompts.errorBox = showErrorBox;
    velcro::ui::setErrorDisplay([](const QString& message) {
        showErrorBox(gEXETitle.trimmed().isEmpty() ? QApplication::applicationName() : gEXETitle,
                     message);
    });
}
