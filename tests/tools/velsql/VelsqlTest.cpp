// The program itself, run as a process with a command line, files and a pipe.
#include "support/TdsServer.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <sys/wait.h>

namespace {

struct Outcome
{
    int status = -1;
    std::string out;
    std::string problems;
};

class VelsqlTest : public testing::Test
{
protected:
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(folder.file(name), std::ios::binary) << text;
        return folder.file(name);
    }
    std::string read(const std::string& name) {
        std::ostringstream text;
        text << std::ifstream(folder.file(name), std::ios::binary).rdbuf();
        return text.str();
    }

    Outcome velsql(const std::vector<std::string>& arguments, const std::string& input = {},
                   const std::string& environment = {}) {
        std::string command = environment + " " VELSQL_PROGRAM;
        for (const auto& argument : arguments) {
            command += " '" + argument + "'";
        }
        command +=
            " <" + write("in", input) + " >" + folder.file("out") + " 2>" + folder.file("problems");
        const int status = std::system(command.c_str());
        return {WEXITSTATUS(status), read("out"), read("problems")};
    }

    /// On a database of its own, through the driver that every test machine has.
    Outcome session(std::vector<std::string> arguments, const std::string& input = {}) {
        arguments.insert(arguments.begin(),
                         {"-S", "odbc:Driver={SQLite3}", "-d", folder.file("test.db")});
        return velsql(arguments, input);
    }

    velcro::test::TempFolder folder;
};

} // namespace

TEST_F(VelsqlTest, rowsCountsAndErrorsStandInOrder) {
    const auto outcome = session({}, "CREATE TABLE t (n INTEGER, s VARCHAR(9), f DOUBLE, b BLOB,"
                                     " ts TIMESTAMP)\n"
                                     "GO\n"
                                     "INSERT INTO t VALUES (1, 'one', 0.1, x'00FF',"
                                     " '2024-02-29 13:00:00.5')\n"
                                     "GO\n"
                                     "INSERT INTO t (n) VALUES (2)\n"
                                     "GO 2\n"
                                     "SELECT * FROM missing\n"
                                     "GO\n"
                                     "SELECT n, s, f, b, ts FROM t\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.problems, "");
    EXPECT_EQ(outcome.out, "(0 rows affected)\n"
                           "(1 rows affected)\n"
                           "(1 rows affected)\n"
                           "(1 rows affected)\n"
                           "Msg 1, Level 16, State 1: no such table: missing (1)\n"
                           "n\ts\tf\tb\tts\n"
                           "1\tone\t0.1\t0x00FF\t2024-02-29 13:00:00.500\n"
                           "2\tNULL\tNULL\tNULL\tNULL\n"
                           "2\tNULL\tNULL\tNULL\tNULL\n");
}

TEST_F(VelsqlTest, sourcesRunInTheOrderOfTheCommandLine) {
    const auto first =
        write("first.sql", "CREATE TABLE t (n INTEGER)\nGO\nINSERT INTO t VALUES (7)");
    const auto last = write("last.sql", "SELECT n AS after FROM t");
    const auto outcome = session({"-i", first, "-Q", "UPDATE t SET n = 8", "-i" + last});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.ends_with("(1 rows affected)\nafter\n8\n")) << outcome.out;
}

TEST_F(VelsqlTest, stopsAtTheFirstFailureWhenAsked) {
    const auto outcome = session({"-b", "-Q", "SELECT * FROM missing", "-Q", "SELECT 1 AS n"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Msg 1, Level 16, State 1: no such table: missing (1)\n");
}

TEST_F(VelsqlTest, wrongCommandLinesAreAnsweredWithTheUsage) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, "-S is missing"},
        {{"-S", "x"}, "-d is missing"},
        {{"-S", "x", "-d"}, "-d wants a value"},
        {{"-S", "x", "-d", "y", "-z"}, "unknown argument: -z"},
        {{"-S", "x", "-d", "y", "file.sql"}, "unknown argument: file.sql"},
    };
    for (const auto& [arguments, problem] : cases) {
        const auto outcome = velsql(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.problems.find(problem), std::string::npos) << outcome.problems;
        EXPECT_NE(outcome.problems.find("usage: velsql"), std::string::npos);
    }
    EXPECT_EQ(velsql({"--help"}).status, 0);
}

TEST_F(VelsqlTest, aServerIsReachedThroughADriverThatWasNeverRegistered) {
    const velcro::test::TdsServer server([](const std::string& batch) {
        velcro::test::TdsReply reply;
        return batch == "PRINT\n" ? reply.information(0, "hello").done()
               : batch == "bad\n" ? reply.error(102, "Incorrect syntax.", 15).done(-1, false, true)
                                  : reply.column("s").row("Größe").done(1);
    });
    const auto outcome =
        velsql({"-S", server.address(), "-d", "suite", "-U", "till"}, "PRINT\nGO\nbad\nGO\nSELECT",
               "ODBCSYSINI=" + folder.path().string());
    EXPECT_EQ(outcome.problems, "");
    EXPECT_EQ(outcome.out, "hello\nMsg 102, Level 15, State 1: Incorrect syntax.\ns\nGröße\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(VelsqlTest, whatKeepsItFromWorkingIsToldAndNothingRuns) {
    const auto unreadable =
        session({"-Q", "CREATE TABLE t (n INTEGER)", "-i", folder.file("no.sql")});
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_EQ(unreadable.out, "");
    EXPECT_NE(unreadable.problems.find("cannot read"), std::string::npos);
    EXPECT_EQ(session({"-Q", "SELECT * FROM t"}).status, 1) << "the first -Q must not have run";

    const auto refused = velsql({"-S", "127.0.0.1,1", "-d", "Suite", "-U", "till"}, "SELECT 1",
                                "VELSQL_PASSWORD=TopSecret");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.problems.find("cannot connect to Suite on 127.0.0.1,1"), std::string::npos);
    EXPECT_EQ(refused.problems.find("TopSecret"), std::string::npos);
}
