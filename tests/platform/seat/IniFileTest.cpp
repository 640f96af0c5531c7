#include "platform/seat/IniFile.h"

#include "support/TempFolder.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using velcro::seat::IniError;
using velcro::seat::IniFile;

namespace {

class IniFileTest : public testing::Test
{
protected:
    IniFile readText(const QByteArray& text) const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return IniFile::read(path);
    }
    QString refusal(const QByteArray& text) const {
        try {
            readText(text);
        } catch (const IniError& error) {
            return QString::fromUtf8(error.what()).remove(path);
        }
        return "accepted";
    }

    velcro::test::TempFolder folder;
    const QString path = QString::fromStdString(folder.file("settings.ini"));
};

} // namespace

TEST_F(IniFileTest, valuesAreTakenAsTheyStand) {
    const IniFile file = readText("; a comment\r\n"
                                  "[Common]\r\n"
                                  "Host=server\\one,1433\r\n"
                                  "Pswd=a=b;c %41 \"x\"\r\n"
                                  "USER =sa\r\n"
                                  "Host=second\r\n"
                                  "\r\n"
                                  "[HelpDevice]\r\n"
                                  "BDActive =Y\r\n"
                                  "Plain=N\r\n");
    EXPECT_EQ(file.value("Common", "Host"), "server\\one,1433");
    EXPECT_EQ(file.value("Common", "Pswd"), "a=b;c %41 \"x\"");
    EXPECT_EQ(file.value("common", "user"), "sa");
    EXPECT_EQ(file.value("HelpDevice", "BDActive ", "N"), "Y");
    EXPECT_EQ(file.value("HelpDevice", "Plain ", "default"), "default")
        << "a key with a blank at its end is another one";
    EXPECT_EQ(file.value("Common", "DBName", "none"), "none");
}

TEST_F(IniFileTest, textOfAnyKindOfWindowsEditorIsRead) {
    EXPECT_EQ(readText("\xEF\xBB\xBF[A]\nk=\xC3\xBC\n").value("A", "k"), "ü");
    EXPECT_EQ(readText("[A]\nk=\xFC\n").value("A", "k"), "ü");
    EXPECT_EQ(readText(QByteArray("\xFF\xFE[\0A\0]\0\n\0k\0=\0v\0", 16)).value("A", "k"), "v");
}

TEST_F(IniFileTest, lettersAboveSevenBitsComeOutAsWritten) {
    const std::pair<const char*, const char*> cases[] = {
        {"\x80\x85\x99\x9F", "€…™Ÿ"}, // where Latin-1 has control characters
        {"Caf\xE9", "Café"},          // and the file ends within what could be a longer letter
        {"\xDF\xFF", "ßÿ"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(readText(QByteArray("[A]\nk=") + bytes).value("A", "k"), text);
    }
}

TEST_F(IniFileTest, aValueIsAllThatFollowsAndOddLinesArePassedOver) {
    const IniFile file = readText("a stray word\r\nkey=before any section\r\n// note\r\n"
                                  "[Common]\r\n// note\r\n=nothing\r\nno sign\r\n[\r\n"
                                  "Pswd= two blanks  \r\n  Host=h\r\nEmpty=\r\n\x1A");
    EXPECT_EQ(file.value("Common", "Pswd"), " two blanks  ");
    EXPECT_EQ(file.value("Common", "Host"), "h");
    EXPECT_EQ(file.value("Common", "Empty", "missing"), "");
    EXPECT_EQ(file.value("Common", "no sign", "missing"), "missing");
    EXPECT_EQ(readText("[A]\nk=v\x1A\r\n").value("A", "k"), "v");
}

TEST_F(IniFileTest, whatIsNoSettingsFileIsRefused) {
    const std::vector<std::pair<QByteArray, const char*>> cases = {
        {"", "it has no section"},
        {"key=1\nnonsense\n", "it has no section"},
        {"[A]\nk=\x1A rest", "it is no text file"},
        {QByteArray("[A]\nk=\0\x01\x02", 9), "it is no text file"}};
    for (const auto& [text, message] : cases) {
        const QString told = refusal(text);
        EXPECT_TRUE(told.contains("garbled") && told.contains(message)) << told.toStdString();
    }
    EXPECT_THROW(IniFile::read(path + ".none"), IniError);
    EXPECT_THROW(IniFile::read(QString::fromStdString(folder.path().string())), IniError)
        << "a folder";
}

TEST_F(IniFileTest, writingKeepsWhatWasThere) {
    IniFile file = readText("[velPOS]\nDBDisplayName=Other\n[velCRO]\nOld=1\n");
    file.setValue("velCRO", "DBDisplayName", "Händler");
    file.setValue("VELcro", "old", "2");
    ASSERT_TRUE(file.write(path));
    const IniFile again = IniFile::read(path);
    EXPECT_EQ(again.value("velPOS", "DBDisplayName"), "Other");
    EXPECT_EQ(again.value("velCRO", "DBDisplayName"), "Händler");
    EXPECT_EQ(again.value("velCRO", "Old"), "2");
    EXPECT_FALSE(file.write(path + "/none/file"));
}

TEST_F(IniFileTest, writingIsForTheOwnerAloneAndThroughNoLink) {
    const QString elsewhere = QString::fromStdString(folder.file("elsewhere"));
    QFile target(elsewhere);
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.write("[Others]\n");
    target.close();
    ASSERT_TRUE(QFile::link(elsewhere, path));
    IniFile file;
    file.setValue("A", "k", "v");
    ASSERT_TRUE(file.write(path));
    EXPECT_EQ(IniFile::read(path).value("A", "k"), "v");
    EXPECT_FALSE(QFileInfo(path).isSymLink());
    EXPECT_FALSE(QFile::permissions(path).testAnyFlags(QFile::ReadOther | QFile::ReadGroup));
    ASSERT_TRUE(target.open(QIODevice::ReadOnly));
    EXPECT_EQ(target.readAll(), "[Others]\n");
}
