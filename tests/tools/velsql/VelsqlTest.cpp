// The program itself, run as a process with a command line, files and a pipe.
#include "support/CommandLine.h"
#include "support/TdsServer.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <thread>

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
        text << std::ifstream(folder.file(name)).rdbuf(); // lines end as the system's do
        return text.str();
    }

    Outcome velsql(const std::vector<std::string>& arguments, const std::string& input = {},
                   const std::string& password = {}) {
        std::string command = velcro::test::programWord(VELSQL_PROGRAM);
        if (!password.empty()) {
            command = velcro::test::withVariable("VELSQL_PASSWORD", password) + command;
        }
        for (const auto& argument : arguments) {
            command += ' ' + velcro::test::quoted(argument);
        }
        command +=
            " <" + write("in", input) + " >" + folder.file("out") + " 2>" + folder.file("problems");
        const int status = velcro::test::runLine(command);
        return {status, read("out"), read("problems")};
    }

    /// On a database of its own, through the driver that every test machine has.
    Outcome session(std::vector<std::string> arguments, const std::string& input = {}) {
        arguments.insert(arguments.begin(),
                         {"-S", "odbc:Driver={SQLite3}", "-d", folder.file("test.db")});
        return velsql(arguments, input);
    }

    Outcome embedded(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(),
                         {"-S", "embedded:" + folder.path().string(), "-d", "Shop"});
        return velsql(arguments);
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
                           "Msg 1, Level 16, State 1, Line 7: no such table: missing (1)\n"
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
    EXPECT_EQ(outcome.out, "Msg 1, Level 16, State 1, Line 1: no such table: missing (1)\n");
    const auto script = write("late.sql", "SELECT 1 AS n\nGO\n\nPRINT 'x'\nSELECT nothing\n");
    EXPECT_EQ(embedded({"-i", script}).out, "n\n1\nx\nMsg 207, Level 16, State 1, " + script +
                                                ", Line 5: Invalid column name 'nothing'.\n");
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
    EXPECT_EQ(outcome.out,
              "hello\nMsg 102, Level 15, State 1, Line 3: Incorrect syntax.\ns\nGröße\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(VelsqlTest, whatKeepsItFromWorkingIsToldAndNothingRuns) {
    const auto unreadable =
        session({"-Q", "CREATE TABLE t (n INTEGER)", "-i", folder.file("no.sql")});
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_EQ(unreadable.out, "");
    EXPECT_NE(unreadable.problems.find("cannot read"), std::string::npos);
    EXPECT_EQ(session({"-Q", "SELECT * FROM t"}).status, 1) << "the first -Q must not have run";

    const auto refused =
        velsql({"-S", "127.0.0.1,1", "-d", "Suite", "-U", "till"}, "SELECT 1", "TopSecret");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.problems.find("cannot connect to Suite on 127.0.0.1,1"), std::string::npos);
    EXPECT_EQ(refused.problems.find("TopSecret"), std::string::npos);
}

TEST_F(VelsqlTest, aScriptThatIsNoTextRunsNothing) {
    const auto good = write("good.sql", "CREATE TABLE t (n int)");
    const auto bad = write("bad.sql", "SELECT 1\nGO\nSELECT 'Gr\xFC\xDF"
                                      "e'");
    const auto outcome = embedded({"-i", good, "-i", bad});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.problems.starts_with("velsql: " + bad + ", line 3, byte 11: neither UTF-8"))
        << outcome.problems;
    EXPECT_EQ(embedded({"-i", good}).status, 0) << "it must not have run before";
    EXPECT_TRUE(velsql({"-S", "embedded:" + folder.path().string(), "-d", "Shop"}, "SELECT '\xFF'")
                    .problems.starts_with("velsql: standard input, line 1, byte 9: "));
}

#ifndef _WIN32 // which has neither such a device nor interrupts from outside

TEST_F(VelsqlTest, aFullDiskEndsItWithAMessage) {
    const std::string command = VELSQL_PROGRAM " -S 'embedded:" + folder.path().string() +
                                "' -d Shop -Q 'SELECT 1 AS n' -Q 'CREATE TABLE t (n int)'"
                                " >/dev/full 2>" +
                                folder.file("problems");
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
    EXPECT_TRUE(read("problems").starts_with("velsql: cannot write the results: No space left"))
        << read("problems");
    EXPECT_EQ(embedded({"-Q", "SELECT * FROM t"}).status, 1) << "nothing runs unseen after that";
}

TEST_F(VelsqlTest, anInterruptCancelsTheStatementAndEndsTheSession) {
    // Without the shell around it, which would not hand the interrupt on.
    const auto run = [&](const std::string& arguments) {
        const std::string command = "echo $$ >" + folder.file("pid") +
                                    "; exec " VELSQL_PROGRAM " " + arguments + " >" +
                                    folder.file("out") + " 2>" + folder.file("problems");
        return WEXITSTATUS(std::system(("sh -c '" + command + "'").c_str()));
    };
    const auto interrupt = [&] { kill(std::stoi(read("pid")), SIGINT); };
    const velcro::test::TdsServer server([&](const std::string& batch) {
        velcro::test::TdsReply reply;
        if (batch != "stall\n") {
            return reply.done();
        }
        interrupt();
        return reply.column("n").row("1").stall();
    });
    const std::string cancelled = ", Line 1: The statement was cancelled.\n";
    EXPECT_EQ(run("-S " + server.address() + " -d suite -U till -Q stall -Q next"), 1);
    EXPECT_TRUE(read("out").ends_with(cancelled)) << read("out") << read("problems");

    const auto endless =
        write("endless.sql", "DECLARE @i int = 0 WHILE 1 = 1 SET @i = 1 - @i\nGO\nPRINT 1");
    write("out", "");
    std::thread other([&] {
        while (read("out").empty()) {
            std::this_thread::yield();
        }
        interrupt();
    });
    EXPECT_EQ(
        run("-S embedded:" + folder.path().string() + " -d Shop -Q \"PRINT 1\" -i " + endless), 1);
    other.join();
    EXPECT_TRUE(read("out").ends_with(cancelled)) << read("out").substr(0, 200);
}

#endif
