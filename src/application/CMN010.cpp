#include "application/CMN010.h"

#include "application/VersionCheck.h"
#include "data/Session.h"
#include "screens/SysFuncGlobal.h"
#include "ui/Events.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr MessageLook mismatch{"frmCMN010", "VELMARA : Program Version Mismatch", "version",
                               0xffb25e09, 0xffffffff};

/// Less its last four characters, where the system gives programs an extension.
QString withoutExtension(const QString& exeName) {
    const bool has = exeName.contains(QLatin1Char('.'));
    return has ? exeName.left(std::max(0, int(exeName.trimmed().size()) - 4)) : exeName.trimmed();
}

} // namespace

TfrmCMN010::TfrmCMN010(const QString& exeVersion, const QString& sysVersion)
    : MessageForm(mismatch)
    , xEXEVersion(exeVersion)
    , xSysVersion(sysVersion)
    , programName_(withoutExtension(gEXEName)) {
    auto* advice = new QLabel(
        tr("The version of this program differs from the version registered for the suite. Close "
           "ends the program, unless its own version is the newer one."),
        this);
    advice->setWordWrap(true);
    body().addWidget(advice, 1);
    addFact(QStringLiteral("lblEXEName"), tr("Program"), gEXEName);
    addFact(QStringLiteral("lblEXEVersion"), tr("This version"), exeVersion);
    addFact(QStringLiteral("lblSystemVersion"), tr("Registered version"), sysVersion);
    auto* btnClose = addButton({.name = QStringLiteral("btnClose"),
                                .caption = tr("Press [ENTER] to Close"),
                                .key = Qt::Key_Return,
                                .handler = [this] { btnCloseClick(); },
                                .alsoKeys = {Qt::Key_Escape},
                                .cap = QString()});
    btnClose->setFocus();
    addKey(QStringLiteral("acIgnore"), Qt::CTRL | Qt::Key_F12, &TfrmCMN010::acIgnoreExecute);
    addKey(QStringLiteral("acUpdateVersion"), Qt::CTRL | Qt::SHIFT | Qt::Key_U, nullptr);
    centre(0);
}

void TfrmCMN010::addKey(const QString& name, const QKeySequence& key,
                        void (TfrmCMN010::*handler)()) {
    auto* action = new QAction(this);
    action->setObjectName(name);
    action->setShortcut(key);
    if (handler != nullptr) {
        velcro::ui::connectHandler(action, &QAction::triggered, this, handler);
    }
    addAction(action);
}

// A version that is no number leaves the form open: the error is shown, and the user decides.
void TfrmCMN010::btnCloseClick() {
    xReturn = QStringLiteral("START");
    if (CheckNewVersion()) {
        xReturn = QStringLiteral("OK");
    }
    reject();
}

void TfrmCMN010::acIgnoreExecute() {
    xReturn = QStringLiteral("OK");
    accept();
}

bool TfrmCMN010::CheckNewVersion() {
    return isHigherVersion(xEXEVersion, xSysVersion) && Update_Version(programName_, xEXEVersion);
}

bool sfg_VersionDlg() {
    TfrmCMN010 form(gVersion, gSystemVersion);
    velcro::ui::runModal(form);
    velcro::ui::pumpEvents();
    return form.xReturn == QLatin1String("OK");
}
