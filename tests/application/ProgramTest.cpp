#include "application/Program.h"

#include "data/DataModules.h"
#include "data/Session.h"
#include "data/SessionFile.h"
#include "platform/seat/Folders.h"
#include "support/Desk.h"
#include "support/OrdinaryUser.h"
#include "support/ScriptedUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using velcro::test::Desk;
namespace fs = std::filesystem;

namespace {

// The whole program from its command line to its exit status, on a seat of its own.
class ProgramTest : public testing::Test
{
protected:
    // The common database has the title, under the name that the program is installed by.
    ProgramTest() { gEXETitle = QStringLiteral("Repair Orders"); }

    /// Exit status. atMenu is what the user does once the menu is live; without it the menu must
    /// not come up.
    int start(const QStringList& arguments, const std::function<void()>& atMenu = {}) {
        Program program(arguments);
        menuWasLive = false;
        QObject::connect(&program.mainForm(), &TfrmMAIN000::menuIsLive, &program.mainForm(), [&] {
            menuWasLive = true;
            if (atMenu) {
                atMenu();
            }
            program.mainForm().close();
        });
        const int status = program.run();
        EXPECT_EQ(menuWasLive, bool(atMenu));
        return status;
    }
    /// The user reads an error form and closes it.
    void expectError(QString& text) {
        user.expectForm("System Error", [this, &text] {
            text = user.find<QPlainTextEdit>("edMessage").toPlainText();
            user.click("btnClose");
        });
    }
    /// The user reads a message box and closes it.
    void expectBox(const QString& title, QString& text) {
        user.expectForm(title, [this, &text] {
            text = user.sees("lblText");
            user.press(Qt::Key_Escape);
        });
    }
    /// The start ends with the common database's refusal, whose reason it gives.
    QString refusedCommonDatabase() {
        QString told;
        expectBox(gEXETitle, told);
        EXPECT_EQ(start({}), 1);
        const QString words = "DataUCMN.CommonConnect - Failed to connect to database [VELCOMMON]. "
                              "Reason: ";
        EXPECT_TRUE(told.startsWith(words)) << told.toStdString();
        return told.mid(words.size());
    }
    void expectLogIn() {
        user.expectForm(gEXETitle, [this] { user.click("btnCancel"); });
    }
    void configure(const QByteArray& text) const {
        QFile file(desk.configurationFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }
    QByteArray configuration(const QString& databases) const {
        return "[Common]\nHost=embedded:" + databases.toUtf8() + "\nDBName=VELCOMMON\n" +
               "[Till]\nCompany=01\nBranch=100\n[HelpDevice]\nBDActive =N\n";
    }
    static QString recID(const char* displayName) {
        cData->ConnectDB_Common();
        return Desk::common(QStringLiteral("SELECT [RecID] FROM vcSettings WHERE [DisplayName] = "
                                           "'%1'")
                                .arg(displayName));
    }
    /// Every file below a folder with its size and time.
    static QStringList listing(const QString& folder) {
        QStringList entries;
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(folder.toStdString(), error)) {
            entries << QString::fromStdString(entry.path().string()) + " " +
                           (entry.is_regular_file() ? QString::number(entry.file_size())
                                                    : "folder");
        }
        entries.sort();
        return entries;
    }

