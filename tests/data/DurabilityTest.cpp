#include "data/DataModules.h"
#include "data/Prompts.h"
#include "data/RunBatch.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "support/Desk.h"
#include "support/DroppingServer.h"
#include "support/FullDisk.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const QString unsure =
    QStringLiteral("It may or may not be saved: look for it before you save it again.\r");

// Work on real databases, looked at by another seat, over a connection that can break.
class DurabilityTest : public testing::Test
{
protected:
    static QString technician(const char* code) {
        return QStringLiteral("INSERT INTO CROTechMst ([CO], [TechCode]) VALUES ('01', '%1')")
            .arg(code);
    }
    static void runDirectly(Connection& connection, const QString& statement) {
        Statement work(connection);
        work.SQL.Add(statement);
        work.ExecSQL();
    }
    /// What another seat sees.
    QString others(const QString& select, const QString& database = "VELSUITE") const {
        Connection other(ConnectionOptions{});
        other.setConnectString(
            sfg_BuildUNIConnectionStr("embedded:" + desk.databases(), database, {}, {}, {}, {}));
        other.Connect();
        Statement query(other);
        query.SQL.Add(select);
        query.Open();
        return query.Fields(0).AsString();
    }
    QString technicians(const char* codes) const {
        return others(QStringLiteral("SELECT COUNT(*) FROM CROTechMst WHERE [TechCode] LIKE '%1'")
                          .arg(codes));
    }

    /// The batch that failed last, as it is kept.
    QString written() const {
        QFile file(desk.workingFolder() + "SQL/SQLError-Velmara.TXT");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "no file";
    }

    velcro::test::DroppingServer server;
    velcro::test::Desk desk;
};

} // namespace

TEST_F(DurabilityTest, directWorkIsKeptOnceTheUserHasControlAndHoldsNobodyUp) {
    runDirectly(gData->Velmara, technician("D1"));
    EXPECT_EQ(technicians("D_"), "0") << "it waits for its commit";
    QCoreApplication::processEvents();
    EXPECT_EQ(technicians("D_"), "1");
    desk.onSuite(technician("D2")); // would wait for the lock, and fail

    // The same in the loop of a modal form.
    runDirectly(gData->Velmara, technician("D3"));
    QEventLoop form;
    QTimer::singleShot(0, &form, [&] {
        EXPECT_EQ(technicians("D_"), "3");
        form.quit();
    });
    form.exec();
}

TEST_F(DurabilityTest, directWorkIsKeptAtAnOrderlyEndAndByTheNextCommit) {
    runDirectly(gData->Velmara, technician("E1"));
    sfg_AddSQL(technician("E2"), "NEW");
    EXPECT_TRUE(gData->vel_ExecSQL(1));
    EXPECT_EQ(technicians("E_"), "2");
    runDirectly(gData->Velmara, technician("E3"));
    freeDataModules();
    EXPECT_EQ(technicians("E_"), "3");
}

TEST_F(DurabilityTest, aCommitThatFailsInTheEventLoopIsToldAndLetsGoOfTheLock) {
    runDirectly(gData->Velmara, technician("F1"));
    server.dropAt(1);
    QCoreApplication::processEvents();
    ASSERT_TRUE(server.dropped());
    EXPECT_EQ(desk.shown, QStringList{"box|SQL Error\r" + unsure + "Communication link failure."});
    EXPECT_EQ(technicians("F_"), "0");
    desk.onSuite(technician("F2"));
    runDirectly(gData->Velmara, technician("F3"));
    QCoreApplication::processEvents();
    EXPECT_EQ(technicians("F_"), "2");
}

TEST_F(DurabilityTest, aSuiteBatchWhoseServerGoesAwayIsTakenBackAndNeverRunAgain) {
    const char* const calls[] = {"", "begin", "the batch", "commit"};
    for (int call = 1; call <= 3; ++call) {
        SCOPED_TRACE(calls[call]);
        desk.shown.clear();
        server.statements = 0;
        server.dropAt(call);
        sfg_AddSQL(technician("G1"), "NEW");
        sfg_AddSQL(technician("G2"), "");
        if (call == 1) {
            EXPECT_THROW(gData->vel_ExecSQL(1), velcro::sql::SqlError);
        } else {
            EXPECT_FALSE(gData->vel_ExecSQL(1));
            EXPECT_EQ(desk.shown, QStringList{"box|SQL Error\r" + (call == 3 ? unsure : QString()) +
                                              "Communication link failure."});
            EXPECT_EQ(written(), technician("G1") + " ;\n" + technician("G2") + " ;");
        }
        EXPECT_TRUE(server.dropped());
        EXPECT_LE(server.statements, 1) << "it must not be sent twice";
        EXPECT_EQ(technicians("G_"), "0");
    }
    sfg_AddSQL(technician("G1"), "NEW");
    EXPECT_TRUE(gData->vel_ExecSQL(1)) << "the screen is still open and the user tries again";
    EXPECT_EQ(technicians("G_"), "1");
}

