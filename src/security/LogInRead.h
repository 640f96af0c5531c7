// What the reads of the log-in share: how a row's columns go into the session, and how the reason
// of a "no" is kept.
#pragma once

#include "data/Reading.h"
#include "data/Session.h"

#include <QString>

#include <initializer_list>

/// The unit of the error's own class, which some dialogs name in place of the routine's.
inline constexpr const char* errorClassUnit = "SqlError";

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
inline bool falseBecause(const QString& reason) {
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
