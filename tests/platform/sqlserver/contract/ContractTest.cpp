// What every end of the SQL seam must do alike. It runs against the stand-in, and against a real
// server when VELCRO_TEST_SERVER names one (with VELCRO_TEST_DATABASE, VELCRO_TEST_USER and
// VELCRO_TEST_PASSWORD): a database that may be written to; its tables vct_... are dropped.
#include "platform/sqlserver/SqlConnection.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

using namespace velcro::sql;

namespace {

struct End
{
    std::string name;
    ConnectionSettings settings; // of the stand-in, server is completed by the fixture
};

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::vector<End> ends() {
    std::vector<End> found{{"embedded", {.server = "embedded:", .database = "contract"}}};
    found.back().settings.createDatabase = true;
    if (const auto server = environment("VELCRO_TEST_SERVER"); !server.empty()) {
        found.push_back({"server",
                         {.server = server,
                          .database = environment("VELCRO_TEST_DATABASE"),
                          .user = environment("VELCRO_TEST_USER"),
                          .password = environment("VELCRO_TEST_PASSWORD")}});
    }
    return found;
}

class ContractTest : public testing::TestWithParam<End>
{
protected:
    ContractTest() {
        if (settings.server == "embedded:") {
            settings.server += folder.path().string();
        }
        connection = createConnection(settings.server);
        connection->connect(settings);
        drop();
        connection->execute("CREATE TABLE vct_item (id int NOT NULL, code nvarchar(10) NULL,"
                            " price float NULL, flag bit NULL, taken datetime NULL,"
                            " picture varbinary(max) NULL, note nvarchar(max) NULL,"
                            " CONSTRAINT PK_vct_item PRIMARY KEY (id))");
    }
    void TearDown() override {
        connection->disconnect();
        connection->connect(settings);
        drop();
    }

    void drop() {
        try {
            connection->execute("DROP TABLE vct_item");
        } catch (const SqlError& error) {
            if (error.number() != 3701) {
                throw;
            }
        }
    }

    /// The number of the error; 0 where none is thrown.
    int failure(std::string_view batch) {
        try {
            connection->execute(batch);
            return 0;
        } catch (const SqlError& error) {
            EXPECT_EQ(error.kind(), SqlErrorKind::Statement) << batch;
            EXPECT_FALSE(std::string(error.what()).empty()) << batch;
            return error.number();
        }
    }
    /// The first cell of the first row.
    std::string value(std::string_view statement) {
        const RowSet rows = connection->query(statement);
        return rows.rowCount() == 0 ? "(no row)" : rows.isNull(0, 0) ? "NULL" : rows.text(0, 0);
    }
    std::string count() { return value("SELECT COUNT(*) FROM vct_item"); }

    velcro::test::TempFolder folder;
    ConnectionSettings settings = GetParam().settings;
    std::unique_ptr<SqlConnection> connection;
};

INSTANTIATE_TEST_SUITE_P(Ends, ContractTest, testing::ValuesIn(ends()),
                         [](const auto& info) { return info.param.name; });

} // namespace

TEST_P(ContractTest, everyTypeComesBackAsItWentIn) {
    connection->execute("INSERT INTO vct_item VALUES"
                        " (-7, N'Größe 漢', 19.99, 1, '2024-02-29 23:59:58.007', 0x00FF10, N'n'),"
                        " (8, NULL, NULL, NULL, NULL, NULL, NULL)");
    const RowSet rows = connection->query("SELECT * FROM vct_item ORDER BY id");
    ASSERT_EQ(rows.rowCount(), 2U);
    const char* texts[] = {"-7", "Größe 漢", "19.99", "1", "2024-02-29 23:59:58.007"};
    for (std::size_t column = 0; column < std::size(texts); ++column) {
        EXPECT_EQ(rows.text(0, column), texts[column]);
    }
    EXPECT_EQ(rows.bytes(0, 5), std::string_view("\x00\xff\x10", 3));
    const ColumnType types[] = {ColumnType::Integer, ColumnType::Text,     ColumnType::Float,
                                ColumnType::Bit,     ColumnType::DateTime, ColumnType::Blob,
                                ColumnType::Text};
    for (std::size_t column = 0; column < rows.columnCount(); ++column) {
        EXPECT_EQ(rows.column(column).type, types[column]) << rows.column(column).name;
        EXPECT_EQ(rows.isNull(1, column), column > 0) << rows.column(column).name;
    }
    EXPECT_EQ(rows.columnIndex("PICTURE"), 5U);
}

