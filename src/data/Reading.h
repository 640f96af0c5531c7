// The one way to read: the lines of a statement, what a failure does, and what is taken from the
// rows.
#pragma once

#include "data/Statement.h"

#include <QScopeGuard>
#include <QStringList>

#include <stdexcept>
#include <type_traits>

/// What a failed read does. Made by the functions below.
class ReadFailure
{
public:
    enum class Then { Raise, DialogAndFalse, DialogAndRaise, KeptInErrorMsg, RaisedAs };

    /// Tells the failure; throws where the choice says so. Called while the failure is being
    /// handled.
    void tell(const std::exception& failure) const;

    Then then;
    QString before, after;         // stand around the failure's own text
    QString number, unit, routine; // of the dialog
};

/// The error dialog of that number, its text followed by the failure's own; the read gives false.
ReadFailure dialogAndFalse(const QString& xErrorNo, const QString& text, const QString& xPrgName,
                           const QString& xRoutine);
/// The same dialog; the failure is thrown on.
ReadFailure dialogAndRaise(const QString& xErrorNo, const QString& text, const QString& xPrgName,
                           const QString& xRoutine);
/// No dialog: the failure's text goes into gErrorMsg between these two, and the read gives false.
ReadFailure keptInErrorMsg(const QString& before, const QString& after = {});
/// No dialog: the failure goes on as it is.
ReadFailure raised();
/// No dialog: a VelmaraError of this text and the failure's own is thrown in its place.
ReadFailure raisedAs(const QString& before);

/// "SQL Error on Table: <table> :-", as most dialogs of a read begin.
QString sqlErrorOnTable(const QString& table);

/// Opens the statement on its text and gives what is taken from the rows: the result of take(rows),
/// or true where it has none. The statement is closed afterwards. A failure, also one of take(), is
/// dealt with as stated; one that is not thrown gives false (or the empty value of the result).
/// A fault of the program itself (std::logic_error) goes on untouched.
template <typename Take>
auto readRows(Statement& query, const ReadFailure& failure, const Take& take) {
    using Result = std::invoke_result_t<Take, Statement&>;
    const auto close = qScopeGuard([&query] { query.Close(); });
    try {
        query.Open();
        if constexpr (std::is_void_v<Result>) {
            take(query);
            return true;
        } else {
            return take(query);
        }
    } catch (const std::runtime_error& error) {
        failure.tell(error);
        return std::conditional_t<std::is_void_v<Result>, bool, Result>{};
    }
}

/// The same for these lines; a shared statement object is taken by its name.
template <typename Take>
auto readRows(Statement& query, const QStringList& lines, const ReadFailure& failure,
              const Take& take) {
    query.setText(lines);
    return readRows(query, failure, take);
}

/// The same on a statement object of its own.
template <typename Take>
auto readRows(Connection& connection, const QStringList& lines, const ReadFailure& failure,
              const Take& take) {
    Statement query(connection);
    return readRows(query, lines, failure, take);
}

/// A take() that only asks whether there is a row.
inline bool hasRow(const Statement& rows) {
    return !rows.IsEmpty();
}
