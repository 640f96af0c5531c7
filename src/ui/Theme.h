// The look of the program: Fusion style, our own palette, and the few rules a palette cannot say.
#pragma once

class QApplication;

namespace velcro::ui {

/// Least height of what a finger must hit, and of a row it must tell apart; device-independent
/// pixels.
inline constexpr int touchHeight = 44;
inline constexpr int rowHeight = 32;

/// Dresses the whole application; call once, before the first window.
void applyTheme(QApplication& application);

} // namespace velcro::ui