    struct Ended
    {
        int status; // -1: not by itself
        QString said;
    };
    /// The program as a process with settings and data below base; one that is installed there is
    /// started by an ordinary user.
    Ended run(const QString& program, const QStringList& arguments) {
        QProcess process;
        prepare(process);
#ifndef _WIN32
        if (geteuid() == 0 && program.startsWith(base)) {
            process.setChildProcessModifier([] {
                if (setuid(velcro::test::OrdinaryUser::nobody) != 0) {
                    _exit(99);
                }
            });
        }
#endif
        process.start(program, arguments);
        if (!process.waitForFinished(60'000)) {
            process.kill();
            process.waitForFinished();
            return {-1, "it did not end"};
        }
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardError())};
    }
    /// Who is started with settings and data below base.
    void prepare(QProcess& process) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", base + "/config");
        environment.insert("XDG_DATA_HOME", base + "/data");
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
    }
    void configureProcess() {
        const QString shared = base + "/config/velmara/Common Files/Microsoft Shared/MSHelp16";
        QDir().mkpath(shared);
        QFile::copy(desk.configurationFile(), shared + "/MSHelp16.cnf");
    }

    Desk desk{Desk::Start::Configured};
    const QString base = QFileInfo(desk.databases()).path();
    ScriptedUser user;
    bool menuWasLive = false;
};

} // namespace

TEST_F(ProgramTest, sixArgumentsOpenTheMenuWithoutAForm) {
    const QString number = recID("Brindavel Harbour Row");
    const auto atMenu = [] {
        EXPECT_EQ(gUserCode + "|" + gCO + "|" + gBranch, "COUNTER3|01|101");
        EXPECT_EQ(gSvrCatCode, "");
        EXPECT_TRUE(gData->Velmara.Connected());
        EXPECT_EQ(gVersion, "14.47.41");
    };
    EXPECT_EQ(start({"COUNTER3", "COUNTER3", number, "01", "101", "x"}, atMenu), 0);
    EXPECT_EQ(start({"%SHOPS AND MORE", "COUNTER3", "COUNTER3", number, "01", "101"},
                    [] {
                        EXPECT_EQ(gUserCode, "COUNTER3");
                        EXPECT_EQ(gSvrCatCode, "SHOPS AND");
                    }),
              0);
}

TEST_F(ProgramTest, otherCommandLinesLeadToTheLogInFormOrToTheirError) {
    const QString number = recID("Brindavel Central Workshop");
    const QStringList good = {"COUNTER1", "COUNTER", number, "01", "100", "x"};
    struct
    {
        const char* what;
        QStringList arguments;
    } const cases[] = {
        {"none", {}},
        {"five", good.mid(0, 5)},
        {"a blank user", {" ", "COUNTER", number, "01", "100", "x"}},
        {"a blank password", {"COUNTER1", " ", number, "01", "100", "x"}},
        {"a blank number", {"COUNTER1", "COUNTER", " ", "01", "100", "x"}},
        {"an unknown number", {"COUNTER1", "COUNTER", "4711", "01", "100", "x"}},
        {"an unknown user", {"NOBODY", "COUNTER", number, "01", "100", "x"}},
    };
    for (const auto& [what, arguments] : cases) {
        SCOPED_TRACE(what);
        expectLogIn();
        EXPECT_EQ(start(arguments), 1);
    }
    QString told;
    expectBox(gEXETitle, told);
    EXPECT_EQ(start({"COUNTER1", "COUNTER", "seven", "01", "100", "x"}), 1);
    EXPECT_EQ(told, "'seven' is not a valid integer value");
    expectBox("Log-in Process", told);
    expectLogIn();
    EXPECT_EQ(start({"COUNTER1", "WRONG", number, "01", "100", "x"}), 1);
    EXPECT_EQ(told, "Password is INVALID");
}

TEST_F(ProgramTest, aConfigurationThatCannotBeReadIsToldAndLeftAlone) {
    const QString file = desk.configurationFile();
    const QString shared = QDir::cleanPath(QFileInfo(file).path() + "/../../..");
    QString told;
    struct
    {
        const char* what;
        std::function<void()> spoil;
        const char* reason;
    } const cases[] = {
        {"binary",
         [&] {
             configure(QByteArray("\x7f"
                                  "ELF\0\1\2",
                                  7));
         },
         "it is no text file."},
        {"no section", [&] { configure("Host=h\n"); }, "it has no section."},
        {"empty", [&] { configure(""); }, "it has no section."},
        {"a folder", [&] { QFile::remove(file), QDir().mkpath(file); }, "cannot be read"},
        {"missing", [&] { QDir(file).removeRecursively(); }, "was not found: there is no"},
        {"no folder", [&] { QDir(QFileInfo(file).path()).removeRecursively(); }, "/MSHelp16."},
        {"nothing", [&] { QDir(shared).removeRecursively(); }, "there is neither a folder"},
    };
    for (const auto& [what, spoil, reason] : cases) {
        SCOPED_TRACE(what);
        spoil();
        const QStringList before = listing(shared);
        expectError(told);
        EXPECT_EQ(start({}), 1);
        EXPECT_TRUE(QDir::fromNativeSeparators(told).contains(reason)) << told.toStdString();
        EXPECT_EQ(listing(shared), before);
    }
}

