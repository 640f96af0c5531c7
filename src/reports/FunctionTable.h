// The report functions of a unit as a table of facts, and what the plain ones among them answer.
#pragma once

#include "platform/reporting/Functions.h"

#include <QString>

#include <functional>
#include <initializer_list>
#include <optional>
#include <span>

using Parameters = velcro::reporting::Parameters;

struct FunctionRow
{
    const char* name;
    const char* className;
    const char* signature;
    std::function<void(Parameters&)> execute;
    std::optional<bool> hasParams = {}; // where it says so itself
};

void registerFunctions(const QString& category, std::span<const FunctionRow> rows);

/// Answers a session value; where one is given for it, the print format's own under format "W".
std::function<void(Parameters&)> answer(const QString& value);
std::function<void(Parameters&)> answer(const QString& value, const QString& printed);

/// Answers what the routine gives.
std::function<void(Parameters&)> answerOf(std::function<QVariant()> routine);

/// CR LF between the lines, blank ones included.
QString joinedLines(std::initializer_list<QString> lines);

/// Whether the letterhead comes from the print format.
bool isPrintFormatOwn();
