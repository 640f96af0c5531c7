// SQL Server's numbered messages, and the exception that carries one through the embedded end.
#pragma once

#include "tsql/values/SqlError.h"

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace velcro::sql::tsql {

/// A statement that the embedded end refuses, in the server's number and wording. The session adds
/// the line where it is missing and turns it into the seam's SqlError.
class Fault : public std::exception
{
public:
    explicit Fault(SqlMessage message)
        : message_(std::move(message)) {}

    const char* what() const noexcept override { return message_.text.c_str(); }
    int number() const { return message_.number; }
    const SqlMessage& message() const { return message_; }
    /// Keeps a line that is already known.
    void setLine(int line) {
        if (message_.line == 0) {
            message_.line = line;
        }
    }

private:
    SqlMessage message_;
};

/// The server's message of that number with %1 to %4 of its wording replaced by the arguments.
/// A number that the table lacks gives the arguments themselves as wording, level 16.
SqlMessage serverMessage(int number, std::initializer_list<std::string_view> arguments = {},
                         int line = 0);

/// The same, thrown.
[[noreturn]] void raise(int number, std::initializer_list<std::string_view> arguments = {},
                        int line = 0);

/// A construct that the server knows and the stand-in does not: error 40000 with its place, so that
/// it is never mistaken for one of the server's own refusals.
[[noreturn]] void raiseUnsupported(std::string_view construct, int line = 0, int column = 0);
inline constexpr int unsupportedNumber = 40000;

/// What ODBC gives for a native number: 23000 for constraints, 42S02 for an unknown object, ...
std::string_view sqlStateOf(int number);

/// The seam's error for a message and the statement text that was sent.
SqlError statementError(const SqlMessage& message, std::string statement);

} // namespace velcro::sql::tsql
