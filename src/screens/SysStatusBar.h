// Messages in the status bars: one memory of six messages for the whole program, painted into the
// message panels of whichever bar is on screen.
#pragma once

#include "ui/StatusBar.h"

#include <QString>

#include <array>

/// gStatusMsg[1] to gStatusMsg[6], shared by all bars; index 0 is not used.
inline std::array<QString, 7> gStatusMsg, gStatusType;

/// Shows a message in the bar's xPanel-th message panel. xType is "Msg", "Info", "Error", "Warn" or
/// "Alert", exactly; any other has no colours of its own.
void sfg_DisplayBar(const QString& xType, const QString& xMsg, velcro::ui::StatusBar& StatusBar,
                    int xPanel);
/// Makes a message panel plain; what it said stays in the memory.
void sfg_ResetStatusBar(velcro::ui::StatusBar& StatusBar, int xPanel);
/// Draws one panel of a bar from the memory; every bar of a screen has it as its panel drawer.
void sfg_StatusBarDisplay(velcro::ui::StatusBar& StatusBar, QPainter& painter, int Panel,
                          const QRect& Rect);