TEST_P(ContractTest, literalsWithoutNLoseNothing) {
    connection->execute("INSERT INTO vct_item (id, code) VALUES (1, 'äΩ漢😀')");
    EXPECT_EQ(value("SELECT code FROM vct_item"), "äΩ漢😀");
    EXPECT_EQ(value("SELECT id FROM vct_item WHERE code = 'äΩ漢😀'"), "1");
}

TEST_P(ContractTest, parametersCarryPicturesAndLongText) {
    std::string picture(3 << 20, '\0');
    std::string text;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        picture[i] = static_cast<char>(i * 31 >> 4);
    }
    while (text.size() < 200'000) {
        text += "Größe 漢 ";
    }
    const Parameter parameters[] = {{"Id", std::int64_t{1}}, {"Picture", Blob{picture}},
                                    {"Note", text},          {"Code", std::string("it's :Id")},
                                    {"Price", 0.1},          {"None", {}}};
    connection->execute("INSERT INTO vct_item (id, picture, note, code, price, flag)"
                        " VALUES (:ID, :picture, :Note, :Code, :Price, :None)",
                        parameters);
    const RowSet rows = connection->query("SELECT picture, note, code, price, flag FROM vct_item"
                                          " WHERE code = :Code",
                                          parameters);
    ASSERT_EQ(rows.rowCount(), 1U);
    EXPECT_TRUE(rows.bytes(0, 0) == picture);
    EXPECT_TRUE(rows.bytes(0, 1) == text);
    EXPECT_EQ(rows.text(0, 2), "it's :Id");
    EXPECT_EQ(rows.number(0, 3), 0.1);
    EXPECT_TRUE(rows.isNull(0, 4));
}

TEST_P(ContractTest, aBatchGivesEachResultInOrder) {
    std::vector<std::string> seen;
    connection->run("INSERT INTO vct_item (id) VALUES (1), (2), (3) ;\r\n"
                    "SELECT id FROM vct_item WHERE id > 1 ;\n"
                    "UPDATE vct_item SET code = 'x' WHERE id = 77 ;\n"
                    "DELETE FROM vct_item WHERE id < 3 ;\n",
                    {}, [&seen](StatementResult&& result) {
                        seen.push_back(result.rows
                                           ? std::to_string(result.rows->rowCount()) + " rows"
                                           : std::to_string(result.affected));
                    });
    EXPECT_EQ(seen, (std::vector<std::string>{"3", "2 rows", "0", "2"}));
}

TEST_P(ContractTest, anErrorInTheMiddleOfABatchIsSeenAndTakenBackWhole) {
    connection->begin();
    EXPECT_EQ(failure("INSERT INTO vct_item (id) VALUES (1) ;\n"
                      "INSERT INTO vct_item (id) VALUES (2) ;\n"
                      "INSERT INTO vct_item (id) VALUES (1) ;\n"),
              2627);
    connection->rollback();
    EXPECT_EQ(count(), "0");
    connection->begin();
    EXPECT_EQ(failure("INSERT INTO vct_item (id) VALUES (1) ; SELECT CAST('abc' AS int)"), 245);
    EXPECT_NO_THROW(connection->rollback()) << "also where the server ended it by itself";
    EXPECT_EQ(count(), "0");
}

TEST_P(ContractTest, transactionsAreKeptOrTakenBack) {
    connection->begin();
    connection->execute("INSERT INTO vct_item (id) VALUES (1)");
    connection->commit();
    connection->begin();
    connection->execute("INSERT INTO vct_item (id) VALUES (2)");
    connection->connect(settings);
    EXPECT_EQ(count(), "1") << "connecting anew rolls back";

    auto waiting = settings;
    waiting.autoCommit = false;
    connection->connect(waiting);
    connection->execute("INSERT INTO vct_item (id) VALUES (3)");
    connection->begin();
    connection->execute("INSERT INTO vct_item (id) VALUES (4)");
    connection->commit();
    EXPECT_NO_THROW(connection->commit()) << "nothing waits";
    connection->execute("INSERT INTO vct_item (id) VALUES (5)");
    connection->rollback();
    connection->connect(settings);
    EXPECT_EQ(count(), "3");
}

