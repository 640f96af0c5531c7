// Control flow, variables, options, messages and transactions of T-SQL.
#include "tsql/catalogue/LockWait.h"
#include "tsql/session/PlaceNames.h"
#include "tsql/session/SessionVisit.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <charconv>

namespace velcro::sql::tsql {

namespace {

constexpr int firstUserError = 50'000;
constexpr int firstOwnNumber = 13'000; // of messages that RAISERROR may name

std::int64_t integerOf(const Value& value, const Type& type) {
    const Value converted = convert(value, type, bigIntType);
    const auto* integer = std::get_if<std::int64_t>(&converted);
    return integer != nullptr ? *integer : 0;
}

/// The directives of RAISERROR: %d, %i, %u, %s, %x, and %% for a percent sign.
std::string formatMessage(std::string_view format, const std::vector<std::string>& arguments) {
    std::string text;
    std::size_t next = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%' || i + 1 == format.size()) {
            text.push_back(format[i]);
            continue;
        }
        ++i;
        if (format[i] == '%') {
            text.push_back('%');
        } else {
            text += next < arguments.size() ? arguments[next] : "(null)";
            ++next;
        }
    }
    return text;
}

} // namespace

Session::Flow Session::execute(const Declare& declare, Place& place) {
    for (const auto& item : declare.items) {
        if (item.table) {
            temporary_.drop(item.name);
            execute(*item.table, place);
            continue;
        }
        const Type type = declaredType(item.type, line_);
        // A declaration inside a loop is met again: it assigns, and declares only once.
        if (place.frame.find(item.name) == nullptr) {
            place.frame.declare(item.name, type, line_);
        }
        if (item.value) {
            Type from;
            Value value = evaluate(*item.value, place, &from);
            place.frame.assign(item.name, std::move(value), from, line_);
        }
    }
    return Flow::Normal;
}

Session::Flow Session::execute(const SetVariable& set, Place& place) {
    if (set.op != AssignOp::Set) {
        raiseUnsupported("SET with an operator", line_);
    }
    place.frame.require(set.name, line_);
    Type from;
    Value value = evaluate(*set.value, place, &from);
    place.frame.assign(set.name, std::move(value), from, line_);
    return Flow::Normal;
}

/// Options that say how a real server plans, locks or formats have no meaning here and are taken.
Session::Flow Session::execute(const SetOption& set, Place& place) {
    const auto has = [&](std::string_view name) {
        return std::find(set.names.begin(), set.names.end(), name) != set.names.end();
    };
    const bool on = set.value == "ON";
    if (has("NOCOUNT")) {
        noCount_ = on;
    } else if (has("IDENTITY_INSERT")) {
        const TableDef* table = PlaceNames(*this, place).table(set.table);
        if (table == nullptr) {
            raise(1088, {set.table.name}, line_);
        }
        identityInsert_ = on ? table->name : std::string();
        ++settingsVersion_;
    } else if (has("LOCK_TIMEOUT")) {
        std::from_chars(set.value.data(), set.value.data() + set.value.size(), lockTimeout_);
        limitLockWait(file_.handle.get(),
                      lockTimeout_ < 0 ? lockTimeoutMilliseconds : lockTimeout_);
    } else if (has("IMPLICIT_TRANSACTIONS") && on) {
        raiseUnsupported("SET IMPLICIT_TRANSACTIONS ON", line_);
    }
    return Flow::Normal;
}

Session::Flow Session::execute(const If& branch, Place& place) {
    if (holds(*branch.condition, place)) {
        return runStatement(*branch.then, place);
    }
    return branch.otherwise ? runStatement(*branch.otherwise, place) : Flow::Normal;
}

Session::Flow Session::execute(const Block& block, Place& place) {
    return runAll(block.statements, place);
}

Session::Flow Session::execute(const While& loop, Place& place) {
    while (holds(*loop.condition, place)) {
        const Flow flow = runStatement(*loop.body, place);
        if (flow == Flow::Break) {
            break;
        }
        if (flow == Flow::Return) {
            return flow;
        }
    }
    return Flow::Normal;
}

