#include "application/MachineConfiguration.h"

#include "data/Session.h"
#include "data/SessionFile.h"
#include "platform/seat/Folders.h"
#include "support/TempFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

class MachineConfigurationTest : public testing::Test
{
protected:
    MachineConfigurationTest() {
        velcro::seat::setProgramFilesRoots({first, second});
        gDBConnector = "SQLOLEDB.1";
        gErrorMsg.clear();
    }
    ~MachineConfigurationTest() override { velcro::seat::setProgramFilesRoots({}); }

    static void write(const QString& root, const QByteArray& text) {
        const QString path = root + "/Common Files/Microsoft Shared/MSHelp16/MSHelp16.cnf";
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    void read(const QByteArray& text) const {
        write(second, text);
        ASSERT_TRUE(sfg_ReadSysReg()) << gErrorMsg.toStdString();
    }

    velcro::test::TempFolder folder;
    const QString first = QString::fromStdString(folder.file("Program Files"));
    const QString second = QString::fromStdString(folder.file("Program Files (x86)"));
};

} // namespace

TEST_F(MachineConfigurationTest, theSecondFolderWinsAlsoWithoutTheFile) {
    write(first, "[Common]\nHost=h\n");
    EXPECT_TRUE(sfg_ReadSysReg());
    QDir().mkpath(second);
    gCmnHost = "kept";
    EXPECT_FALSE(sfg_ReadSysReg());
    EXPECT_EQ(gCmnHost, "kept");
}

TEST_F(MachineConfigurationTest, oddLinesDoNotStopTheProgramAndValuesAreAsTheyStand) {
    read("stray\n[Common]\n// the shop's\nHost=h\nPswd= S\x80 \nDBName\n\x1A");
    EXPECT_EQ(gCmnHost, "h");
    EXPECT_EQ(gCmnPswd, " S€ ");
    EXPECT_EQ(gCmnDBName, "");
}

TEST_F(MachineConfigurationTest, missingKeysHaveTheirDefaults) {
    read("[Common]\nHost=h\n");
    const std::vector<std::pair<QString, const char*>> defaults = {{gRegFmt, "A"},
                                                                   {gCmnAzure, "N"},
                                                                   {gLocStandAlone, "Y"},
                                                                   {gTillAzure, "N"},
                                                                   {gScaleBaudRate, "9600"},
                                                                   {gScaleDataBits, "8"},
                                                                   {gScaleStopBits, "1"},
                                                                   {gScaleParity, "None"},
                                                                   {gScaleMachine, "Others"},
                                                                   {gTillCardDeviceType, "M"},
                                                                   {gBDActive, "N"},
                                                                   {gCO, ""},
                                                                   {gSessionKEY, "-"},
                                                                   {gTillAllowDBConnect, "N"},
                                                                   {gRevmaxActive, "N"}};
    for (std::size_t i = 0; i < defaults.size(); ++i) {
        EXPECT_EQ(defaults[i].first, defaults[i].second) << "value " << i;
    }
}

TEST_F(MachineConfigurationTest, connectorsFollowEachOther) {
    read("[Common]\nConnector=C\n[Local]\nConnector=L\n[Till]\nConnector=T\n");
    EXPECT_EQ(gCmnConnector + gLocConnector + gVELConnector, "CLT");
    read("[Local]\nConnector=L\n[Till]\nHost=x\n");
    EXPECT_EQ(gVELConnector, "") << "a blank till connector stays blank";
    EXPECT_EQ(gLocConnector, "SQLOLEDB.1") << "and replaces the local one";
    EXPECT_EQ(gCmnConnector, "SQLOLEDB.1");
}

TEST_F(MachineConfigurationTest, allServersMeansNoCategory) {
    read("[Common]\nSvrCat=ALL\n");
    EXPECT_EQ(gSvrCatCode, "");
    read("[Common]\nSvrCat=all\n");
    EXPECT_EQ(gSvrCatCode, "all");
}

TEST_F(MachineConfigurationTest, eachTillHasAMemoryOfItsOwn) {
    gEXEPath = QString::fromStdString(folder.path().string()) + "/";
    gModCode = "CRO";
    QDir(gEXEPath).mkdir("Session");
    read("[Till]\nCompany= 01 \nBranch=100\n");
    EXPECT_EQ(gSessionKEY, "01-100");
    sfg_WriteSession_INIFile("DBDisplayName", "Shop [one]");
    EXPECT_TRUE(QFileInfo::exists(gEXEPath + "Session/velSSN-01-100.ini"));
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), "Shop [one]");
    read("[Common]\nHost=h\n");
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), "");
    sfg_WriteSession_INIFile("DBDisplayName", "Other");
    EXPECT_TRUE(QFileInfo::exists(gEXEPath + "Session/velSSN--.ini"));
}

TEST_F(MachineConfigurationTest, aLinkedSessionFileIsNotFollowed) {
    gEXEPath = QString::fromStdString(folder.path().string()) + "/";
    gModCode = "CRO";
    QDir(gEXEPath).mkdir("Session");
    gSessionKEY = "01-100";
    const QString elsewhere = gEXEPath + "elsewhere.ini";
    QFile file(elsewhere);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[velCRO]\nDBDisplayName=Planted\n");
    file.close();
    ASSERT_TRUE(QFile::link(elsewhere, sessionFileName()));
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), "");
    sfg_WriteSession_INIFile("DBDisplayName", "Mine");
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), "Mine");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Planted"));
}
