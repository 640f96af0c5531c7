// A session's life, and a batch from its text to its statements.
#include "tsql/session/Session.h"

#include "tsql/session/PlaceNames.h"
#include "tsql/values/Errors.h"

#include <chrono>
#include <ctime>

namespace velcro::sql::tsql {

namespace {

constexpr int firstUserSession = 51;

/// Sessions of several processes on one folder need numbers of their own without asking each other.
int drawSessionNumber() {
    std::uint16_t random = 0;
    sqlite3_randomness(sizeof random, &random);
    return firstUserSession + random % 32'000;
}

/// Milliseconds since 1970-01-01 00:00, both in local time.
std::int64_t localMilliseconds() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    const std::tm* local = std::localtime(&seconds);
    const year_month_day date{year(local->tm_year + 1900),
                              month(static_cast<unsigned>(local->tm_mon + 1)),
                              day(static_cast<unsigned>(local->tm_mday))};
    const auto time = sys_days(date).time_since_epoch() + hours(local->tm_hour) +
                      minutes(local->tm_min) + std::chrono::seconds(local->tm_sec);
    const auto fraction = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    return duration_cast<milliseconds>(time).count() + fraction;
}

char kindLetter(const Parameter& parameter) {
    return static_cast<char>('a' + static_cast<int>(parameterType(parameter).id));
}

} // namespace

Session::Session(const DatabaseSettings& settings, NativeProcedures natives)
    : file_(openDatabaseFile(settings))
    , catalogue_(file_.handle.get(), settings.name, file_.readOnly)
    , host_(catalogue_, facts())
    , ddl_(catalogue_, host_)
    , temporary_(file_.handle.get())
    , natives_(std::move(natives))
    , transactions_(catalogue_, temporary_, settings.autoCommit, watchTransactions())
    , sessionValue_([this](std::string_view name) { return sessionValue(name); }) {
    registerFunctions(file_.handle.get(), host_);
}

SessionFacts Session::facts() {
    SessionFacts facts;
    facts.spid = drawSessionNumber();
    facts.serverName = "EMBEDDED";
    facts.scopeIdentity = [this] { return identity_; };
    facts.now = [this] {
        if (!statementTime_) {
            statementTime_ = localMilliseconds();
        }
        return *statementTime_;
    };
    return facts;
}

/// Faults become the seam's errors here, with the whole text that was sent.
template <class Work>
void Session::told(std::string_view text, Work work) {
    try {
        work();
    } catch (Fault& fault) {
        fault.setLine(line_);
        throw statementError(fault.message(), std::string(text));
    }
}

void Session::run(std::string_view batch, std::span<const Parameter> parameters,
                  const OnResult& onResult) {
    cancelled_ = false;
    try {
        told(batch, [&] { runPieces(batch, parameters, onResult); });
    } catch (const SqlError&) {
        if (cancelled_) {
            throw SqlError(SqlErrorKind::Statement, "HY008",
                           {.text = "The statement was cancelled."}, std::string(batch));
        }
        throw;
    }
}

void Session::cancel() noexcept {
    cancelled_ = true;
    sqlite3_interrupt(file_.handle.get());
}

void Session::begin() {
    told({}, [this] { transactions_.begin(); });
}

void Session::commit() {
    told({}, [this] { transactions_.commit(); });
}

void Session::rollback() {
    told({}, [this] { transactions_.rollback(); });
}

std::int64_t Session::versionNow() const {
    return catalogue_.version() * 1'000'003 + temporary_.version() + settingsVersion_;
}

void Session::runPieces(std::string_view batch, std::span<const Parameter> parameters,
                        const OnResult& onResult) {
    line_ = 1;
    const std::vector<Piece> pieces = piecesOf(batch, parameters);
    transactions_.catchUp();
    catalogue_.refresh();
    Frame frame;
    // What a batch of another kind began with must not be left over when a fault ends it.
    struct DropVariables
    {
        TemporaryTables& tables;
        ~DropVariables() { tables.dropVariables(); }
    } const dropVariables{temporary_};
    for (const auto& [program, text, literals] : pieces) {
        Place place{*program, text, frame, literals, parameters, onResult};
        if (runAll(program->batch.statements, place) == Flow::Return) {
            break;
        }
    }
}

