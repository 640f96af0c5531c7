#include "data/DataModules.h"
#include "data/Session.h"
#include "support/Desk.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include <filesystem>

using velcro::test::Desk;

namespace {

// velcro-report as somebody who writes templates calls it, on a seat of its own.
class ReportProgramTest : public testing::Test
{
protected:
    ReportProgramTest() {
        // The seat's configuration stands below a folder of this name.
        const QString shared = QDir(desk.configurationFile().section('/', 0, -5)).canonicalPath();
        QDir().mkpath(settings());
        std::filesystem::copy(shared.toStdString(), (settings() + "/velmara").toStdString(),
                              std::filesystem::copy_options::recursive);
    }

    QString settings() const { return desk.workingFolder() + "config"; }

    /// Exit status; what it wrote on either output is in said.
    int report(const QStringList& arguments) {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", settings());
        environment.insert("XDG_DATA_HOME", settings());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(REPORT_PROGRAM, arguments);
        EXPECT_TRUE(program.waitForFinished(60000));
        said = program.readAll().replace("\r\n", "\n").toStdString(); // as the system ends lines
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }

    Desk desk{Desk::Start::Configured};
    std::string said;
};

} // namespace

TEST_F(ReportProgramTest, answersWithoutAUser) {
    EXPECT_EQ(report({"AmtInWords", "12.50"}), 0);
    EXPECT_EQ(said, " TWELVE RANDS AND FIFTY  CENTS \n");
    EXPECT_EQ(report({"SecToTime", "3661"}), 0);
    EXPECT_EQ(said, "01:01:01\n");
    EXPECT_EQ(report({"GetMessage", "CRO", "00001"}), 0);
    EXPECT_EQ(said.find("ERROR : "), 0U) << said;
    EXPECT_EQ(report({}), 0);
    EXPECT_NE(said.find("WHName\tVelmara Functions\tfunction WHName(aCompany: String;"),
              std::string::npos);
}

TEST_F(ReportProgramTest, answersForAUserWhoSignedIn) {
    EXPECT_EQ(report({"-U", "COUNTER1", "-P", "COUNTER", "UserName"}), 0);
    EXPECT_EQ(said, "[COUNTER1] - Mirela Dostavan\n");
    EXPECT_EQ(report({"-U", "COUNTER3", "-P", "COUNTER3", "-d", "Brindavel Harbour Row",
                      "CompanyBankDetails"}),
              0);
    EXPECT_EQ(said,
              "Bank Name   : Ostermere Trust\nBranch Code : 770014\nAccount No. : 00114001\n");
    EXPECT_EQ(report({"-U", "COUNTER1", "-P", "WRONG", "UserName"}), 1);
    EXPECT_NE(said.find("Password INVALID"), std::string::npos) << said;
    EXPECT_EQ(report({"-U", "COUNTER1", "-P", "COUNTER", "-d", "Nowhere", "UserName"}), 1);
    EXPECT_EQ(said, "velcro-report: There is no database \"Nowhere\" to sign in to.\n");
}

TEST_F(ReportProgramTest, tellsWhatIsWrongWithTheCommandLine) {
    EXPECT_EQ(report({"NoSuch"}), 1);
    EXPECT_EQ(said,
              "velcro-report: There is no function NoSuch; velcro-report alone lists them.\n");
    EXPECT_EQ(report({"AmtInWords", "1", "2"}), 1);
    EXPECT_EQ(
        said,
        "velcro-report: Too many arguments for: function AmtInWords(aAmount : String): String;\n");
    EXPECT_EQ(report({"AmtInWords", "-5"}), 1);
    EXPECT_EQ(said, "velcro-report: '-' is not a valid integer value\n");
    EXPECT_EQ(report({"-P", "x", "UserName"}), 2);
    EXPECT_EQ(report({"--help"}), 0);
}