TEST_F(ProgramTest, aConfigurationWithoutTheRightToReadItIsTold) {
    fs::permissions(desk.configurationFile().toStdString(), fs::perms::none);
    const velcro::test::OrdinaryUser ordinary;
    ASSERT_TRUE(ordinary.works());
    QString told;
    expectError(told);
    EXPECT_EQ(start({}), 1);
    EXPECT_TRUE(told.contains("cannot be read: Permission denied.")) << told.toStdString();
}

TEST_F(ProgramTest, aCommonDatabaseThatCannotBeOpenedIsToldAndNothingIsMade) {
    const auto folder = [&](const char* name) {
        QDir().mkpath(base + "/" + name);
        return base + "/" + name;
    };
    const auto withFile = [&](const char* name, const QByteArray& content) {
        QFile file(folder(name) + "/VELCOMMON.sqlite");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return base + "/" + name;
    };
    struct
    {
        const char* what;
        QString databases;
        const char* reason;
    } const cases[] = {
        {"no database", folder("empty"), "there is no such file in"},
        {"a file for a folder", desk.configurationFile(), "was not found or cannot be read."},
        {"no database file", withFile("garbled", QByteArray(5000, 'x')),
         "is not a valid database file header."},
    };
    for (const auto& [what, databases, reason] : cases) {
        SCOPED_TRACE(what);
        configure(configuration(databases));
        const QStringList before = listing(databases);
        const QString told = refusedCommonDatabase();
        EXPECT_TRUE(told.contains(reason)) << told.toStdString();
        EXPECT_EQ(listing(databases), before);
    }
}

TEST_F(ProgramTest, databasesThatMayOnlyBeReadAreToldAndStayAsTheyAre) {
    const fs::path databases = desk.databases().toStdString();
    recID("Brindavel Central Workshop");
    freeDataModules(); // the last one out puts the log of the database away
    for (const auto& entry : fs::directory_iterator(databases)) {
        fs::permissions(entry.path(), fs::perms(0444));
    }
    fs::permissions(databases, fs::perms(0555));
    const QStringList before = listing(desk.databases());
    {
        const velcro::test::OrdinaryUser ordinary;
        ASSERT_TRUE(ordinary.works());
        const QString told = refusedCommonDatabase();
        EXPECT_TRUE(told.contains("VELCOMMON.sqlite\": its folder cannot be written."))
            << told.toStdString();
    }
    EXPECT_EQ(listing(desk.databases()), before);
    fs::permissions(databases, fs::perms(0755));
}

TEST_F(ProgramTest, endingTheProgramFromTheFirstErrorIsAFailedStart) {
    configure("garbled");
    user.expectForm("System Error", [this] { user.click("btnAppTerminate"); });
    EXPECT_EQ(start({}), 1);
}

