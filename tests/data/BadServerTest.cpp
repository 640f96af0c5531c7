// The suite connection on a server and a network that are not perfect, through the real driver.
#include "data/DataModules.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "support/BadNetwork.h"
#include "support/FailureOf.h"
#include "support/TdsServer.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using velcro::test::BadNetwork;
using velcro::test::TdsReply;
using velcro::test::TdsServer;

namespace {

TdsReply answer(const std::string& batch) {
    return batch.starts_with("SELECT bad")
               ? TdsReply().error(245, "Conversion failed.").endTransaction().done(-1, false, true)
               : TdsReply().done();
}

class BadServerTest : public testing::Test
{
protected:
    BadServerTest() {
        gEXEPath = QString::fromStdString(folder.path().string()) + "/";
        gPrompts.errorBox = [this](const QString&, const QString& text) { boxes.append(text); };
        createDataModules();
    }
    ~BadServerTest() override {
        freeDataModules();
        gPrompts = {};
        gCmnHost.clear();
        sfg_ClearSQL();
    }

    static void connectSuite(const QString& host, const QString& database = "SUITE") {
        gData->ConnectDB_VEL({}, host, database, "till", "secret", {});
    }
    static bool save(const QString& row) {
        sfg_AddSQL("INSERT " + row, "NEW");
        return gData->vel_ExecSQL(1);
    }

    velcro::test::TempFolder folder;
    TdsServer server{answer};
    BadNetwork network{server.address()};
    QStringList boxes;
};

} // namespace

TEST_F(BadServerTest, aSearchThatEndedTheTransactionLeavesTheNextSaveWhole) {
    connectSuite(QString::fromStdString(network.address()));
    Statement query(gData->Velmara);
    query.SQL.Add("SELECT bad");
    EXPECT_THROW(query.Open(), std::exception);
    // Begun, sent, and cut at its commit: on a connection without a transaction it would be kept.
    network.cutAtRequest(2);
    EXPECT_FALSE(save("1"));
    EXPECT_TRUE(server.kept().empty());
    EXPECT_TRUE(save("2"));
    EXPECT_EQ(server.kept().size(), 1U);
    EXPECT_EQ(boxes.size(), 1);
}

TEST_F(BadServerTest, aCommitWhoseAnswerIsLostSaysToLookBeforeSavingAgain) {
    connectSuite(QString::fromStdString(network.address()));
    network.cutAtAnswer(2);
    EXPECT_FALSE(save("1"));
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].startsWith(
        "SQL Error\rIt may or may not be saved: look for it before you save it again.\r"
        "The connection to the server was lost.\r"))
        << boxes[0].toStdString();
    EXPECT_EQ(server.kept().size(), 1U) << "here it is";
}

TEST_F(BadServerTest, aDriverIsNamedByTheMachineConfigurationAlone) {
    gCmnHost = "odbc:Driver={SQLite3};Timeout=1000;NoTXN=1";
    gCmnDBName = QString::fromStdString(folder.file("common.db"));
    EXPECT_TRUE(cData->ConnectDB_Common()) << "with all of its options";
    const QString suite = QString::fromStdString(folder.file("suite.db"));
    EXPECT_NO_THROW(connectSuite(gCmnHost, suite)) << "a row may repeat it";
    const std::pair<QString, QString> fromARow[] = {
        {"odbc:Driver={SQLite3}", suite},
        {"odbc:Driver=/tmp/any.so", suite},
        {"shop;Server=odbc:Driver={SQLite3}", suite},
        {"shop", suite + ";Server=odbc:Driver={SQLite3}"},
        {gCmnHost, suite + ";Server=odbc:Driver={SQLite3}"},
    };
    for (const auto& [host, database] : fromARow) {
        const QString failure = failureOf([&] { connectSuite(host, database); });
        EXPECT_TRUE(failure.contains("is taken from the machine configuration file only"))
            << host.toStdString() << ": " << failure.toStdString();
        EXPECT_FALSE(gData->Velmara.Connected());
    }
}
