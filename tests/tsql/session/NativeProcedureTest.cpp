#include "tsql/session/Session.h"
#include "tsql/values/Errors.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {

namespace {

/// What a session called, in order.
using Calls = std::vector<std::string>;

/// Gives twice @N and the text; counts its calls in the database.
class Doubled final : public NativeProcedure
{
public:
    Doubled(Calls& calls, bool& commits)
        : calls_(calls)
        , commits_(commits) {}

    std::string_view name() const override { return "DOUBLED"; }
    std::span<const NativeParameter> parameters() const override { return parameterList; }
    RowSet run(std::span<const Value> arguments, NativeCaller& caller) override {
        calls_.push_back(caller.inTransaction() ? "run in a transaction" : "run");
        const auto known = caller.highest("calls");
        if (caller.inTransaction()) {
            caller.keepHighest("calls", known + 1);
            caller.keepHighest("calls", 0); // a lower one changes nothing
        }
        RowSetBuilder rows({{"Twice", ColumnType::Integer}, {"Text"}, {"Calls"}});
        rows.addInteger(2 * std::get<std::int64_t>(arguments[0]));
        rows.addBytes(caller.query("SELECT @Text + '!'").text(0, 0));
        rows.addBytes(std::to_string(known));
        rows.endRow();
        return rows.take();
    }
    void beforeCommit(NativeCaller&) override {
        calls_.emplace_back("before commit");
        if (!commits_) {
            raise(8134);
        }
    }
    void afterTransaction(bool written) noexcept override {
        calls_.emplace_back(written ? "written" : "not written");
    }

private:
    static constexpr NativeParameter parameterList[] = {{"@N", intType},
                                                        {"@Text", nvarcharType(3)}};
    Calls& calls_;
    bool& commits_;
};

class NativeProcedureTest : public testing::Test
{
protected:
    NativeProcedureTest()
        : session_({.folder = folder_.path().string(), .name = "Shop", .create = true}, natives()) {
    }

    std::string answer(std::string_view batch) {
        std::string text;
        try {
            session_.run(batch, {}, [&](StatementResult&& result) {
                if (result.rows) {
                    for (std::size_t i = 0; i < result.rows->columnCount(); ++i) {
                        text += (text.empty() ? "" : "|") + result.rows->text(0, i);
                    }
                }
            });
        } catch (const SqlError& error) {
            text += "error " + std::to_string(error.number());
        }
        return text;
    }
    Calls taken() { return std::exchange(calls_, {}); }

    bool commits_ = true;

private:
    NativeProcedures natives() {
        NativeProcedures natives;
        natives.push_back(std::make_unique<Doubled>(calls_, commits_));
        return natives;
    }

    velcro::test::TempFolder folder_;
    Calls calls_;
    Session session_;
};

} // namespace

TEST_F(NativeProcedureTest, keepsNumbersWithTheTransactionAndHearsOfItsEnd) {
    EXPECT_EQ(answer("CREATE TABLE T (a int)"), "");
    taken();
    answer("BEGIN TRANSACTION EXEC DOUBLED 1, 'a' INSERT INTO T VALUES (1) COMMIT");
    EXPECT_EQ(taken(), (Calls{"run in a transaction", "before commit", "written"}));
    answer("BEGIN TRANSACTION EXEC DOUBLED 1, 'a' INSERT INTO T VALUES (1) ROLLBACK");
    EXPECT_EQ(taken(), (Calls{"run in a transaction", "not written"}));
    EXPECT_EQ(answer("EXEC DOUBLED 1, 'a'"), "2|a!|1") << "the second call was taken back";
    taken();
    answer("BEGIN TRANSACTION SELECT 1 COMMIT");
    EXPECT_EQ(taken(), Calls{"not written"});

    commits_ = false;
    EXPECT_EQ(answer("BEGIN TRANSACTION INSERT INTO T VALUES (2) COMMIT"), "error 8134");
    EXPECT_EQ(answer("SELECT @@TRANCOUNT ROLLBACK SELECT COUNT(*) FROM T"), "1|1");
    EXPECT_EQ(taken(), (Calls{"before commit", "not written"}));
}

} // namespace velcro::sql::tsql
