// The work steps of an item: their list, and the screen that adds, changes and removes one.
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"
#include "platform/seat/Clock.h"
#include "repairs/CRO102.h"
#include "repairs/CRO102A.h"
#include "repairs/SysCRO.h"
#include "support/Desk.h"
#include "support/DetailColumns.h"
#include "support/DroppingServer.h"
#include "support/ScreenChecks.h"
#include "ui/Handler.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString detailTitle = QStringLiteral("Workshop Centre: Item Processes");

class ProcessesTest : public testing::Test
{
protected:
    ProcessesTest() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised.append(message); });
        Desk::onSuite("DELETE FROM CRORepItmProcess");
        addRow("100299", "0", "2026/03/05", "08:15:00", "T02", "DIAGNOSE", "7", "First");
        addRow("100299", "0", "2026/03/06", "00:00:00", "T03", "REPAIR", "8", "Second");
        addRow("100299", "1", "2026/03/05", "09:00:00", "T02", "DIAGNOSE", "9", "Of an item");
        addRow("100300", "0", "2026/03/05", "09:00:00", "T02", "DIAGNOSE", "10", "Of another");
    }
    ~ProcessesTest() override {
        velcro::ui::setErrorDisplay({});
        gParameters.clear();
        gMainRecID = 0;
    }

    static void addRow(const QString& order, const QString& item, const QString& date,
                       const QString& time, const QString& technician, const QString& process,
                       const QString& number, const QString& notes) {
        Desk::onSuite(
            "INSERT INTO CRORepItmProcess ([CO], [Branch], [CRONo], [ItemNo], "
            "[TranDate], [TranTime], [TechCode], [ProcessCode], [ProcessID], [Notes]) "
            "VALUES ('01', '100', '" +
            QStringList{order, item, date, time, technician, process, number, notes}.join("', '") +
            "')");
    }
    static QString row(const QString& notes, const QString& columns = "[RecID]") {
        return Desk::suite("SELECT " + columns + " FROM CRORepItmProcess WHERE [Notes] = '" +
                           notes + "'");
    }
    static QString rows() { return Desk::suite("SELECT COUNT(*) FROM CRORepItmProcess"); }
    static int nextNumber() { return sld_GenerateDocNo(gCO, gBranch, "CRO", "CROPRC").toInt(); }

    void showList(const ScriptedUser::Step& steps) {
        TfrmCRO102 screen;
        screen.resize(1024, 768);
        screen.edCRONo->setText("100299");
        screen.edSerialNo->setText("SN-1");
        screen.edDescription1->setText("Drill");
        user.workIn(screen, steps);
    }
    void show(int xFunction, const QString& notes, const ScriptedUser::Step& steps) {
        TfrmCRO102A screen;
        screen.resize(1024, 768);
        screen.xFunction = xFunction;
        screen.xRecID = xFunction == 1 ? 0 : row(notes).toInt();
        user.workIn(screen, steps);
    }
    void expectPlainScreen(const QString& picture) {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), picture);
    }
    QStringList faults() const { return desk.shown + raised; }

    Desk desk;
    velcro::test::DroppingServer server; // stands before the suite is connected again
    ScriptedUser user;
    QStringList raised; // what reached the default error display
};

} // namespace

