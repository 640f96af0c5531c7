// What every screen asks of the shell: message dialogs, cursor, centring, keyboards, key pictures.
// The error dialog stands in data/Prompts.h, the status bars in SysStatusBar.h.
#pragma once

#include <QString>

class QAbstractButton;
class QWidget;

namespace velcro::ui {
class RowGrid;
}

/// A modal message with Close. With xTimer above 0 it closes itself after so many milliseconds.
void sfg_InfoDlg(const QString& sMessage, int xTimer);
void sfg_MessageDlg(const QString& sMessage, int xTimer);
void sfg_WarningDlg(const QString& sMessage, int xTimer);
/// True for Yes; a window closed by other means is a No.
bool sfg_QuestionDlg(const QString& xTitle, const QString& xMessage);
/// Tells which right a user lacks. xLeft moves the form by tens of pixels from the middle.
void sfg_AccessDlg(const QString& xErrorNo, const QString& xPrgName, const QString& xRoutine,
                   int xLeft);

/// "RESET", "BUSY", "HAND" or "SQL" in any case; anything else leaves the cursor as it is.
void sfg_SetCursor(const QString& xType);

/// Position of a form in the middle of the screen, moved by tens of pixels when xOffSet is above 0.
int sfg_SetFormTop(const QWidget& frm, int xOffSet);
int sfg_SetFormLeft(const QWidget& frm, int xOffSet);

/// Both throw VelmaraError "On-screen keyboard application not found." when the seat has none.
void sfg_ShowTouchKeyboard();
void sfg_ShowOnScreenKeyboard();

/// Puts the picture of a key on a button: a small one, and the large one of the menus. An unknown
/// key leaves the button without a picture.
void sfg_ImageKeybd16(QAbstractButton& xButton, const QString& xKey);
void sfg_ImageKeybd32(QAbstractButton& xButton, const QString& xKey);

/// Empties a grid whose rows are kept in memory.
void sfg_ClearGrid(velcro::ui::RowGrid& xGrid);

/// Fills the hooks that lower layers show their failures through.
void connectPrompts();
