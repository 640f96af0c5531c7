// How the failure of a read reaches the user: one error dialog, and then the exception goes on.
#pragma once

#include "data/Errors.h"
#include "data/Prompts.h"

/// Runs a read. An exception is shown by the error dialog with the routine's fixed number and the
/// text "SQL Error on Table: <table> :-" and its own message, and thrown on.
template <class Read>
auto guardedRead(const QString& xErrorNo, const QString& table, const QString& xPrgName,
                 const QString& xRoutine, const Read& read) {
    try {
        return read();
    } catch (const std::exception& error) {
        sfg_ErrorDlg(xErrorNo,
                     QLatin1String("SQL Error on Table: ") + table + QLatin1String(" :-\r") +
                         errorText(error),
                     xPrgName, xRoutine);
        throw;
    }
}
