// What the reads of the log-in share: how a row's columns go into the session, and how a fault is
// told: each has a fixed number and text, and then is thrown on or counts as a refusal.
#pragma once

#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/Statement.h"

#include <QString>

#include <exception>
#include <initializer_list>

/// What the error dialog shows of a fault, before the fault's own text.
struct Fault
{
    const char* number;
    const char* prefix;
    const char* unit;
    const char* routine;
};

/// The unit of the fault's own class, which some reads name in place of their own.
inline constexpr const char* faultUnit = "SqlError";

inline void show(const Fault& fault, const std::exception& error) {
    sfg_ErrorDlg(QLatin1String(fault.number), QLatin1String(fault.prefix) + errorText(error),
                 QLatin1String(fault.unit), QLatin1String(fault.routine));
}

/// Runs a read; a fault is shown and thrown on.
template <typename Read>
bool shownAndThrownOn(const Fault& fault, Read&& read) {
    try {
        return read();
    } catch (const std::exception& e) {
        show(fault, e);
        throw;
    }
}

/// Runs a read; a fault is shown and gives false.
template <typename Read>
bool shownAsFalse(const Fault& fault, Read&& read) {
    try {
        return read();
    } catch (const std::exception& e) {
        show(fault, e);
        return false;
    }
}

/// A column and the session value that it fills.
struct TextColumn
{
    const char* column;
    QString* value;
};

/// Copies columns of the current row; throws where the row has no such column.
template <typename Columns>
void copyText(const Statement& row, const Columns& columns) {
    for (const auto& [column, value] : columns) {
        *value = row.FieldByName(QLatin1String(column)).AsString();
    }
}

/// Leaves the reason in gErrorMsg; always false.
inline bool refuse(const QString& reason) {
    gErrorMsg = reason;
    return false;
}

inline bool moduleIs(std::initializer_list<const char*> modules) {
    for (const char* module : modules) {
        if (gModCode == QLatin1String(module)) {
            return true;
        }
    }
    return false;
}