TEST_P(ContractTest, failuresCarryTheServersNumbers) {
    connection->execute("INSERT INTO vct_item (id, code) VALUES (1, 'one')");
    const std::pair<const char*, std::vector<int>> cases[] = {
        {"SELECT * FROM vct_missing", {208}},
        {"SELECT missing FROM vct_item", {207}},
        {"SELECT FROM WHERE", {156, 102}},
        {"SELECT 'never closed", {105}},
        {"INSERT INTO vct_item (id) VALUES (1)", {2627}},
        {"INSERT INTO vct_item (code) VALUES ('x')", {515}},
        {"INSERT INTO vct_item (id, code) VALUES (2, 'longer than ten')", {8152, 2628}},
        {"INSERT INTO vct_item (id) VALUES ('two')", {245}},
        {"INSERT INTO vct_item (id, price) VALUES (2, 'dear')", {8114}},
        {"INSERT INTO vct_item (id, taken) VALUES (2, 'someday')", {241}},
        {"INSERT INTO vct_item (id, code) VALUES (2)", {109, 110}},
        {"CREATE TABLE vct_item (id int)", {2714}},
        {"DROP TABLE vct_missing", {3701}},
        {"ALTER TABLE vct_missing ADD x int", {4902}},
        {"EXEC vct_missing_procedure", {2812}},
    };
    for (const auto& [batch, numbers] : cases) {
        const int number = failure(batch);
        EXPECT_EQ(std::count(numbers.begin(), numbers.end(), number), 1)
            << batch << " gave " << number;
    }
    EXPECT_EQ(count(), "1");
}

TEST_P(ContractTest, valuesCompareAndConvertAsOnTheServer) {
    connection->execute("INSERT INTO vct_item (id, code, price) VALUES (1, 'Abc  ', 1.5)");
    const std::pair<const char*, const char*> cases[] = {
        {"SELECT id FROM vct_item WHERE code = 'aBC'", "1"},
        {"SELECT id FROM VCT_ITEM WHERE CODE = 'abc        '", "1"},
        {"SELECT id FROM vct_item WHERE code LIKE 'a_C%'", "1"},
        {"SELECT id FROM vct_item WHERE code LIKE '[a-c]b[^x]%'", "1"},
        {"SELECT id FROM vct_item WHERE code LIKE 'abc   '", "(no row)"},
        {"SELECT id FROM vct_item WHERE id = '1'", "1"},
        {"SELECT id FROM vct_item WHERE price = '1.5'", "1"},
        {"SELECT LEN(code) FROM vct_item", "3"},
        {"SELECT DATALENGTH(code) FROM vct_item", "10"},
        {"SELECT CAST('' AS int)", "0"},
        {"SELECT CAST('' AS float)", "0"},
        {"SELECT CAST('' AS datetime)", "1900-01-01 00:00:00.000"},
        {"SELECT 7 / 2", "3"},
        {"SELECT 'a' + 'b'", "ab"},
        {"SELECT ISNULL(NULL, 'x')", "x"},
        {"SELECT NULL", "NULL"},
    };
    for (const auto& [statement, expected] : cases) {
        EXPECT_EQ(value(statement), expected) << statement;
    }
}

TEST_P(ContractTest, aBatchThatRunsIsCancelledFromAnotherThread) {
    std::string rows = "INSERT INTO vct_item (id) VALUES (0)";
    for (int i = 1; i < 100; ++i) {
        rows += ", (" + std::to_string(i) + ")";
    }
    connection->execute(rows);
    const char* endless[] = {
        "DECLARE @i int = 0 WHILE 1 = 1 SET @i = 1 - @i",
        "SELECT COUNT_BIG(*) FROM vct_item a, vct_item b, vct_item c, vct_item d, vct_item e,"
        " vct_item f WHERE a.id + b.id + c.id + d.id + e.id + f.id < 0",
    };
    for (const char* batch : endless) {
        std::atomic<bool> ended = false;
        std::thread other([&] {
            while (!ended) {
                connection->cancel();
                std::this_thread::yield();
            }
        });
        try {
            connection->execute(batch);
            ADD_FAILURE() << "came to an end: " << batch;
        } catch (const SqlError& error) {
            EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
            EXPECT_EQ(error.sqlState(), "HY008") << error.what();
        }
        ended = true;
        other.join();
        EXPECT_EQ(count(), "100") << "the connection goes on";
    }
}

TEST_P(ContractTest, workWithoutAConnectionIsRefused) {
    connection->disconnect();
    EXPECT_FALSE(connection->isConnected());
    try {
        connection->execute("SELECT 1");
        FAIL() << "ran without a connection";
    } catch (const SqlError& error) {
        EXPECT_EQ(error.kind(), SqlErrorKind::NotConnected);
    }
    auto elsewhere = settings;
    elsewhere.database = "vct_no_such_database";
    elsewhere.createDatabase = false;
    try {
        connection->connect(elsewhere);
        FAIL() << "connected with a database that is not there";
    } catch (const SqlError& error) {
        EXPECT_EQ(error.kind(), SqlErrorKind::NotConnected);
    }
    EXPECT_NO_THROW(connection->disconnect());
}
