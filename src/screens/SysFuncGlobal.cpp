#include "screens/SysFuncGlobal.h"

#include "data/DataSYS.h"
#include "data/Errors.h"
#include "platform/seat/OnScreenKeyboard.h"
#include "platform/seat/Programs.h"
#include "ui/Events.h"
#include "ui/KeyCap.h"
#include "ui/RowGrid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScreen>

namespace {

void setCursor(Qt::CursorShape shape) {
    if (QApplication::overrideCursor() != nullptr) {
        QApplication::changeOverrideCursor(shape);
    } else {
        QApplication::setOverrideCursor(shape);
    }
}

void resetCursor() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

int centred(int screen, int form, int xOffSet) {
    return (screen - form) / 2 + (xOffSet > 0 ? xOffSet * 10 : 0);
}

QSize screenSize() {
    return QApplication::primaryScreen()->geometry().size();
}

void startKeyboard(const QString& path) {
    if (!velcro::seat::showRunningKeyboard(path)) {
        velcro::seat::startProgram(path, velcro::seat::keyboardArguments(path));
    }
}

void setKeyCap(QAbstractButton& button, const QIcon& picture, const QString& key, int height) {
    button.setIcon(picture);
    button.setIconSize(velcro::ui::keyCapSize(key, height));
}

} // namespace

void sfg_SetCursor(const QString& xType) {
    const QString type = xType.toUpper();
    if (type == QLatin1String("RESET")) {
        resetCursor();
    } else if (type == QLatin1String("BUSY")) {
        setCursor(Qt::WaitCursor);
    } else if (type == QLatin1String("HAND")) {
        setCursor(Qt::PointingHandCursor);
    } else if (type == QLatin1String("SQL")) {
        setCursor(Qt::BusyCursor);
    }
    velcro::ui::pumpEvents();
}

int sfg_SetFormTop(const QWidget& frm, int xOffSet) {
    return centred(screenSize().height(), frm.height(), xOffSet);
}

int sfg_SetFormLeft(const QWidget& frm, int xOffSet) {
    return centred(screenSize().width(), frm.width(), xOffSet);
}

void sfg_ShowTouchKeyboard() {
    const QString keyboard = velcro::seat::touchKeyboard();
    if (keyboard.isEmpty()) {
        sfg_ShowOnScreenKeyboard();
    } else {
        startKeyboard(keyboard);
    }
}

void sfg_ShowOnScreenKeyboard() {
    const QString keyboard = velcro::seat::onScreenKeyboard();
    if (keyboard.isEmpty()) {
        throw VelmaraError(QStringLiteral("On-screen keyboard application not found."));
    }
    startKeyboard(keyboard);
}

void sfg_ImageKeybd16(QAbstractButton& xButton, const QString& xKey) {
    const auto* cap = velcro::ui::findKeyCap(xKey);
    const bool has = cap != nullptr && sData != nullptr;
    setKeyCap(xButton, has ? sData->KeyBoardBlue(cap->smallIndex) : QIcon(), xKey, 22);
}

void sfg_ImageKeybd32(QAbstractButton& xButton, const QString& xKey) {
    const auto* cap = velcro::ui::findKeyCap(xKey);
    const bool has = cap != nullptr && sData != nullptr;
    const int index = has ? int(cap - velcro::ui::keyCaps().data()) : -1;
    setKeyCap(xButton, has ? sData->MainMenuKBImages(index) : QIcon(), xKey, 32);
}

void sfg_ClearGrid(velcro::ui::RowGrid& xGrid) {
    xGrid.setRows({});
}
