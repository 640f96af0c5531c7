#include "screens/Screen.h"

#include "data/Settings.h"
#include "platform/seat/SystemMenu.h"
#include "screens/ScreenServices.h"
#include "screens/SysStatusBar.h"

#include <QGuiApplication>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

using velcro::ui::KeyButton;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int messagePanel = 1; // message panels are counted from here, whatever stands before them
constexpr QSize largestSize(1600, 1000);

} // namespace

Screen::Screen(const QString& unit, const QString& caption, QWidget* parent)
    : QDialog(parent)
    , unit_(unit) {
    setObjectName(QStringLiteral("Tfrm") + unit);
    setWindowTitle(caption);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    body_ = new QVBoxLayout;
    whole->addLayout(body_, 1);
    makeStatusBar();
    whole->addWidget(statusBar_);
    resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(largestSize));
    create(); // winId() by itself would give every control of the parent a window of its own
    inSystemMenu_ = velcro::seat::appendToSystemMenu(winId(), techHelpCommand,
                                                     QStringLiteral("Technical Reference"));
}

void Screen::makeStatusBar() {
    using velcro::ui::psHTML;
    using velcro::ui::psText;
    statusBar_ = new velcro::ui::StatusBar(this);
    statusBar_->addPanel(psHTML, unit_);
    statusBar_->addPanel(psText, windowTitle());
    statusBar_->addPanel(psHTML, {}, -1);
    statusBar_->setPanelDrawer(
        [](velcro::ui::StatusBar& bar, QPainter& painter, int panel, const QRect& rect) {
            sfg_StatusBarDisplay(bar, painter, panel, rect);
        });
}

void Screen::displayError(const QString& message) {
    displayMessage(QStringLiteral("Error"), message);
}

void Screen::displayMessage(const QString& type, const QString& message) {
    sfg_DisplayBar(type, message, *statusBar_, messagePanel);
}

// Beside what the control says of itself.
void Screen::describe(QWidget& control, const QString& refusal) {
    constexpr auto own = "ownDescription";
    if (!control.property(own).isValid()) {
        control.setProperty(own, control.accessibleDescription());
    }
    const auto ownText = control.property(own).toString();
    control.setAccessibleDescription(refusal.isEmpty() ? ownText
                                                       : (refusal + u' ' + ownText).trimmed());
}

void Screen::resetStatusBar() {
    sfg_ResetStatusBar(*statusBar_, messagePanel);
}

KeyButton* Screen::newTechHelpButton() {
    auto* button = makeButton(*this, {.name = u"btnTechHelp"_s,
                                      .caption = u"?"_s,
                                      .handler = [this] { techHelp(); },
                                      .hint = u"Technical Reference"_s});
    button->setAccessibleName(u"Technical Reference"_s);
    button->setRound(true);
    button->setEnabled(bool(gScreenServices.techHelp));
    button->setVisible(!inSystemMenu_);
    return button;
}

void Screen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        velcro::ui::guarded([this] { FormShow(); });
    }
}

void Screen::hideKeyCaps() {
    for (auto* button : findChildren<KeyButton*>()) {
        if (!button->keyCap().isEmpty()) {
            button->setKeyCap({});
        }
    }
}

void Screen::hideKeyCapsBySeat() {
    if (sfvel_GetParam(QStringLiteral("TIL"), 62) == QLatin1String("Y")) {
        hideKeyCaps();
    }
}

void Screen::techHelp() {
    if (gScreenServices.techHelp) {
        gScreenServices.techHelp(unit_);
    }
}

bool Screen::nativeEvent(const QByteArray& eventType, void* message, qintptr* result) {
    if (velcro::seat::systemMenuCommand(eventType, message) != techHelpCommand) {
        return QDialog::nativeEvent(eventType, message, result);
    }
    velcro::ui::guarded([this] { techHelp(); });
    *result = 0;
    return true;
}
