#include "data/Reading.h"

#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"

using Then = ReadFailure::Then;

void ReadFailure::tell(const std::exception& failure) const {
    const QString text = before + errorText(failure) + after;
    switch (then) {
    case Then::KeptInErrorMsg:
        gErrorMsg = text;
        return;
    case Then::RaisedAs:
        throw VelmaraError(text);
    case Then::DialogAndFalse:
    case Then::DialogAndRaise:
        sfg_ErrorDlg(number, text, unit, routine);
        break;
    case Then::Raise:
        break;
    }
    if (then != Then::DialogAndFalse) {
        throw; // the failure that is being handled
    }
}

ReadFailure dialogAndFalse(const QString& xErrorNo, const QString& text, const QString& xPrgName,
                           const QString& xRoutine) {
    return {Then::DialogAndFalse, text, {}, xErrorNo, xPrgName, xRoutine};
}

ReadFailure dialogAndRaise(const QString& xErrorNo, const QString& text, const QString& xPrgName,
                           const QString& xRoutine) {
    return {Then::DialogAndRaise, text, {}, xErrorNo, xPrgName, xRoutine};
}

ReadFailure keptInErrorMsg(const QString& before, const QString& after) {
    return {Then::KeptInErrorMsg, before, after, {}, {}, {}};
}

ReadFailure raised() {
    return {Then::Raise, {}, {}, {}, {}, {}};
}

ReadFailure raisedAs(const QString& before) {
    return {Then::RaisedAs, before, {}, {}, {}, {}};
}

QString sqlErrorOnTable(const QString& table) {
    return QLatin1String("SQL Error on Table: ") + table + QLatin1String(" :-\r");
}
