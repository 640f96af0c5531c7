#include "screens/CMN008.h"

#include "screens/SysFuncGlobal.h"
#include "ui/Events.h"
#include "ui/Modal.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr MessageLook refused{"frmCMN008", "Security Access", "lock", 0xffa63232, 0xffffffff};
}

TfrmCMN008::TfrmCMN008(const QString& errorNo, const QString& prgName, const QString& routine,
                       int xLeft)
    : MessageForm(refused) {
    auto* advice = new QLabel(tr("Contact the System Administrator for Access Rights"), this);
    advice->setObjectName(QStringLiteral("lblAdvice"));
    advice->setWordWrap(true);
    QFont font = advice->font();
    font.setPointSizeF(font.pointSizeF() + 2);
    advice->setFont(font);
    body().addWidget(advice, 1);
    addFact(QStringLiteral("lblErrorNo"), tr("Access Number"), errorNo);
    addFact(QStringLiteral("lblPrgName"), tr("Program"), prgName);
    addFact(QStringLiteral("lblRoutine"), tr("Routine"), routine);
    addCloseButton();
    centre(xLeft);
}

void sfg_AccessDlg(const QString& xErrorNo, const QString& xPrgName, const QString& xRoutine,
                   int xLeft) {
    TfrmCMN008 form(xErrorNo, xPrgName, xRoutine, xLeft);
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
}
