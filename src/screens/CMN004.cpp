#include "screens/CMN004.h"

#include "screens/SysFuncGlobal.h"
#include "ui/Events.h"
#include "ui/Modal.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr MessageLook question{"frmCMN004", "System Prompt", "question", 0xff3a5ea4, 0xffffffff};
}

// Neither button is the default one: a hasty Enter must not answer.
TfrmCMN004::TfrmCMN004(const QString& title, const QString& message)
    : MessageForm(question) {
    auto* memTitle = new QLabel(title, this);
    memTitle->setObjectName(QStringLiteral("memTitle"));
    memTitle->setTextFormat(Qt::PlainText);
    memTitle->setWordWrap(true);
    QFont font = memTitle->font();
    font.setPointSizeF(font.pointSizeF() + 2);
    font.setBold(true);
    memTitle->setFont(font);
    body().addWidget(memTitle);
    addText(QStringLiteral("memMessage"), QStringLiteral("\r") + message, tr("Question"));
    addButton({.name = QStringLiteral("btnYes"),
               .caption = tr(" Yes"),
               .key = Qt::Key_Y,
               .handler = [this] { choose(true); }});
    addButton({.name = QStringLiteral("btnNo"),
               .caption = tr(" No"),
               .key = Qt::Key_N,
               .handler = [this] { choose(false); }});
    setFocus();
}

void TfrmCMN004::choose(bool yes) {
    answer_ = yes;
    accept();
}

bool sfg_QuestionDlg(const QString& xTitle, const QString& xMessage) {
    TfrmCMN004 form(xTitle, xMessage);
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
    return form.answer();
}
