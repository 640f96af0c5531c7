#include "platform/sqlserver/odbc/BatchRun.h"

#include "platform/sqlserver/Utf16.h"
#include "platform/sqlserver/odbc/BlockFetch.h"
#include "platform/sqlserver/odbc/BoundParameters.h"
#include "platform/sqlserver/odbc/Diagnostics.h"
#include "platform/sqlserver/odbc/Handle.h"

#include <algorithm>

namespace velcro::sql::odbc {

namespace {

class BatchRun
{
public:
    BatchRun(SQLHANDLE connection, DriverKind kind, std::string_view batch,
             const SqlConnection::OnResult& onResult, RunningStatement& running)
        : connection_(connection)
        , kind_(kind)
        , batch_(batch)
        , onResult_(onResult)
        , statement_(connection)
        , running_(running, statement_.get()) {}

    void run(std::span<const Parameter> parameters) {
        const auto prepared = prepareText(batch_, parameters, kind_ != DriverKind::Other);
        BoundParameters bound;
        auto code = bound.bind(statement_.get(), prepared.markers, kind_);
        if (SQL_SUCCEEDED(code)) {
            const auto text = toUtf16(prepared.text);
            // With a length a zero character would not end the text, but libsqliteodbc takes the
            // length for that of the UTF-8 text.
            const auto length =
                kind_ == DriverKind::Other ? SQL_NTS : static_cast<SQLINTEGER>(text.size());
            code = SQLExecDirectW(statement_.get(), wide(text.data()), length);
        }
        takeResult(code);
        for (code = SQLMoreResults(statement_.get()); code != SQL_NO_DATA && !over_;
             code = SQLMoreResults(statement_.get())) {
            takeResult(code);
        }
        if (running_.cancelled()) {
            first_.reset();
            keep({"HY008", {.text = "The statement was cancelled."}}, SqlErrorKind::Statement);
        }
        if (first_) {
            throw std::move(*first_);
        }
    }

private:
    void takeResult(SQLRETURN code) {
        StatementResult result;
        note(code, result);
        if (SQL_SUCCEEDED(code)) {
            take(result);
        } else if (code == SQL_NO_DATA) {
            takeCount(result);
        }
        onResult_(std::move(result));
    }

    void take(StatementResult& result) {
        SQLSMALLINT columns = 0;
        SQLNumResultCols(statement_.get(), &columns);
        if (columns == 0) {
            takeCount(result);
            return;
        }
        RowSet rows;
        try {
            const auto problems = fetchRows(statement_.get(), columns, kind_, rows);
            if (problems.empty()) {
                result.rows = std::move(rows);
            } else {
                note(problems, result);
            }
        } catch (const TruncatedCell& cut) {
            keep({"22001", {.text = cut.what()}}, SqlErrorKind::Statement);
        }
    }

    void takeCount(StatementResult& result) {
        SQLLEN count = -1;
        if (SQL_SUCCEEDED(SQLRowCount(statement_.get(), &count))) {
            result.affected = count;
        }
    }

    void note(SQLRETURN code, StatementResult& result) {
        if (code != SQL_SUCCESS && code != SQL_NO_DATA) {
            note(diagnostics(SQL_HANDLE_STMT, statement_.get(), !SQL_SUCCEEDED(code)), result);
        }
    }

    void note(const std::vector<Diagnostic>& said, StatementResult& result) {
        for (const auto& diagnostic : said) {
            result.messages.push_back(diagnostic.message);
        }
        if (std::any_of(said.begin(), said.end(), isError)) {
            noteFailure(said);
        }
    }

    void noteFailure(const std::vector<Diagnostic>& all) {
        const auto& said = decisive(all);
        if (isDead(connection_) || isLossState(said.sqlState)) {
            first_.reset();
            keep(asLoss(said), SqlErrorKind::ConnectionLost);
            throw std::move(*first_);
        }
        // Nothing follows a call that the driver or its manager would not even make, and a driver
        // that fails more often than the text has characters would fail for ever.
        ++failures_;
        over_ = said.sqlState == "HY010" || said.sqlState == "IM001" || failures_ > batch_.size();
        keep(said, SqlErrorKind::Statement);
    }

    void keep(const Diagnostic& said, SqlErrorKind kind) {
        if (!first_) {
            first_.emplace(kind, said.sqlState, said.message, std::string(batch_));
        }
    }

    SQLHANDLE connection_;
    DriverKind kind_;
    std::string_view batch_;
    const SqlConnection::OnResult& onResult_;
    StatementHandle statement_;
    RunningStatement::Scope running_;
    std::optional<SqlError> first_;
    std::size_t failures_ = 0;
    bool over_ = false;
};

} // namespace

void runBatch(SQLHANDLE connection, DriverKind kind, std::string_view batch,
              std::span<const Parameter> parameters, const SqlConnection::OnResult& onResult,
              RunningStatement& running) {
    // A server takes a blank batch and does nothing; a driver manager refuses to send it.
    if (batch.find_first_not_of(" \t\r\n") != std::string_view::npos) {
        BatchRun(connection, kind, batch, onResult, running).run(parameters);
    }
}

bool isDead(SQLHANDLE connection) {
    SQLUINTEGER dead = SQL_CD_FALSE;
    SQLGetConnectAttrW(connection, SQL_ATTR_CONNECTION_DEAD, &dead, sizeof dead, nullptr);
    return dead == SQL_CD_TRUE;
}

} // namespace velcro::sql::odbc
