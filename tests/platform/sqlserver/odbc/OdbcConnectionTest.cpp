// The ODBC end over a driver that every test machine has: what any driver must get right.
#include "platform/sqlserver/odbc/OdbcConnection.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace velcro::sql;

class OdbcConnectionTest : public testing::Test
{
protected:
    OdbcConnectionTest() { connection->connect(settings); }

    SqlError failure(std::string_view batch) {
        try {
            connection->execute(batch);
        } catch (const SqlError& error) {
            return error;
        }
        throw std::logic_error("did not fail: " + std::string(batch));
    }

    velcro::test::TempFolder folder;
    ConnectionSettings settings{.server = "odbc:Driver={SQLite3};Timeout=1000",
                                .database = folder.file("test.db"),
                                .mayNameDriver = true};
    std::unique_ptr<SqlConnection> connection = createOdbcConnection();
};

TEST_F(OdbcConnectionTest, everyTypeOfCellArrives) {
    connection->execute("CREATE TABLE t (n INTEGER, f DOUBLE, s VARCHAR(20), d DATE,"
                        " ts TIMESTAMP, b BLOB, l TEXT)");
    // This driver has no wide functions: text outside ASCII reaches it in parameters only.
    const Parameter text[] = {{"S", std::string("Grüße 漢 😀")}};
    connection->execute("INSERT INTO t VALUES (-7, 19.99, :S, '2024-02-29',"
                        " '2024-02-29 23:59:58.007', x'00ff10', 'long')",
                        text);
    connection->execute("INSERT INTO t (n) VALUES (NULL)");
    const RowSet rows = connection->query("SELECT n, f, s, d, ts, b, l FROM t");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.integer(0, 0), -7);
    EXPECT_EQ(rows.text(0, 1), "19.99");
    EXPECT_EQ(rows.column(1).type, ColumnType::Float);
    EXPECT_EQ(rows.text(0, 2), "Grüße 漢 😀");
    EXPECT_EQ(rows.text(0, 3), "2024-02-29");
    EXPECT_EQ(rows.text(0, 4), "2024-02-29 23:59:58.007");
    EXPECT_EQ(rows.bytes(0, 5), std::string_view("\x00\xff\x10", 3));
    EXPECT_EQ(rows.column(5).type, ColumnType::Blob);
    EXPECT_EQ(rows.text(0, 6), "long");
    for (std::size_t column = 0; column < rows.columnCount(); ++column) {
        EXPECT_TRUE(rows.isNull(1, column)) << rows.column(column).name;
    }
}

TEST_F(OdbcConnectionTest, manyBlocksOfRowsKeepTheirOrder) {
    connection->execute("CREATE TABLE t (n INTEGER, s VARCHAR(100))");
    connection->execute(
        "INSERT INTO t WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c"
        " WHERE i < 5000) SELECT i, 'row ' || i FROM c");
    const RowSet rows = connection->query("SELECT n, s FROM t ORDER BY n");
    ASSERT_EQ(rows.rowCount(), 5000U);
    for (std::size_t i = 0; i < 5000; ++i) {
        ASSERT_EQ(rows.integer(i, 0), static_cast<std::int64_t>(i + 1));
        ASSERT_EQ(rows.text(i, 1), "row " + std::to_string(i + 1));
    }
}

