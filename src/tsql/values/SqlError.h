// The one error of both ends of the SQL seam, in SQL Server's terms.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace velcro::sql {

enum class SqlErrorKind {
    Statement,      // the server refused or failed a statement; the connection goes on
    ConnectionLost, // the connection broke while it was in use
    NotConnected,   // asked to work, or to connect, and there is no connection
};

/// What a server says about one statement, numbered and graded as SQL Server does it.
struct SqlMessage
{
    int number = 0; // native error number, for example 208
    int level = 16; // severity; below 11 is information
    int state = 1;
    int line = 0; // line of the batch, 1 upward; 0 where the driver does not tell
    std::string text;
    int column = 0; // byte of that line, 1 upward; 0 where nobody tells
};

/// Thrown by every operation of the seam. what() is the server's text alone, without the driver's
/// prefixes, so that it can stand in a message to the user.
class SqlError : public std::runtime_error
{
public:
    SqlError(SqlErrorKind kind, std::string sqlState, SqlMessage message, std::string statement)
        : std::runtime_error(message.text)
        , kind_(kind)
        , sqlState_(std::move(sqlState))
        , message_(std::move(message))
        , statement_(std::move(statement)) {}

    SqlErrorKind kind() const { return kind_; }
    const std::string& sqlState() const { return sqlState_; }
    int number() const { return message_.number; }
    const SqlMessage& message() const { return message_; }
    /// The text that was sent when it failed; blank for connect, begin, commit and rollback.
    const std::string& statement() const { return statement_; }

private:
    SqlErrorKind kind_;
    std::string sqlState_;
    SqlMessage message_;
    std::string statement_;
};

} // namespace velcro::sql