/// Every piece is parsed before the first one runs: a batch with a mistake does nothing.
std::vector<Session::Piece> Session::piecesOf(std::string_view batch,
                                              std::span<const Parameter> parameters) {
    std::vector<Piece> pieces;
    // A parameter's type belongs to the shape, and does not stand in the text.
    if (parameters.empty()) {
        std::vector<LiftedLiteral> literals;
        if (const auto* known = patterns_.find(batch, literals)) {
            pieces.push_back(
                {known->compiled, known->pattern.shapeText(batch), std::move(literals)});
            return pieces;
        }
    }
    Shape shape;
    // The key is hardly longer than the text: one allocation instead of ten.
    shape.key.reserve(batch.size());
    ShapeReader reader(batch);
    while (reader.next(shape)) {
        auto program = programOf(shape, parameters);
        pieces.push_back({std::move(program), shape.text, shape.literals});
    }
    if (pieces.size() == 1 && parameters.empty() && pieces.front().program->batch.reusable) {
        const auto& program = pieces.front().program;
        if (auto pattern = TextPattern::of(batch, shape.text, pieces.front().literals,
                                           program->batch.structuralLiterals)) {
            patterns_.insert(std::move(*pattern), program);
        }
    }
    return pieces;
}

std::shared_ptr<Program> Session::programOf(Shape& shape, std::span<const Parameter> parameters) {
    // What a parameter is converted to depends on the type it comes with.
    for (const auto& parameter : parameters) {
        shape.key.push_back(kindLetter(parameter));
    }
    // Its lines are those of the batch that it was first read in.
    if (shape.firstLine > 1) {
        shape.key += '@' + std::to_string(shape.firstLine);
    }
    if (auto* found = cache_.find(shape)) {
        return *found;
    }
    auto program = std::make_shared<Program>();
    program->batch = parse(shape.text, shape.firstLine, shape.beginsBatch);
    if (program->batch.reusable) {
        return cache_.insert(shape, program->batch.structuralLiterals, program);
    }
    return program;
}

Value Session::sessionValue(std::string_view name) const {
    const auto number = [](std::int64_t value) { return Value(value); };
    if (name == "@@SPID") {
        return number(host_.facts().spid);
    }
    if (name == "@@ROWCOUNT") {
        return number(rowCount_);
    }
    if (name == "@@ERROR") {
        return number(lastError_);
    }
    if (name == "@@TRANCOUNT") {
        return number(transactions_.depth());
    }
    if (name == "@@IDENTITY" || name == "@@SCOPE_IDENTITY") {
        return identity_ ? number(*identity_) : Value();
    }
    if (name == "@@VERSION") {
        return std::string("Embedded T-SQL on SQLite ") + sqlite3_libversion();
    }
    if (name == "@@SERVERNAME") {
        return host_.facts().serverName;
    }
    if (name == "@@NESTLEVEL") {
        return number(callDepth_);
    }
    if (name == "@@LOCK_TIMEOUT") {
        return number(lockTimeout_);
    }
    if (name == "@@XACT_STATE") {
        return number(transactions_.isLost() ? -1 : transactions_.depth() > 0 ? 1 : 0);
    }
    if (!caught_) {
        return {};
    }
    if (name == "@@ERROR_MESSAGE") {
        return caught_->text;
    }
    if (name == "@@ERROR_NUMBER") {
        return number(caught_->number);
    }
    if (name == "@@ERROR_SEVERITY") {
        return number(caught_->level);
    }
    if (name == "@@ERROR_STATE") {
        return number(caught_->state);
    }
    return name == "@@ERROR_LINE" ? number(caught_->line) : Value();
}

} // namespace velcro::sql::tsql
