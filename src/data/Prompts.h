// What routines of this layer show the user, or ask the shell for. The layer knows no form: the
// shell fills the hooks at start-up, a test puts its own in.
#pragma once

#include <QString>

#include <functional>

/// The hooks that the shell fills. An empty hook writes to the error output, so that nothing gets
/// lost in a program without forms.
struct Prompts
{
    /// Shows the system error form: number (with its "&"), text, program, routine. The return
    /// slots are cleared and the number is looked up before; the error channel is cleared after.
    std::function<void(const QString& xErrorNo, const QString& xMessage, const QString& xPrgName,
                       const QString& xRoutine)>
        errorForm;
    /// A modal message box of error type with the single button OK; title and text.
    std::function<void(const QString& title, const QString& text)> errorBox;
};

inline Prompts gPrompts;

/// The error dialog. Clears all return slots; a number that begins with "&" is looked up in
/// vcErrorMessages and its message replaces xMessage; shows the form; clears gErrorMsg and
/// gErrorComment. Throws ConversionError for "&" and no number.
void sfg_ErrorDlg(const QString& xErrorNo, const QString& xMessage, const QString& xPrgName,
                  const QString& xRoutine);

/// The plain message box of the run routines and the log-in.
void errorBox(const QString& title, const QString& text);
