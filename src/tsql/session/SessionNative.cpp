// EXEC of native procedures, and what they ask of the session.
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/session/PlaceNames.h"
#include "tsql/values/Collation.h"

namespace velcro::sql::tsql {

namespace {

constexpr std::string_view keptTable =
    "CREATE TABLE IF NOT EXISTS \"sys$kept\""
    "(name TEXT PRIMARY KEY, number INTEGER NOT NULL) WITHOUT ROWID";

} // namespace

class Session::Caller : public NativeCaller
{
public:
    /// Without a frame there is no call, and no query().
    explicit Caller(Session& session, Frame* frame = nullptr)
        : session_(session)
        , frame_(frame) {}

    const std::filesystem::path& databaseFile() const override { return session_.file_.path; }
    bool inTransaction() const override { return session_.transactions_.lasts(); }
    RowSet query(std::string_view text) override;
    std::int64_t highest(std::string_view name) override;
    void keepHighest(std::string_view name, std::int64_t number) override;

private:
    sqlite3* database() const { return session_.file_.handle.get(); }

    Session& session_;
    Frame* frame_;
};

RowSet Session::Caller::query(std::string_view text) {
    RowSet first;
    const OnResult keepFirst = [&first](StatementResult&& result) {
        if (result.rows && first.columnCount() == 0) {
            first = std::move(*result.rows);
        }
    };
    const int line = session_.line_;
    session_.runText(std::string(text), *frame_, keepFirst);
    session_.line_ = line;
    return first;
}

std::int64_t Session::Caller::highest(std::string_view name) {
    SqliteQuery exists(database(), "SELECT 1 FROM sqlite_schema WHERE name='sys$kept'");
    if (!exists.step()) {
        return 0;
    }
    SqliteQuery kept(database(), "SELECT number FROM \"sys$kept\" WHERE name=?1");
    kept.bind(name);
    return kept.step() ? kept.integer(0) : 0;
}

void Session::Caller::keepHighest(std::string_view name, std::int64_t number) {
    session_.transactions_.beforeWrite();
    runSqlite(database(), std::string(keptTable));
    SqliteQuery(database(), "INSERT INTO \"sys$kept\" VALUES (?1,?2) ON CONFLICT DO UPDATE"
                            " SET number=max(number,excluded.number)")
        .bind(name)
        .bind(number)
        .run();
}

NativeProcedure* Session::nativeProcedure(const ObjectName& name) const {
    for (const auto& native : natives_) {
        if (sameName(native->name(), name.name) && catalogue_.procedure(name.name) == nullptr) {
            return native.get();
        }
    }
    return nullptr;
}

void Session::callNative(NativeProcedure& native, const std::vector<Given>& given,
                         const std::string& result, Place& place) {
    std::vector<Formal> parameters;
    for (const auto& [name, type] : native.parameters()) {
        parameters.push_back({std::string(name), type, nullptr});
    }
    Frame frame;
    declareParameters(std::string(native.name()), parameters, given, frame, place);
    std::vector<Value> arguments;
    for (const Formal& parameter : parameters) {
        arguments.push_back(frame.require(parameter.name, line_).value);
    }
    Caller caller(*this, &frame);
    RowSet rows = native.run(arguments, caller);
    rowCount_ = static_cast<std::int64_t>(rows.rowCount());
    place.onResult({std::move(rows), -1, {}});
    if (!result.empty()) {
        place.frame.assign(result, std::int64_t{0}, intType, line_);
    }
}

/// Native procedures write with the transaction and hear of its end.
TransactionWatch Session::watchTransactions() {
    return {[this] {
                Caller caller(*this);
                for (const auto& native : natives_) {
                    native->beforeCommit(caller);
                }
            },
            [this](bool written) {
                for (const auto& native : natives_) {
                    native->afterTransaction(written);
                }
            }};
}

} // namespace velcro::sql::tsql