TEST_F(OdbcConnectionTest, bigParametersComeBackWhole) {
    connection->execute("CREATE TABLE t (id INTEGER, l TEXT, b BLOB, f DOUBLE, s VARCHAR(20))");
    std::string picture(3 << 20, '\0');
    for (std::size_t i = 0; i < picture.size(); ++i) {
        picture[i] = static_cast<char>(i * 31 >> 4);
    }
    std::string longText;
    while (longText.size() < 300'000) {
        longText += "Größe 漢字 😀 ";
    }
    const Parameter parameters[] = {{"Id", std::int64_t{1} << 40},
                                    {"Text", longText},
                                    {"Picture", Blob{picture}},
                                    {"Price", 0.1},
                                    {"Nothing", {}},
                                    {"Empty", std::string()}};
    connection->execute("INSERT INTO t VALUES (:Id, :Text, :picture, :PRICE, :Nothing)",
                        parameters);
    connection->execute("INSERT INTO t (s) VALUES (:Empty)", parameters);
    const RowSet rows = connection->query("SELECT id, l, b, f, s FROM t");
    EXPECT_EQ(rows.integer(0, 0), std::int64_t{1} << 40);
    EXPECT_TRUE(rows.bytes(0, 1) == longText);
    EXPECT_TRUE(rows.bytes(0, 2) == picture);
    EXPECT_EQ(rows.number(0, 3), 0.1);
    EXPECT_TRUE(rows.isNull(0, 4));
    EXPECT_FALSE(rows.isNull(1, 4));
}

TEST_F(OdbcConnectionTest, aValueLongerThanItsColumnIsAnErrorAndNotCut) {
    connection->execute("CREATE TABLE t (s VARCHAR(5))");
    connection->execute("INSERT INTO t VALUES ('much longer than five')");
    const auto error = failure("SELECT s FROM t");
    EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
    EXPECT_NE(std::string(error.what()).find("column s"), std::string::npos) << error.what();
}

TEST_F(OdbcConnectionTest, failedStatementsLeaveTheConnectionUsable) {
    const auto error = failure("SELECT * FROM nowhere");
    EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
    EXPECT_EQ(error.statement(), "SELECT * FROM nowhere");
    EXPECT_EQ(error.what(), std::string("no such table: nowhere (1)"));
    EXPECT_FALSE(error.sqlState().empty());
    EXPECT_TRUE(connection->isConnected());
    EXPECT_EQ(connection->query("SELECT 1 AS n").integer(0, 0), 1);
    EXPECT_EQ(connection->query("  \r\n ").columnCount(), 0U) << "a blank batch does nothing";
}

TEST_F(OdbcConnectionTest, transactionsAreKeptOrTakenBack) {
    connection->execute("CREATE TABLE t (n INTEGER)");
    const auto count = [this] { return connection->query("SELECT n FROM t").rowCount(); };
    connection->begin();
    connection->execute("INSERT INTO t VALUES (1)");
    connection->rollback();
    EXPECT_EQ(count(), 0U);
    connection->begin();
    connection->execute("INSERT INTO t VALUES (1)");
    connection->commit();
    connection->begin();
    connection->execute("INSERT INTO t VALUES (2)");
    connection->connect(settings);
    EXPECT_EQ(count(), 1U) << "an open transaction is rolled back by connecting anew";
    EXPECT_THROW(connection->commit(), SqlError);

    settings.autoCommit = false;
    connection->connect(settings);
    connection->execute("INSERT INTO t VALUES (3)");
    connection->begin();
    connection->commit();
    connection->execute("INSERT INTO t VALUES (4)");
    connection->disconnect();
    connection->connect(settings);
    EXPECT_EQ(count(), 2U) << "without auto-commit, what was not committed is gone";
}

TEST_F(OdbcConnectionTest, workWithoutAConnectionIsRefused) {
    connection->disconnect();
    EXPECT_FALSE(connection->isConnected());
    EXPECT_EQ(failure("SELECT 1").kind(), SqlErrorKind::NotConnected);
    EXPECT_THROW(connection->begin(), SqlError);
    settings.mayNameDriver = false;
    EXPECT_THROW(connection->connect(settings), SqlError) << "the driver of a value from outside";
    settings.mayNameDriver = true;
    settings.server = "odbc:Driver={No Such Driver}";
    settings.password = "TopSecret";
    try {
        connection->connect(settings);
        FAIL() << "connected with a driver that is not there";
    } catch (const SqlError& error) {
        EXPECT_EQ(error.kind(), SqlErrorKind::NotConnected);
        EXPECT_EQ(std::string(error.what()).find("TopSecret"), std::string::npos);
        EXPECT_EQ(error.statement(), "");
    }
}
