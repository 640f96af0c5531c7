// EXEC: stored procedures and text that is run.
#include "tsql/session/PlaceNames.h"
#include "tsql/session/SessionVisit.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

constexpr int deepestCall = 32;

/// Counts calls inside calls, back down on every path.
struct CallDepth
{
    int& depth;
    explicit CallDepth(int& counter)
        : depth(counter) {
        ++depth;
    }
    ~CallDepth() { --depth; }
};

std::string textOf(const Value& value, const Type& type) {
    return value.index() == 0 ? std::string() : valueText(value, type);
}

} // namespace

std::vector<Session::Given> Session::given(const Execute& call, Place& place) {
    std::vector<Given> values;
    for (const auto& argument : call.arguments) {
        if (argument.name.empty() && !values.empty() && !values.back().name.empty()) {
            raise(119, {std::to_string(values.size() + 1)}, line_);
        }
        Given value;
        value.name = argument.name;
        value.isDefault = std::holds_alternative<DefaultValue>(argument.value->node);
        if (!value.isDefault) {
            value.value = evaluate(*argument.value, place, &value.type);
        }
        const auto* variable = std::get_if<Variable>(&argument.value->node);
        if (argument.output && variable != nullptr) {
            value.outputTo = variable->name;
        }
        values.push_back(std::move(value));
    }
    return values;
}

std::shared_ptr<Session::Procedure> Session::procedure(const ObjectName& name) {
    const bool own = name.schema.empty() || sameName(name.schema, "dbo");
    const RoutineDef* routine = own ? catalogue_.procedure(name.name) : nullptr;
    if (routine == nullptr) {
        raise(2812, {name.schema.empty() ? name.name : name.schema + "." + name.name}, line_);
    }
    auto& known = procedures_[foldText(name.name)];
    if (known == nullptr || known->text != routine->text) {
        auto made = std::make_shared<Procedure>();
        made->name = routine->name;
        made->text = routine->text;
        made->program.literals = Literals::Kept;
        made->program.batch = parse(made->text);
        const auto& statements = made->program.batch.statements;
        made->definition =
            statements.empty() ? nullptr : std::get_if<CreateProcedure>(&statements[0]->node);
        if (made->definition == nullptr) {
            raise(2812, {name.name}, line_);
        }
        known = std::move(made);
    }
    return known;
}

std::vector<Session::Formal> Session::formalParameters(const CreateProcedure& definition) const {
    std::vector<Formal> formals;
    for (const auto& parameter : definition.parameters) {
        formals.push_back(
            {parameter.name, declaredType(parameter.type, line_), parameter.defaultValue.get()});
    }
    return formals;
}

void Session::declareParameters(const std::string& procedure, const std::vector<Formal>& formals,
                                const std::vector<Given>& given, Frame& frame, Place& place) {
    const bool named = !given.empty() && !given.back().name.empty();
    if (given.size() > formals.size() && !named) {
        raise(8144, {procedure}, line_);
    }
    for (const auto& value : given) {
        const bool known = value.name.empty() ||
                           std::any_of(formals.begin(), formals.end(),
                                       [&](const auto& p) { return sameName(p.name, value.name); });
        if (!known) {
            raise(8145, {value.name, procedure}, line_);
        }
    }
    for (std::size_t i = 0; i < formals.size(); ++i) {
        const Formal& formal = formals[i];
        frame.declare(formal.name, formal.type, line_);
        const auto found = std::find_if(given.begin(), given.end(), [&](const Given& value) {
            const auto position = static_cast<std::size_t>(&value - given.data());
            return value.name.empty() ? position == i : sameName(value.name, formal.name);
        });
        if (found != given.end() && !found->isDefault) {
            passArgument(formal.name, *found, frame);
        } else if (formal.defaultValue != nullptr) {
            Type type;
            Value value = evaluateKept(*formal.defaultValue, place, type);
            frame.assign(formal.name, std::move(value), type, line_);
        } else {
            raise(201, {procedure, formal.name}, line_);
        }
    }
}

