#include "application/StartUp.h"

#include "application/SessionInit.h"
#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Folders.h"
#include "security/SysMachine.h"
#include "support/FakeServer.h"
#include "support/TempFolder.h"

#include <QDir>
#include <QFile>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace {

class StartUpTest : public testing::Test
{
protected:
    StartUpTest() {
        createDataModules();
        velcro::seat::setProgramFilesRoots({root});
        const QString path = root + "/Common Files/Microsoft Shared/MSHelp16";
        QDir().mkpath(path);
        QFile file(path + "/MSHelp16.cnf");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Common]\nHost=h\nDBName=COMMON\n");
        steps.initSystem = [this] { road.append("grids"); };
        steps.checkVersion = [this] {
            road.append("version");
            return versionFits;
        };
        steps.silentLogIn = [this](const QString& user, const QString& password, int recID,
                                   const QString& company, const QString& branch) {
            road.append(QStringLiteral("silent %1 %2 %3 %4 %5")
                            .arg(user, password, QString::number(recID), company, branch));
            gLoginResult = silentEnds;
            return false;
        };
        steps.showLogInForm = [this] {
            road.append("form");
            return true;
        };
    }
    ~StartUpTest() override {
        freeDataModules();
        velcro::seat::setProgramFilesRoots({});
    }

    velcro::test::FakeServer server;
    velcro::test::TempFolder folder;
    const QString root = QString::fromStdString(folder.file("shared"));
    StartUpSteps steps;
    QStringList road;
    QString silentEnds; // how the silent log-in fails
    bool versionFits = true;
};

} // namespace

TEST_F(StartUpTest, stepsFollowEachOtherUntilOneFails) {
    EXPECT_TRUE(startUp(steps, {}));
    EXPECT_EQ(road, (QStringList{"grids", "version", "form"}));
    EXPECT_EQ(gSuite + gModCode, "VELMARACRO");
    EXPECT_EQ(server.settings.database, "COMMON");
    EXPECT_TRUE(QDir::fromNativeSeparators(gTempPath).endsWith("/Temp/"));
    EXPECT_TRUE(QDir(gTempPath).exists()) << "the folder that is made is the folder that is used";
    silentEnds = "2";
    EXPECT_TRUE(startUp(steps, {"U", "P", "7", "01", "100", ""}));
    EXPECT_EQ(road.last(), "silent U P 7 01 100") << "only refused credentials lead to the form";
    versionFits = false;
    EXPECT_FALSE(startUp(steps, {}));
    EXPECT_EQ(road.last(), "version");
    road.clear();
    server.refusesConnections = true;
    EXPECT_THROW(startUp(steps, {}), VelmaraError);
    EXPECT_EQ(road, QStringList{"grids"});
}

TEST_F(StartUpTest, theSessionBeginsEmpty) {
    gSvrCatArray[49] = gSvrCatString = "old";
    sfg_AddSQL("old", "NEW");
    const QString program = QString::fromStdString(folder.file("velCRO"));
    sfg_InitGlobalVars(program);
    EXPECT_EQ(gSvrCatArray[49] + gSvrCatString, "");
    EXPECT_TRUE(gSQL.isEmpty());
    EXPECT_EQ(gEXEName, "velCRO");
    EXPECT_EQ(gSessionKEY + gRegFmt + gDBConnector, "Default0SQLOLEDB.1");
    EXPECT_EQ(QDir(gEXEPath).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{"LOGS", "PDF", "SQL", "Session", "Temp", "Upgrades", "shared"}));
    EXPECT_EQ(psDark + psBold + psReset, QByteArray::fromHex("1d42011b4501"
                                                             "1b4501"
                                                             "1d42001b4500"));
    EXPECT_FALSE(gPCName.isEmpty());
    EXPECT_LE(gPCName.size(), 20);
}

TEST_F(StartUpTest, theHiddenGridsStandOnTheMainForm) {
    QWidget form;
    sfvel_InitSystem(form);
    const auto grids = form.findChildren<QStandardItemModel*>();
    ASSERT_EQ(grids.size(), 7);
    EXPECT_EQ(grids[2]->objectName(), "grdCRDAllocs");
    EXPECT_EQ(grids[2]->columnCount(), 21);
    EXPECT_EQ(grids[2]->rowCount(), 2);
    EXPECT_EQ(grids[2]->item(0, 20)->text(), "TickBox");
    EXPECT_EQ(grids[6]->item(0, 2)->text(), "Failed");
}

TEST_F(StartUpTest, versionsHaveThreeNumbers) {
    const std::vector<std::pair<const char*, const char*>> cases = {{"14.47.41", "14.47.41"},
                                                                    {"1.2.3.4", "1.02.03"},
                                                                    {"2", "2.00.00"},
                                                                    {"", "0.0.0"},
                                                                    {"none", "0.0.0"}};
    for (const auto& [given, text] : cases) {
        EXPECT_EQ(versionText(given), text) << given;
    }
    EXPECT_EQ(sm_GetSerialID().size(), 8);
}
