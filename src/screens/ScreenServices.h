// What list and detail screens ask of units that are not theirs. An empty service greys the entry
// that would call it.
#pragma once

#include <QString>

#include <functional>

struct ScreenServices
{
    /// Shows the technical reference of a screen, by the name of its unit.
    std::function<void(const QString& xFormCode)> techHelp;
};

inline ScreenServices gScreenServices;