/// The server has a number of its own for an argument that does not convert.
void Session::passArgument(const std::string& name, const Given& given, Frame& frame) {
    constexpr int conversionFailed = 245;
    try {
        frame.assign(name, given.value, given.type, line_);
    } catch (const Fault& fault) {
        if (fault.number() != conversionFailed) {
            throw;
        }
        raise(8114, {baseTypeName(given.type.id), baseTypeName(frame.require(name, line_).type.id)},
              line_);
    }
}

/// A constant of a procedure's head; its literals are not those of the caller's text.
Value Session::evaluateKept(const Expr& expr, Place& place, Type& type) {
    Translation translation = Emitter(PlaceNames(*this, place), Literals::Kept).value(expr);
    type = translation.columns.front().type;
    auto statement = compile(translation.text);
    Prepared prepared{std::move(translation), std::move(statement)};
    bind(prepared, place);
    const int code = sqlite3_step(prepared.statement.get());
    if (code != SQLITE_ROW) {
        failStep(prepared, code);
    }
    return cellValue(prepared.statement.get(), 0);
}

void Session::callProcedure(const std::shared_ptr<Procedure>& procedure,
                            const std::vector<Given>& given, const std::string& result,
                            Place& place) {
    if (callDepth_ >= deepestCall) {
        raise(217, {}, line_);
    }
    const CallDepth depth(callDepth_);
    Frame frame;
    frame.procedure = procedure->name;
    declareParameters(procedure->name, formalParameters(*procedure->definition), given, frame,
                      place);
    Place inner{procedure->program, procedure->text, frame, {}, {}, place.onResult};
    const bool noCount = noCount_;
    runAll(procedure->definition->statements, inner);
    noCount_ = noCount;
    const auto& parameters = procedure->definition->parameters;
    for (std::size_t i = 0; i < given.size(); ++i) {
        if (given[i].outputTo.empty()) {
            continue;
        }
        const std::string& name = given[i].name.empty() ? parameters[i].name : given[i].name;
        const FrameVariable& value = frame.require(name, line_);
        place.frame.assign(given[i].outputTo, value.value, value.type, line_);
    }
    if (!result.empty()) {
        place.frame.assign(result, frame.returned, intType, line_);
    }
}

Session::Flow Session::execute(const Execute& call, Place& place) {
    const std::vector<Given> values = given(call, place);
    if (sameName(call.procedure.name, "sp_executesql")) {
        executeSql(values, place);
    } else if (NativeProcedure* native = nativeProcedure(call.procedure)) {
        callNative(*native, values, call.result, place);
    } else {
        callProcedure(procedure(call.procedure), values, call.result, place);
    }
    return Flow::Normal;
}

/// The text runs like a batch of its own, in a frame that sees none of the caller's variables.
void Session::runText(const std::string& text, Frame& frame, const OnResult& onResult) {
    if (callDepth_ >= deepestCall) {
        raise(217, {}, line_);
    }
    const CallDepth depth(callDepth_);
    Program program;
    program.literals = Literals::Kept;
    program.batch = parse(text);
    Place inner{program, text, frame, {}, {}, onResult};
    runAll(program.batch.statements, inner);
}

Session::Flow Session::execute(const ExecuteText& dynamic, Place& place) {
    Type type;
    const Value value = evaluate(*dynamic.text, place, &type);
    Frame frame;
    runText(textOf(value, type), frame, place.onResult);
    return Flow::Normal;
}

/// sp_executesql N'text', N'@a int, @b nvarchar(10) OUTPUT', value, @b = @x OUTPUT
void Session::executeSql(const std::vector<Given>& given, Place& place) {
    if (given.empty()) {
        raise(201, {"sp_executesql", "@stmt"}, line_);
    }
    const std::string text = textOf(given[0].value, given[0].type);
    Frame frame;
    if (given.size() < 2) {
        runText(text, frame, place.onResult);
        return;
    }
    // The declarations read like a procedure's head, so that one is made of them.
    const auto head = std::make_shared<Procedure>();
    head->name = "sp_executesql";
    head->text = "CREATE PROCEDURE p " + textOf(given[1].value, given[1].type) + " AS " + text;
    head->program.literals = Literals::Kept;
    head->program.batch = parse(head->text);
    head->definition = std::get_if<CreateProcedure>(&head->program.batch.statements.at(0)->node);
    callProcedure(head, {given.begin() + 2, given.end()}, {}, place);
}

} // namespace velcro::sql::tsql
