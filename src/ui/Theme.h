// The look of the program: Fusion style, our own palette, and the few rules a palette cannot say.
#pragma once

class QApplication;

namespace velcro::ui {

/// Dresses the whole application; call once, before the first window.
void applyTheme(QApplication& application);

} // namespace velcro::ui
