#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "support/FakeServer.h"
#include "support/TempFolder.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using velcro::test::FakeServer;

namespace {

class RunBatchTest : public testing::Test
{
protected:
    RunBatchTest() {
        gEXEPath = QString::fromStdString(folder.path().string()) + "/";
        gSQLPath = gEXEPath + "SQL/";
        gPrompts.errorBox = [this](const QString&, const QString& text) {
            boxes.append(text);
            logLengthAtBox = server.log.size();
        };
        createDataModules();
        cData->ConnectDB_Common();
        gData->ConnectDB_VEL({}, "h", "SUITE", {}, {}, {});
        gData->ConnectDB_Remote({}, "h", "FAR", {}, {}, {});
        mData->ConnectDB_MST({}, "h", "master", {}, {}, {});
        cfgData->ConnectDB_CON({}, "h", "CTL", {}, {}, {});
        cfgData->ConnectDB_CFG({}, "h", "CFG", {}, {}, {});
        tData->ConnectDB_TIL();
        server.log.clear();
        gErrorMsg.clear();
        sfg_ClearSQL();
        sfg_ClearSQL2();
    }
    ~RunBatchTest() override {
        freeDataModules();
        gPrompts = {};
    }

    QString file(const char* name) const {
        QFile file(gEXEPath + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "missing";
    }

    FakeServer server;
    velcro::test::TempFolder folder;
    QStringList boxes;
    std::size_t logLengthAtBox = 0;
};

struct Family
{
    const char* name;
    std::function<bool()> run;
    const char* failureFile;
    bool showsBox;
    bool hasTransaction = true;
};

std::vector<Family> families() {
    return {
        {"vel", [] { return gData->vel_ExecSQL(1); }, "SQL/SQLError-Velmara.TXT", true},
        {"vel_NoTrans", [] { return gData->vel_ExecSQL_NoTrans(1); }, "SQL/SQLError-Velmara.TXT",
         true, false},
        {"rem", [] { return gData->rem_ExecSQL(1); }, "SQL/SQLError-RemoteDB.TXT", true},
        {"cmn", [] { return cData->cmn_ExecSQL(); }, "CMNSQLError.TXT", false},
        {"mst", [] { return mData->mst_ExecSQL(); }, "MasterDBError.TXT", false},
        {"con", [] { return cfgData->con_ExecSQL(1); }, "SQL/SQLError-Config.TXT", false},
        {"cfg", [] { return cfgData->cfg_ExecSQL(1); }, "SQL/SQLError-Config.TXT", false},
        {"til", [] { return tData->til_ExecSQL(1); }, "SQL/SQLError-TILL.log", false},
    };
}

} // namespace

TEST_F(RunBatchTest, aBatchIsOneTextInOneTransaction) {
    for (const auto& family : families()) {
        SCOPED_TRACE(family.name);
        server.log.clear();
        sfg_AddSQL("UPDATE A", "new");
        sfg_AddSQL("UPDATE B", "");
        EXPECT_TRUE(family.run());
        const std::string batch = "UPDATE A ;\nUPDATE B ;";
        EXPECT_EQ(server.log, family.hasTransaction
                                  ? (std::vector<std::string>{"begin", batch, "commit"})
                                  : (std::vector<std::string>{batch}));
        EXPECT_TRUE(gSQL.isEmpty());
    }
}

TEST_F(RunBatchTest, aFailureIsRolledBackKeptAndToldAsItsDatabaseDoes) {
    for (const auto& family : families()) {
        SCOPED_TRACE(family.name);
        server.log.clear();
        boxes.clear();
        gErrorMsg = "old";
        server.fail(family.name, "Column is too short.");
        const QString statement = QStringLiteral("UPDATE %1 SET [Name] = 'Grüße'").arg(family.name);
        sfg_AddSQL(statement, "NEW");
        EXPECT_FALSE(family.run());
        EXPECT_EQ(server.count("commit"), 0);
        EXPECT_EQ(server.count("rollback"), family.hasTransaction ? 1 : 0);
        EXPECT_EQ(file(family.failureFile), statement + " ;") << "also in a folder just made";
        EXPECT_EQ(boxes,
                  family.showsBox ? QStringList{"SQL Error\rColumn is too short."} : QStringList());
        EXPECT_EQ(logLengthAtBox > 0 && family.showsBox ? logLengthAtBox : server.log.size(),
                  server.log.size())
            << "no box while the transaction is open";
        EXPECT_TRUE(gSQL.isEmpty());
    }
    EXPECT_EQ(gErrorMsg, "DataUTIL.til_ExecSQL - Error Executing SQL Command. Reason: Column is "
                         "too short.");
}

TEST_F(RunBatchTest, theFailureFileHoldsTheLastFailureAloneForItsOwner) {
    server.fail("UPDATE", "No.");
    for (const char* text : {"UPDATE a long statement that comes first", "UPDATE B"}) {
        sfg_AddSQL(text, "NEW");
        gData->vel_ExecSQL(1);
    }
    EXPECT_EQ(file("SQL/SQLError-Velmara.TXT"), "UPDATE B ;");
    const QString path = gEXEPath + "SQL/SQLError-Velmara.TXT";
    QFile elsewhere(gEXEPath + "elsewhere");
    ASSERT_TRUE(elsewhere.open(QIODevice::WriteOnly) && QFile::remove(path));
    ASSERT_TRUE(QFile::link(elsewhere.fileName(), path));
    sfg_AddSQL("UPDATE C", "NEW");
    gData->vel_ExecSQL(1);
    EXPECT_EQ(file("SQL/SQLError-Velmara.TXT"), "UPDATE C ;");
    EXPECT_EQ(elsewhere.size(), 0) << "a link in its place is not followed";
    EXPECT_FALSE(QFile::permissions(gEXEPath + "SQL/SQLError-Velmara.TXT")
                     .testAnyFlags(QFile::ReadOther | QFile::ReadGroup));
}

TEST_F(RunBatchTest, anEmptyBufferIsLeftAloneEverywhereButOnTheCommonDatabase) {
    for (const auto& family : families()) {
        SCOPED_TRACE(family.name);
        server.log.clear();
        EXPECT_TRUE(family.run());
        EXPECT_EQ(server.log, std::string(family.name) == "cmn"
                                  ? (std::vector<std::string>{"begin", "", "commit"})
                                  : std::vector<std::string>());
    }
}

TEST_F(RunBatchTest, anyNumberButOneMeansTheSecondBuffer) {
    sfg_AddSQL("first", "NEW");
    sfg_AddSQL2("second", "NEW");
    EXPECT_TRUE(gData->vel_ExecSQL(2));
    sfg_AddSQL2("third", "NEW");
    EXPECT_TRUE(gData->vel_ExecSQL(0));
    EXPECT_EQ(server.count("second ;"), 1);
    EXPECT_EQ(server.count("third ;"), 1);
    EXPECT_EQ(gSQL.Count(), 1) << "the first buffer waits";
}

TEST_F(RunBatchTest, withoutATillTheBufferKeepsItsText) {
    tData->CloseDB_TIL();
    sfg_AddSQL("UPDATE A", "NEW");
    EXPECT_FALSE(tData->til_ExecSQL(1));
    EXPECT_EQ(gErrorMsg, "DataUTIL.til_ExecSQL - Not connected to the TILL database.");
    EXPECT_EQ(gSQL.Text(), "UPDATE A ;");
}

TEST_F(RunBatchTest, theConfigurationBatchRunsOnOneDatabaseInTheOthersTransaction) {
    cfgData->ControlDB.Disconnect();
    server.log.clear();
    sfg_AddSQL("UPDATE A", "NEW");
    EXPECT_FALSE(cfgData->cfg_ExecSQL(1)) << "the statement belongs to the control database";
    EXPECT_EQ(server.log, (std::vector<std::string>{"begin", "rollback"}));
}

TEST_F(RunBatchTest, aTransactionThatCannotStartIsNotCaught) {
    gData->CloseDB_VEL();
    sfg_AddSQL("UPDATE A", "NEW");
    EXPECT_THROW(gData->vel_ExecSQL(1), velcro::sql::SqlError);
    EXPECT_TRUE(boxes.isEmpty());
}