TEST_F(DurabilityTest, aLostReadIsRunAgainOnTheCommonAndTheTillConnectionOnly) {
    tData->ConnectDB_TIL();
    server.dropAt(1);
    EXPECT_EQ(desk.common("SELECT COUNT(*) FROM vcVersions"), "4");
    EXPECT_TRUE(server.dropped());
    server.dropAt(1);
    tData->tQuery1.SQL.Add("SELECT 7");
    tData->tQuery1.Open();
    EXPECT_EQ(tData->tQuery1.Fields(0).AsInteger(), 7);
    EXPECT_TRUE(server.dropped());
    server.dropAt(1);
    EXPECT_THROW(desk.suite("SELECT COUNT(*) FROM CROTechMst"), velcro::sql::SqlError);
    EXPECT_NE(desk.suite("SELECT COUNT(*) FROM CROTechMst"), "0");
    EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(DurabilityTest, aLostTillBatchRunsOnceAndOneLostAtItsCommitIsNotRunAgain) {
    tData->ConnectDB_TIL();
    sfg_AddSQL("CREATE TABLE [TillWork] ([A] int)", "NEW");
    ASSERT_TRUE(tData->til_ExecSQL(1)) << gErrorMsg.toStdString();
    const auto till = [this] { return others("SELECT COUNT(*) FROM [TillWork]", "VELTILL"); };
    server.dropAt(1);
    sfg_AddSQL("INSERT INTO [TillWork] VALUES (1)", "NEW");
    EXPECT_THROW(tData->til_ExecSQL(1), velcro::sql::SqlError) << "it could not begin";
    EXPECT_TRUE(server.dropped());
    EXPECT_EQ(till(), "0");
    EXPECT_TRUE(tData->ConnectDB_TIL());
    for (int count = 1; count <= 2; ++count) {
        server.dropAt(2); // the batch
        sfg_AddSQL("INSERT INTO [TillWork] VALUES (1)", "NEW");
        EXPECT_TRUE(tData->til_ExecSQL(1)) << gErrorMsg.toStdString();
        EXPECT_TRUE(server.dropped());
        EXPECT_EQ(till(), QString::number(count));
    }
    server.dropAt(3);
    sfg_AddSQL("INSERT INTO [TillWork] VALUES (1)", "NEW");
    EXPECT_FALSE(tData->til_ExecSQL(1)) << "nobody knows what became of a lost commit";
    EXPECT_TRUE(gErrorMsg.endsWith("Communication link failure.")) << gErrorMsg.toStdString();
    EXPECT_EQ(till(), "2");
}

TEST_F(DurabilityTest, aBatchThatFillsTheDiskIsToldTakenBackAndCanBeTriedAgain) {
    const QString big = "INSERT INTO SYSSaveGrids ([CO], [UserCode], [ScreenID], [GridSettings])"
                        " SELECT '01', 'FULL', 'H', REPLICATE(CAST('x' AS NVARCHAR(MAX)), 3000000)";
    const auto add = [&] {
        sfg_AddSQL(technician("H1"), "NEW");
        sfg_AddSQL(big, "");
    };
    {
        const velcro::test::FullDisk full(1'000'000);
        add();
        EXPECT_FALSE(gData->vel_ExecSQL(1));
    }
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith(QString("box|SQL Error\r") + velcro::test::FullDisk::told))
        << desk.shown[0].toStdString();
    EXPECT_EQ(written(), technician("H1") + " ;\n" + big + " ;");
    EXPECT_EQ(technicians("H_"), "0");
    add();
    EXPECT_TRUE(gData->vel_ExecSQL(1));
    EXPECT_EQ(technicians("H_"), "1");
}

TEST_F(DurabilityTest, aBatchOfWhichAStatementFailsIsNotThereAtAll) {
    const std::pair<QString, QString> failures[] = {
        {technician("A-CODE-TOO-LONG"), "String or binary data would be truncated"},
        {"INSERT INTO CRONoTable ([CO]) VALUES ('01')", "Invalid object name 'CRONoTable'."},
        {"UPDATE CROTechMst SOT [CO] = '1'", "Incorrect syntax near"}};
    for (const auto& [statement, reason] : failures) {
        desk.shown.clear();
        // Nobody but the program makes these folders, and somebody may have tidied them away.
        QDir(desk.workingFolder() + "SQL").removeRecursively();
        sfg_AddSQL(technician("I1"), "NEW");
        sfg_AddSQL(statement, "");
        sfg_AddSQL(technician("I3"), "");
        const QString batch = gSQL.Text();
        EXPECT_FALSE(gData->vel_ExecSQL(1));
        EXPECT_EQ(technicians("I_"), "0");
        EXPECT_TRUE(desk.shown.value(0).startsWith("box|SQL Error\r" + reason))
            << desk.shown.value(0).toStdString();
        EXPECT_EQ(written(), batch);
        EXPECT_TRUE(gSQL.isEmpty());
    }
    sfg_AddSQL(technician("I3"), "NEW");
    EXPECT_TRUE(gData->vel_ExecSQL(1)) << "the connection works on";
    EXPECT_EQ(technicians("I_"), "1");
}
