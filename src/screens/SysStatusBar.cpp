#include "screens/SysStatusBar.h"

#include "data/DataSYS.h"
#include "ui/Events.h"

#include <QPainter>

#include <algorithm>

using velcro::ui::psHTML;
using velcro::ui::psOwnerDraw;
using velcro::ui::psText;
using velcro::ui::StatusBar;

namespace {

struct TypeLook
{
    const char* type;
    QRgb brush;
    QRgb font;
    int image;
};

constexpr TypeLook looks[] = {
    {"Msg", 0xffd5ffd5, 0xff000000, 29},    {"Info", 0xfffff39f, 0xff000000, 28},
    {"Error", 0xffff0000, 0xffffffff, 72},  {"Warn", 0xffffff00, 0xff000000, 50},
    {"Alert", 0xffffa6a6, 0xff000000, 101},
};
constexpr int otherImage = 49;

/// A bar whose second panel is plain text has its message panels one further on.
int shiftOf(const StatusBar& bar) {
    return bar.panelCount() > 1 && bar.panelStyle(1) == psText ? 1 : 0;
}

} // namespace

void sfg_DisplayBar(const QString& xType, const QString& xMsg, StatusBar& StatusBar, int xPanel) {
    const int index = xPanel + shiftOf(StatusBar);
    StatusBar.setPanelStyle(index, psHTML);
    gStatusMsg.at(xPanel) = xMsg;
    gStatusType.at(xPanel) = xType;
    StatusBar.setSpokenText(index, xMsg);
    StatusBar.setPanelStyle(index, psOwnerDraw);
    velcro::ui::pumpEvents();
}

void sfg_ResetStatusBar(StatusBar& StatusBar, int xPanel) {
    StatusBar.setPanelStyle(xPanel + shiftOf(StatusBar), psHTML);
}

void sfg_StatusBarDisplay(StatusBar& StatusBar, QPainter& painter, int Panel, const QRect& Rect) {
    const int message = Panel - shiftOf(StatusBar);
    if (message < 1 || message > 6) {
        return;
    }
    const auto* look = std::ranges::find_if(looks, [message](const TypeLook& candidate) {
        return gStatusType[message] == QLatin1String(candidate.type);
    });
    const bool known = look != std::end(looks);
    painter.fillRect(Rect, known ? QBrush(QColor(look->brush)) : StatusBar.palette().window());
    QFont font = painter.font();
    font.setPointSize(8);
    painter.setFont(font);
    painter.setPen(known ? QColor(look->font) : StatusBar.palette().windowText().color());
    const QRect inside = Rect.adjusted(0, 2, -4, -2);
    painter.drawText(inside.adjusted(30, 0, 0, 0), Qt::AlignVCenter, gStatusMsg[message]);
    if (sData) {
        const QRect picture(inside.left() + 6, inside.top(), 16, inside.height());
        sData->MainImages(known ? look->image : otherImage).paint(&painter, picture);
    }
}