TEST_F(ProcessesTest, theListShowsTheStepsOfTheOrderAsAWholeAndStaysAsItWasRead) {
    showList([&] {
        EXPECT_EQ(user.sees("edItemNo"), "0") << "nobody fills it";
        EXPECT_EQ(user.sees("edSerialNo"), "SN-1");
        EXPECT_EQ(user.column("Time Stamp"), QStringList({"2026/03/05 08:15:00", "2026/03/06"}));
        EXPECT_EQ(user.column("Process #ID"), QStringList({"7", "8"}));
        for (const char* blank : {"Technician Code", "Process Code"}) {
            EXPECT_EQ(user.column(blank), QStringList({"", ""})) << blank;
        }
        EXPECT_EQ(dynamic_cast<TfrmCRO102&>(user.form()).StatusBar1().panelText(0), "CRO101");
        expectPlainScreen("CRO102");
        user.expectForm(detailTitle, [&] {
            EXPECT_EQ(dynamic_cast<TfrmCRO102A&>(user.form()).xRecID, row("First").toInt());
            EXPECT_EQ(user.sees("edCRONo"), "");
            EXPECT_EQ(user.sees("edSerialNo"), "");
            user.typeInto("edNotes", "Changed");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Notes"), QStringList({"First", "Second"})) << "not read again";
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.column("Notes"), QStringList({"Changed", "Second"}));

        user.expectForm(detailTitle, [&] {
            expectPlainScreen("CRO102A-new");
            user.typeInto("edNotes", "New one");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.rowCount(), 2) << "it knows no order, and is not listed";
        EXPECT_EQ(row("New one", "[CRONo] + '|' + [ItemNo]"), "|0");

        user.press(Qt::Key_Down);
        user.expectForm(detailTitle, [&] {
            EXPECT_EQ(user.sees("btnSave"), "DELETE");
            EXPECT_EQ(user.message(), "Press [F10] to Delete");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(row("Second"), "");
        EXPECT_EQ(user.rowCount(), 2);
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(ProcessesTest, aRowThatWasAskedForIsFoundOnce) {
    gMainRecID = row("Second").toInt();
    showList([&] {
        EXPECT_EQ(user.current("Notes"), "Second");
        EXPECT_EQ(gMainRecID, 0);
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.current("Notes"), "First");
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ProcessesTest, everyFieldComesIntoItsColumnAndBack) {
    const int number = nextNumber() + 1;
    velcro::seat::setClock(velcro::seat::now()); // both rows are stamped in one second
    const auto goOn = qScopeGuard([] { velcro::seat::setClock({}); });
    expectEveryColumnIsKept(user, {.screen = [] { return std::make_unique<TfrmCRO102A>(); },
                                   .others = {{"Branch", "100"},
                                              {"CRONo", ""},
                                              {"ItemNo", "0"},
                                              {"TranDate", sfg_Date(0)},
                                              {"TranTime", sfg_Time()},
                                              {"ProcessID", QString::number(number)}}});
    EXPECT_EQ(nextNumber(), number + 2) << "the update took a number too";
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(ProcessesTest, aStepIsLoadedWithItsStampAndCodes) {
    show(2, "First", [&] {
        EXPECT_EQ(user.sees("edTimeStamp"), "2026/03/05 08:15:00") << "whole";
        EXPECT_EQ(user.sees("edItemNo"), "0");
        EXPECT_EQ(user.sees("edProcessID"), "7");
        EXPECT_EQ(user.sees("cmbTechCode").section(' ', 0, 0), "T02");
        EXPECT_EQ(user.sees("cmbProcessCode").section(' ', 0, 0), "DIAGNOSE");
        EXPECT_EQ(user.focus(), "cmbTechCode");
        expectPlainScreen("CRO102A-filled");
        for (const char* combo : {"cmbTechCode", "cmbProcessCode"}) {
            user.find<QWidget>(combo).setFocus();
            user.press(Qt::Key_Home);
            EXPECT_EQ(user.sees(combo).trimmed(), "");
        }
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(row("First", "[TechCode] + '|' + [ProcessCode]"), "|") << "blank codes are legal";
    EXPECT_EQ(row("First", "[TranDate] + [TranTime]"), "2026/03/0508:15:00");
    EXPECT_EQ(row("First", "[ProcessID]"), "7") << "the number that was shown is thrown away";
}

TEST_F(ProcessesTest, aCodeThatItsTableHasNoMoreStaysWithTheStep) {
    Desk::onSuite("DELETE FROM CROTechMst");
    Desk::onSuite("DELETE FROM CROProcessMst");
    show(2, "First", [&] {
        EXPECT_EQ(user.sees("cmbTechCode"), "T02");
        EXPECT_EQ(user.sees("cmbProcessCode"), "DIAGNOSE");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(row("First", "[TechCode] + '|' + [ProcessCode]"), "T02|DIAGNOSE");
    show(1, {}, [&] {
        EXPECT_EQ(user.find<QComboBox>("cmbTechCode").count(), 1) << "the blank entry alone";
        expectPlainScreen("CRO102A-empty");
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ProcessesTest, aNewCodeIsOfferedWithoutARestartInTheOrderOfItsList) {
    const auto entries = [&] {
        QStringList codes;
        show(1, {}, [&] {
            const auto& combo = user.find<QComboBox>("cmbProcessCode");
            for (int i = 0; i < combo.count(); ++i) {
                codes << combo.itemText(i).section(' ', 0, 0);
            }
            user.press(Qt::Key_Escape);
        });
        return codes;
    };
    const auto before = entries();
    Desk::onSuite("INSERT INTO CROProcessMst ([CO], [ProcessSeq], [ProcessCode], [Description]) "
                  "VALUES ('01', '15', 'BETWEEN', 'O''Between')");
    auto after = before;
    after.insert(after.indexOf("DIAGNOSE"), "BETWEEN");
    EXPECT_EQ(entries(), after);
}

TEST_F(ProcessesTest, withoutANumberNothingIsWrittenAndADeleteNeedsNone) {
    Desk::onSuite("CREATE PROCEDURE VELMARA_GENERATE_NUMBER @CO nvarchar(10), @BRANCH "
                  "nvarchar(10), @MODCODE nvarchar(3), @TXTP nvarchar(6) AS SELECT 7 AS [NUMBER] "
                  "WHERE 1 = 0");
    const QString before = rows();
    for (const int mode : {1, 2}) {
        desk.shown.clear();
        show(mode, "First", [&] {
            user.typeInto("edNotes", "O'Numberless");
            user.press(Qt::Key_F10);
            EXPECT_EQ(desk.shown, QStringList("100A-002|Error generating repair order process id"));
            EXPECT_EQ(user.sees("edNotes"), "O'Numberless");
            user.expectForm("System Prompt", [&] { user.press(Qt::Key_Y); });
            user.press(Qt::Key_Escape);
        });
    }
    EXPECT_EQ(rows(), before);
    EXPECT_NE(row("First"), "");
    show(3, "First", [&] { user.press(Qt::Key_F10); });
    EXPECT_EQ(row("First"), "");
    Desk::onSuite("DROP PROCEDURE VELMARA_GENERATE_NUMBER");
    Desk::onSuite("CREATE PROCEDURE VELMARA_GENERATE_NUMBER @CO nvarchar(10), @BRANCH "
                  "nvarchar(10), @MODCODE nvarchar(3), @TXTP nvarchar(6) AS SELECT 'seven' AS "
                  "[NUMBER]");
    show(1, {}, [&] {
        user.press(Qt::Key_F10);
        EXPECT_TRUE(raised.value(0).contains("'seven' is not a valid integer value"))
            << raised.join('\n').toStdString();
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ProcessesTest, anyTextIsKeptAndVanishedRowsStayAway) {
    const QString texts[] = {"O'B -- \"x\" %_[a]", QString(100, QChar(0x03A9)),
                             QString::fromUtf8("قطعة 日本 😀"), "   "};
    for (const auto& text : texts) {
        show(1, {}, [&] {
            user.typeInto("edNotes", text);
            user.press(Qt::Key_F10);
        });
        EXPECT_EQ(Desk::suite("SELECT TOP(1) [Notes] FROM CRORepItmProcess ORDER BY [RecID] DESC"),
                  text)
            << text.toStdString();
    }
    const QString before = rows();
    for (const int mode : {2, 3}) {
        addRow("100299", "0", "2026/03/05", "08:15:00", "T02", "TEST", "11", "Vanishing");
        show(mode, "Vanishing", [&] {
            Desk::onSuite("DELETE FROM CRORepItmProcess WHERE [Notes] = 'Vanishing'");
            user.press(Qt::Key_F10);
        });
        EXPECT_EQ(rows(), before) << mode;
    }
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(ProcessesTest, aStampThatIsNoDateOrALostTableIsTold) {
    addRow("100299", "0", "soon", "08:15:00", "", "", "12", "Odd");
    showList([&] {
        EXPECT_EQ(desk.shown,
                  QStringList("102-001|SQL Error reading object \"CRORepItmProcess\". Details: "
                              "\rConversion failed when converting date and/or time from "
                              "character string."));
        EXPECT_EQ(raised.size(), 1) << "and thrown on";
        EXPECT_EQ(user.rowCount(), 0);
        user.press(Qt::Key_Escape);
    });
    show(2, "Odd", [&] {
        EXPECT_TRUE(desk.shown.value(1).startsWith(
            "102A-001|SQL Error reading object \"CRORepItmProcess\". Details: \rConversion"))
            << desk.shown.join('\n').toStdString();
        EXPECT_EQ(raised.size(), 1);
        user.press(Qt::Key_F10);
        user.press(Qt::Key_Escape);
    });
    EXPECT_NE(row("Odd"), "") << "what could not be read is not saved over";
}

TEST_F(ProcessesTest, keyCapsFollowTheSeatsParameter) {
    for (const char* value : {"N", "Y"}) {
        gParameters.clear();
        gParameters.push_back(std::make_unique<TParameter>(TParameter{"TIL", 62, {}, value}));
        show(1, {}, [&] {
            for (const char* name : {"btnSave", "btnCancel"}) {
                EXPECT_EQ(user.find<QAbstractButton>(name).icon().isNull(), value[0] == 'Y')
                    << name;
            }
            user.press(Qt::Key_Escape);
        });
    }
}

// Calls of F10 in add mode: number, begin, insert, commit.
TEST_F(ProcessesTest, aServerLostAtAnyStatementLeavesAWholeStepOrNone) {
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    for (int call = 1; call <= 4; ++call) {
        const QString notes = "Lost " + QString::number(call);
        const auto told = faults().size();
        bool stayed = false;
        show(1, {}, [&] {
            user.typeInto("edNotes", notes);
            server.dropAt(call);
            user.press(Qt::Key_F10);
            stayed = user.form().isVisible();
            if (stayed) {
                EXPECT_EQ(user.sees("edNotes"), notes);
                user.press(Qt::Key_F10);
            }
        });
        EXPECT_TRUE(server.dropped()) << call;
        server.forget();
        EXPECT_EQ(faults().size(), told + 1) << call << ": told once";
        EXPECT_EQ(row(notes).isEmpty(), !stayed) << call;
    }
}