Session::Flow Session::execute(const Return& value, Place& place) {
    if (value.value) {
        Type from;
        const Value given = evaluate(*value.value, place, &from);
        if (place.frame.procedure.empty()) {
            raise(178, {}, line_);
        }
        place.frame.returned = integerOf(given, from);
    }
    return Flow::Return;
}

Session::Flow Session::execute(const Print& print, Place& place) {
    Type type;
    const Value value = evaluate(*print.value, place, &type);
    say(place, {0, 0, 1, line_, value.index() == 0 ? "" : valueText(value, type)});
    return Flow::Normal;
}

/// Hands over a message that is no error.
void Session::say(Place& place, SqlMessage message) {
    StatementResult result;
    result.messages.push_back(std::move(message));
    place.onResult(std::move(result));
}

Session::Flow Session::execute(const RaiseError& error, Place& place) {
    Type type;
    const Value message = evaluate(*error.message, place, &type);
    std::vector<std::string> arguments;
    for (const auto& argument : error.arguments) {
        Type from;
        const Value value = evaluate(*argument, place, &from);
        arguments.push_back(value.index() == 0 ? "(null)" : valueText(value, from));
    }
    SqlMessage raised;
    raised.number = type.isNumber() ? static_cast<int>(integerOf(message, type)) : firstUserError;
    if (type.isNumber() && (raised.number < firstOwnNumber || raised.number == firstUserError)) {
        raise(2732, {std::to_string(raised.number)}, line_);
    }
    raised.text = type.isNumber() ? "Error " + valueText(message, type)
                                  : formatMessage(valueText(message, type), arguments);
    raised.level = static_cast<int>(integerOf(evaluate(*error.severity, place, &type), type));
    raised.state = static_cast<int>(integerOf(evaluate(*error.state, place, &type), type));
    raised.line = line_;
    constexpr int firstFailure = 11; // below it is a message and no error
    if (raised.level >= firstFailure) {
        throw Fault(raised);
    }
    say(place, std::move(raised));
    return Flow::Normal;
}

Session::Flow Session::execute(const Throw& error, Place& place) {
    if (!error.number) {
        if (!caught_) {
            raise(10704, {}, line_);
        }
        throw Fault(*caught_);
    }
    Type type;
    SqlMessage raised;
    const Value number = evaluate(*error.number, place, &type);
    raised.number = static_cast<int>(integerOf(number, type));
    if (raised.number < firstUserError) {
        raise(35100, {std::to_string(raised.number)}, line_);
    }
    const Value message = evaluate(*error.message, place, &type);
    raised.text = valueText(message, type);
    const Value state = evaluate(*error.state, place, &type);
    raised.state = static_cast<int>(integerOf(state, type));
    raised.line = line_;
    throw Fault(raised);
}

Session::Flow Session::execute(const TryCatch& tried, Place& place) {
    const auto outer = caught_;
    try {
        return runAll(tried.tried, place);
    } catch (const Fault& fault) {
        caught_ = fault.message();
    } catch (const SqlError& error) {
        caught_ = error.message(); // of a text that could not be parsed
    }
    lastError_ = caught_->number;
    const Flow flow = runAll(tried.caught, place);
    caught_ = outer;
    return flow;
}

Session::Flow Session::execute(const Transaction& transaction, Place& place) {
    std::string name = transaction.name;
    if (name.starts_with('@')) {
        const FrameVariable& variable = place.frame.require(name, line_);
        name = valueText(variable.value, variable.type);
    }
    switch (transaction.kind) {
    case Transaction::Kind::Begin:
        transactions_.begin();
        break;
    case Transaction::Kind::Commit:
        transactions_.commit();
        break;
    case Transaction::Kind::Save:
        transactions_.save(name);
        break;
    case Transaction::Kind::Rollback:
        if (!name.empty() && transactions_.hasSavepoint(name)) {
            transactions_.rollbackTo(name);
        } else {
            transactions_.rollback();
        }
        break;
    }
    return Flow::Normal;
}

Session::Flow Session::execute(const Use& use, Place&) {
    if (!sameName(use.database, catalogue_.databaseName())) {
        raise(911, {use.database}, line_);
    }
    return Flow::Normal;
}

} // namespace velcro::sql::tsql
