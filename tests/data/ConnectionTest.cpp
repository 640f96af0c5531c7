#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "support/FailureOf.h"
#include "support/FakeServer.h"

#include <gtest/gtest.h>

using velcro::sql::SqlError;
using velcro::test::FakeServer;

namespace {

class ConnectionTest : public testing::Test
{
protected:
    ConnectionTest() {
        createDataModules();
        gCmnHost = gLocHost = "shop";
        gCmnDBName = "COMMON";
        gLocDBName = "TILL";
        gCmnUser = "till";
        gCmnPswd = "SECRET";
    }
    ~ConnectionTest() override {
        freeDataModules();
        gPCName.clear();
        sfg_ClearSQL();
    }

    static void connectSuite() { gData->ConnectDB_VEL({}, "shop", "SUITE", {}, {}, {}); }

    FakeServer server;
};

void read(Connection& connection, const char* text) {
    Statement query(connection);
    query.SQL.Add(text);
    query.Open();
}

} // namespace

TEST_F(ConnectionTest, aConnectStringCarriesEverySettingAsItStands) {
    const QString text = sfg_BuildUNIConnectionStr("host\\one", "DB", "user", "p=w %41", "x", "Y");
    EXPECT_EQ(text, "Provider Name=SQL Server;Server=host\\one;Database=DB;User ID=user;"
                    "Password=p=w %41;Login Prompt=False;Connect Timeout=0;");
    const auto settings = parseConnectionString(text);
    EXPECT_EQ(settings.server, "host\\one");
    EXPECT_EQ(settings.password, "p=w %41");
    EXPECT_EQ(settings.connectTimeoutSeconds, 0);
}

TEST_F(ConnectionTest, aSemicolonInThePasswordBreaksTheStringWithoutShowingThePassword) {
    gCmnPswd = "SEC;RET";
    const QString failure = failureOf([] { cData->ConnectDB_Common(); });
    EXPECT_TRUE(failure.startsWith("DataUCMN.CommonConnect - Failed to connect to database "
                                   "[COMMON]. Reason: The connection string is broken"))
        << failure.toStdString();
    EXPECT_FALSE(failure.contains("RET;"));
    EXPECT_FALSE(failure.contains("SEC"));
    EXPECT_TRUE(server.log.empty()) << "nothing may be sent anywhere";
}

TEST_F(ConnectionTest, aRefusedConnectionIsToldWithUnitDatabaseAndReason) {
    server.refusesConnections = true;
    const auto connectMaster = [] { mData->ConnectDB_MST({}, "h", "master", {}, {}, {}); };
    const auto connectControl = [] { cfgData->ConnectDB_CON({}, "h", "CTL", {}, {}, {}); };
    const auto connectRemote = [] { gData->ConnectDB_Remote({}, "h", "FAR", {}, {}, {}); };
    EXPECT_EQ(failureOf([] { cData->ConnectDB_Common(); }),
              "DataUCMN.CommonConnect - Failed to connect to database [COMMON]. Reason: Server is "
              "down.");
    EXPECT_EQ(failureOf([] { tData->ConnectDB_TIL(); }),
              "DataUTIL.ConnectDB_TIL - Failed to connect to database [TILL].\r: Server is down.");
    const QString others = "%1.VelmaraConnect - Failed to connect to database [%2]. Reason: "
                           "Server is down.";
    EXPECT_EQ(failureOf(connectSuite), others.arg("DataUVEL", "SUITE"));
    EXPECT_EQ(failureOf(connectRemote), others.arg("DataUVEL", "FAR"));
    EXPECT_EQ(failureOf(connectMaster), others.arg("DataUMST", "master"));
    EXPECT_EQ(failureOf(connectControl), others.arg("DataUCFG", "CTL"));
}

TEST_F(ConnectionTest, connectingWhileConnectedClosesFirst) {
    connectSuite();
    gData->vQuery1.SQL.Add("SELECT 1");
    gData->vQuery1.Open();
    EXPECT_FALSE(server.settings.autoCommit) << "the suite connection commits by request";
    gData->ConnectDB_VEL({}, "shop", "OTHER", {}, {}, {});
    EXPECT_FALSE(gData->vQuery1.Active());
    EXPECT_EQ(server.log, (std::vector<std::string>{"connect SUITE", "SELECT 1", "commit",
                                                    "disconnect", "connect OTHER"}));
}