// Nobody can answer the program on this platform: it must say why it cannot start, and end.
TEST_F(ProgramTest, theProcessEndsWithItsStatusWhereNobodyCanAnswer) {
    if (QFileInfo::exists("/opt/velmara")) {
        GTEST_SKIP() << "this machine has a configuration of its own";
    }
    Ended end = run(VELCRO_PROGRAM, {});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.said.contains("000-001 MAIN000.FormShow: The machine configuration file was "
                                  "not found"))
        << end.said.toStdString();
    EXPECT_FALSE(QFileInfo::exists(base + "/config"));

    configureProcess();
    end = run(VELCRO_PROGRAM, {"U", "P", "seven", "01", "100", "x"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.said.contains("'seven' is not a valid integer value"))
        << end.said.toStdString();
    end = run(VELCRO_PROGRAM, {"U", "P", "7", "01", "100"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.said.contains(": nobody is here to answer.")) << end.said.toStdString();
    end = run(VELCRO_PROGRAM, {"U", "P", "4711", "01", "100", "x"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.said.contains("Database Settings NOT FOUND")) << end.said.toStdString();
}

#ifndef _WIN32 // where only administrators read other programs' arguments

// The configuration is a pipe that the program waits at, long after it has read its arguments.
TEST_F(ProgramTest, thePasswordIsGoneFromTheListOfPrograms) {
    if (QFileInfo::exists("/opt/velmara")) {
        GTEST_SKIP() << "this machine has a configuration of its own";
    }
    const QString shared = base + "/config/velmara/Common Files/Microsoft Shared/MSHelp16";
    QDir().mkpath(shared);
    const QByteArray pipe = QFile::encodeName(shared + "/MSHelp16.cnf");
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    QProcess process;
    prepare(process);
    process.start(VELCRO_PROGRAM, {"%SHOPS", "COUNTER9", "SECRET9", "7", "01", "100"});
    ASSERT_TRUE(process.waitForStarted());
    int end = -1;
    for (int tries = 0; end < 0 && tries < 6000 && process.state() == QProcess::Running; ++tries) {
        end = open(pipe.constData(), O_WRONLY | O_NONBLOCK); // once the program reads
        process.waitForReadyRead(10);
    }
    ASSERT_GE(end, 0);
    QFile arguments(QStringLiteral("/proc/%1/cmdline").arg(process.processId()));
    ASSERT_TRUE(arguments.open(QIODevice::ReadOnly));
    const QByteArray seen = arguments.readAll();
    EXPECT_TRUE(seen.contains("COUNTER9"));
    EXPECT_FALSE(seen.contains("SECRET9"));
    close(end);
    EXPECT_TRUE(process.waitForFinished(60'000));
}

#endif

TEST_F(ProgramTest, tellsOfItselfWhereThereIsNoScreen) {
    for (const auto& [asked, answered] : {std::pair("--version", "velCRO 14."),
                                          std::pair("--notices", "Lesser General Public License"),
                                          std::pair("--help", "usage: velCRO")}) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "none of them");
        process.setProcessEnvironment(environment);
        process.start(VELCRO_PROGRAM, {asked});
        ASSERT_TRUE(process.waitForFinished(60'000)) << asked;
        EXPECT_EQ(process.exitCode(), 0) << asked;
        EXPECT_TRUE(process.readAllStandardOutput().contains(answered)) << asked;
    }
}

TEST_F(ProgramTest, anInstalledProgramWorksInTheUsersData) {
    const fs::path installed = (base + "/program").toStdString();
    fs::create_directory(installed);
    fs::copy_file(VELCRO_PROGRAM, installed / "velCRO");
    std::ofstream(installed / "installed").flush(); // though its user may write there
    fs::create_directory((base + "/data").toStdString());
    fs::permissions((base + "/data").toStdString(), fs::perms(0777));
    const Ended end = run(QString::fromStdString((installed / "velCRO").string()), {});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.said.contains("000-001 ")) << end.said.toStdString();
    EXPECT_EQ(QDir(base + "/data/velCRO").entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{"LOGS", "PDF", "SQL", "Session", "Temp", "Upgrades"}));
    EXPECT_EQ(std::distance(fs::directory_iterator(installed), {}), 2);
    EXPECT_EQ(fs::status((base + "/data/velCRO").toStdString()).permissions(), fs::perms(0700));
}
