// velcro-enrol as an administrator calls it, at a reader that libfprint pretends.
#include "platform/fingerprint/TemplateText.h"
#include "support/EmbeddedDatabase.h"
#include "support/VirtualFingerReader.h"

#include <QProcess>

#include <gtest/gtest.h>

using velcro::fingerprint::isTemplateText;
using velcro::test::EmbeddedDatabase;
using velcro::test::VirtualFingerReader;

namespace {

class EnrolToolTest : public testing::Test
{
protected:
    EnrolToolTest() {
        for (const char* table :
             {"CREATE TABLE SYSUser (RecID int IDENTITY(1, 1) NOT NULL, UserCode nvarchar(10),"
              " BioID int NOT NULL DEFAULT 0)",
              "CREATE TABLE SYSUserBiometrics (RecID int IDENTITY(1, 1) NOT NULL,"
              " UserCode nvarchar(10), FPDescription nvarchar(20), FPMask int, FPData sql_variant)",
              "CREATE TABLE SYSBiometricDetl (RecID int IDENTITY(1, 1) NOT NULL, BioID int,"
              " FPMask int, FPDescription nvarchar(20), FPData varbinary(max))",
              "INSERT INTO SYSUser (UserCode, BioID) VALUES ('COUNTER1', 0), ('MANAGER', 7)"}) {
            database.answer(table);
        }
    }
    QStringList to(const QStringList& more) const {
        return QStringList{"-S",
                           "embedded:" + QString::fromStdString(database.folder().path().string()),
                           "-d", "Shop"} +
               more;
    }
    EmbeddedDatabase database;
};

} // namespace

TEST_F(EnrolToolTest, wrongUsageIsToldAndHelpIsGiven) {
    const struct
    {
        QStringList arguments;
        int status;
        const char* begins;
    } calls[] = {
        {{}, 2, "velcro-enrol: --user is missing"},
        {{"--user", "A"}, 2, "velcro-enrol: -S and -d are missing"},
        {{"--user", "A", "--print", "--device", "03"}, 2, "velcro-enrol: no such device: 03"},
        {{"--user", "A", "--print", "more"}, 2, "velcro-enrol: unknown argument: more"},
        {{"--nothing"}, 2, "velcro-enrol: Unknown option"},
        {{"--help"}, 0, "usage: velcro-enrol"},
        {{"--user", "A", "--print"}, 1, "velcro-enrol: No fingerprint reader was found."},
        {{"--user", "A", "-S", "embedded:/nowhere", "-d", "X"}, 1, "velcro-enrol: "},
        {to({"--user", "NOBODY"}), 1, "velcro-enrol: There is no user NOBODY."},
    };
    for (const auto& [arguments, status, begins] : calls) {
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(VELCRO_ENROL), arguments);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), status) << begins;
        const QByteArray said = program.readAll();
        EXPECT_TRUE(said.contains(begins)) << said.constData();
    }
}

TEST_F(EnrolToolTest, theTemplateIsWrittenForTheFamilyOfTheReader) {
    VirtualFingerReader reader;
    EXPECT_TRUE(
        reader.enrol(1, to({"--user", "COUNTER1", "--finger", "Right 'index'", "--mask", "2"}))
            .contains("is written"));
    EXPECT_EQ(database.answer("SELECT UserCode, FPDescription, FPMask FROM SYSUserBiometrics"),
              "COUNTER1|Right 'index'|2");
    EXPECT_TRUE(isTemplateText(QByteArray::fromStdString(
        database.answer("SELECT CAST(FPData AS varchar(4000)) FROM SYSUserBiometrics"))));
    reader.enrol(2, to({"--user", "COUNTER1", "--device", "02"}));
    EXPECT_EQ(database.answer("SELECT D.BioID, U.UserCode FROM SYSBiometricDetl D INNER JOIN"
                              " SYSUser U ON U.BioID = D.BioID"),
              "8|COUNTER1");
    EXPECT_TRUE(isTemplateText(QByteArray::fromStdString(database.answer(
        "SELECT CAST(FPData AS varchar(4000)) FROM SYSBiometricDetl WHERE BioID = 8"))));
}