TEST_F(ConnectionTest, halfOfALostTransactionIsNeverRunAgain) {
    tData->ConnectDB_TIL();
    server.lose("second");
    tData->VelmaraTILL.StartTransaction();
    read(tData->VelmaraTILL, "first");
    EXPECT_THROW(read(tData->VelmaraTILL, "second"), SqlError);
    EXPECT_EQ(server.count("second"), 1);
    EXPECT_NO_THROW(tData->VelmaraTILL.Rollback()) << "there is nothing left to roll back";
}

TEST_F(ConnectionTest, aLostConnectionThatStaysDownFailsAndCanBeHadLater) {
    cData->ConnectDB_Common();
    server.lose("SELECT 1");
    server.refusesConnections = true;
    EXPECT_THROW(read(cData->VelmaraCommon, "SELECT 1"), SqlError);
    EXPECT_THROW(read(cData->VelmaraCommon, "SELECT 2"), SqlError);
    server.refusesConnections = false;
    EXPECT_NO_THROW(read(cData->VelmaraCommon, "SELECT 3"));
}

TEST_F(ConnectionTest, beforeLogInTheServerProcessIsAnErrorThatGoesOn) {
    QString shown;
    gPrompts.errorForm = [&](const QString& number, const QString& text, const QString&,
                             const QString&) { shown = number + "|" + text; };
    EXPECT_THROW(gData->VEL_GetSPID(), SqlError);
    EXPECT_EQ(shown, "999999|SQL Error on Table: SPID :-\rThe connection is not open.");
    gPrompts = {};
    connectSuite();
    server.answer("@@SPID", {"SPID"}, {{"57"}});
    EXPECT_EQ(gData->VEL_GetSPID(), "57");
}

TEST_F(ConnectionTest, closingATillThatIsNotOpenDoesNothing) {
    tData->CloseDB_TIL();
    EXPECT_TRUE(server.log.empty());
    tData->ConnectDB_TIL();
    EXPECT_TRUE(server.settings.createDatabase) << "a till may begin without its database";
    tData->CloseDB_TIL();
    EXPECT_EQ(server.log.back(), "disconnect");
    EXPECT_FALSE(tData->VelmaraTILL.Connected());
}

TEST_F(ConnectionTest, aLostConnectionThatIsClosedStaysClosed) {
    const struct
    {
        const char* name;
        Connection& connection;
        std::function<void()> connect, close;
    } closings[] = {
        {"common", cData->VelmaraCommon, [] { cData->ConnectDB_Common(); },
         [] { cData->CloseDB_Common(); }},
        {"suite", gData->Velmara, connectSuite, [] { gData->CloseDB_VEL(); }},
        {"suite, at a change", gData->Velmara, connectSuite, [] { gData->Disconnect_VEL(); }},
        {"till", tData->VelmaraTILL, [] { tData->ConnectDB_TIL(); }, [] { tData->CloseDB_TIL(); }},
        {"till, at a change", tData->VelmaraTILL, [] { tData->ConnectDB_TIL(); },
         [] { tData->Disconnect_TIL(); }},
    };
    for (const auto& [name, connection, connect, close] : closings) {
        for (const bool staysDown : {false, true}) {
            connect();
            server.lose("SELECT 1", 2);
            server.refusesConnections = staysDown;
            EXPECT_THROW(read(connection, "SELECT 1"), SqlError) << name;
            server.refusesConnections = false;
            server.lose("SELECT 1", 0);
            close();
            server.log.clear();
            EXPECT_THROW(read(connection, "SELECT 2"), SqlError) << name;
            EXPECT_TRUE(server.log.empty()) << name << " was opened again";
        }
    }
}

TEST_F(ConnectionTest, theRemoteConnectionNeverRunsAnythingAgain) {
    gData->ConnectDB_Remote({}, "far", "FAR", {}, {}, {});
    server.lose("SELECT 1");
    EXPECT_THROW(read(gData->RemoteDB, "SELECT 1"), SqlError);
    EXPECT_EQ(server.count("SELECT 1"), 1);
}

TEST_F(ConnectionTest, theTillTellsEveryConnectAlsoItsOwn) {
    int connects = 0;
    tData->afterConnect = [&connects] { ++connects; };
    tData->ConnectDB_TIL();
    EXPECT_EQ(connects, 1);
    server.lose("SELECT 1");
    read(tData->VelmaraTILL, "SELECT 1");
    EXPECT_EQ(connects, 2);
}
