// How the failure of a read reaches the user: one error dialog, and then the exception goes on or
// counts as "no".
#pragma once

#include "data/Errors.h"
#include "data/Prompts.h"

#include <QString>

#include <exception>

/// What the error dialog shows of a fault: its fixed number, what stands before the fault's own
/// text, and where it arose.
struct Fault
{
    QString number;
    QString prefix;
    QString unit;
    QString routine;
};

inline void show(const Fault& fault, const std::exception& error) {
    sfg_ErrorDlg(fault.number, fault.prefix + errorText(error), fault.unit, fault.routine);
}

/// Runs a read; a fault is shown and thrown on.
template <typename Read>
auto shownAndThrownOn(const Fault& fault, const Read& read) {
    try {
        return read();
    } catch (const std::exception& error) {
        show(fault, error);
        throw;
    }
}

/// Runs a read; a fault is shown and gives false.
template <typename Read>
bool shownAsFalse(const Fault& fault, const Read& read) {
    try {
        return read();
    } catch (const std::exception& error) {
        show(fault, error);
        return false;
    }
}

/// Runs a read whose fault is told as "SQL Error on Table: <table> :-", and thrown on.
template <typename Read>
auto guardedRead(const QString& xErrorNo, const QString& table, const QString& xPrgName,
                 const QString& xRoutine, const Read& read) {
    const QString prefix = QLatin1String("SQL Error on Table: ") + table + QLatin1String(" :-\r");
    return shownAndThrownOn({xErrorNo, prefix, xPrgName, xRoutine}, read);
}
