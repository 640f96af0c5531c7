// The workshop's code tables: three lists with their details, by one table of what differs.
#include "data/DataModules.h"
#include "data/Session.h"
#include "support/Desk.h"
#include "support/DetailColumns.h"
#include "support/DroppingServer.h"
#include "support/ScreenChecks.h"
#include "ui/Handler.h"
#include "workshop/CRO001.h"
#include "workshop/CRO002.h"
#include "workshop/CRO003.h"

#include <QLineEdit>
#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

template <typename Screen>
std::unique_ptr<Screen> make() {
    auto screen = std::make_unique<Screen>();
    screen->resize(1024, 768);
    return screen;
}

struct Member
{
    const char* table;
    std::function<std::unique_ptr<ListScreen>()> list;
    std::function<std::unique_ptr<DetailScreen>()> detail;
    const char *listCaption, *detailCaption, *listNo, *detailNo;
    const char* orderBy;                             // column
    QStringList headings;                            // in view order
    const char *add, *edit, *remove, *save;          // captions
    const char *keyEdit, *keyColumn, *keyHeading;    // the code
    const char *nameEdit, *nameColumn, *nameHeading; // what it means
    const char *noKey, *noName, *taken, *takenFocus;
};

const Member members[] = {
    {"CROCodeMaster",
     make<TfrmCRO001>,
     make<TfrmCRO001A>,
     "Workshop Centre: System Codes Management",
     "Workshop Centre: System Code Management",
     "001-001",
     "001-001",
     "Code",
     {"Code Type", "System Code", "Description", "Notes"},
     "    New*    Code",
     "     Edit      Code",
     "Remove Code",
     "Save Code",
     "edCode",
     "Code",
     "System Code",
     "edDescription",
     "Description",
     "Description",
     "Please enter the system code.",
     "Please enter the system code description.",
     "System code already exists. Enter a unique one.",
     "cmbCodeType"},
    {"CROTechMst",
     make<TfrmCRO002>,
     make<TfrmCRO002A>,
     "Workshop Centre: Technicians Management",
     "Workshop Centre: Technician Management",
     "002-001",
     "001-001",
     "TechCode",
     {"Technician Code", "Technician Name", "Cellphone"},
     "New* Technician",
     "Edit Technician",
     "Remove Technician",
     "Save Technician",
     "edTechCode",
     "TechCode",
     "Technician Code",
     "edTechName",
     "TechName",
     "Technician Name",
     "Please enter the system code.",
     "Please enter the system code description.",
     "Technician code already exists. Enter a unique one.",
     "edTechCode"},
    {"CROProcessMst",
     make<TfrmCRO003>,
     make<TfrmCRO003A>,
     "Workshop Centre: Process Codes Management",
     "Workshop Centre: Process Code Management",
     "003-001",
     "003-001",
     "ProcessSeq",
     {"Sequence", "Process Code", "Description"},
     "New* Process",
     "Edit Process",
     "Remove Process",
     "Save Code",
     "edProcessCode",
     "ProcessCode",
     "Process Code",
     "edDescription",
     "Description",
     "Description",
     "Please enter the process code.",
     "Please enter the process code description.",
     "Technician code already exists. Enter a unique one.",
     "edProcessCode"},
};

class CodeTablesTest : public testing::TestWithParam<Member>
{
protected:
    CodeTablesTest() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised.append(message); });
    }
    ~CodeTablesTest() override { velcro::ui::setErrorDisplay({}); }

    const Member& member = GetParam();

    QString rows(const QString& where = "1 = 1") const {
        return Desk::suite(QString("SELECT COUNT(*) FROM ") + member.table + " WHERE " + where);
    }
    /// The column of the row with that code, of company 01.
    QString stored(const QString& code, const char* column) const {
        return Desk::suite(
            QString("SELECT [%1] FROM %2 WHERE [CO] = '01' AND [%3] = N'%4'")
                .arg(column, member.table, member.keyColumn, QString(code).replace("'", "''")));
    }
    void showList(const ScriptedUser::Step& steps) {
        const auto screen = member.list();
        user.workIn(*screen, steps);
    }
    void show(int xFunction, const QString& code, const ScriptedUser::Step& steps) {
        const auto screen = member.detail();
        screen->xFunction = xFunction;
        screen->xRecID = xFunction == 1 ? 0 : stored(code, "RecID").toInt();
        user.workIn(*screen, steps);
    }
    void fill(const QString& code, const QString& name) {
        user.typeInto(member.keyEdit, code);
        user.typeInto(member.nameEdit, name);
    }
    void add(const QString& code, const QString& name) {
        show(1, {}, [&] {
            fill(code, name);
            user.press(Qt::Key_F10);
        });
    }
    void expectPlainScreen(const QString& picture) {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), picture);
    }
    QStringList faults() const { return desk.shown + raised; }

    velcro::test::DroppingServer server; // stands before the desk connects
    Desk desk;
    ScriptedUser user;
    QStringList raised; // what reached the default error display
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Workshop, CodeTablesTest, testing::ValuesIn(members),
                         [](const auto& info) { return std::string(info.param.table); });

TEST_P(CodeTablesTest, theListShowsTheCompanysCodesInTheirOrderAndLeadsToTheDetail) {
    const QString picture = member.table;
    showList([&] {
        EXPECT_EQ(user.form().windowTitle(), member.listCaption);
        EXPECT_EQ(user.rowCount(), rows("[CO] = '01'").toInt());
        EXPECT_EQ(user.current(member.keyHeading),
                  Desk::suite(QString("SELECT TOP(1) [%1] FROM %2 WHERE [CO] = '01' ORDER BY [%3]")
                                  .arg(member.keyColumn, member.table, member.orderBy)));
        for (const QString& heading : member.headings) {
            EXPECT_EQ(user.column(heading).size(), user.rowCount()) << heading.toStdString();
        }
        for (const char* hidden : {"Company", "RecID"}) {
            EXPECT_THROW(user.column(hidden), std::runtime_error) << hidden;
        }
        for (const auto& [button, caption] : {std::pair("btnAdd", member.add),
                                              {"btnUpdate", member.edit},
                                              {"btnDelete", member.remove}}) {
            EXPECT_EQ(user.sees(button), caption);
        }
        expectPlainScreen(picture + "-list");
        user.press(Qt::Key_Down);
        const QString code = user.current(member.keyHeading);
        user.expectForm(member.detailCaption, [&] {
            EXPECT_EQ(user.sees(member.keyEdit), code);
            EXPECT_TRUE(user.find<QLineEdit>(member.keyEdit).isReadOnly());
            EXPECT_EQ(user.focus(), member.nameEdit);
            EXPECT_EQ(user.sees("btnSave"), member.save);
            expectPlainScreen(picture + "-detail");
            user.typeInto(member.nameEdit, "changed");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current(member.keyHeading), code) << "found again";
        EXPECT_EQ(user.current(member.nameHeading), "CHANGED");

        const int before = user.rowCount();
        user.expectForm(member.detailCaption, [&] {
            EXPECT_EQ(user.sees("btnSave"), "DELETE");
            EXPECT_FALSE(user.find<QWidget>("pnlMain").isEnabled());
            EXPECT_EQ(user.message(), "Press [F10] to Delete");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(user.rowCount(), before - 1);
        EXPECT_FALSE(user.column(member.keyHeading).contains(code));
        user.expectForm(member.detailCaption, [&] {
            expectPlainScreen(picture + "-new");
            fill("zz1", "added");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
        EXPECT_TRUE(user.column(member.keyHeading).contains("ZZ1"));
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, everyFieldComesIntoItsColumnAndBack) {
    QStringList keeps = {member.keyColumn};
    if (member.takenFocus == std::string("cmbCodeType")) {
        keeps << "CodeType";
    }
    expectEveryColumnIsKept(user, {.screen = member.detail,
                                   .typed = {{"edCode", {"C1", {}}},
                                             {"edTechCode", {"C1", {}}},
                                             {"edProcessCode", {"C1", {}}},
                                             {"edDescription", {"FIRST", "SECOND"}},
                                             {"edNotes", {"FIRST", "SECOND"}},
                                             {"edTechName", {"FIRST", "SECOND"}},
                                             {"edProcessSeq", {"7", "-12"}}},
                                   .keeps = keeps});
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, refusalsComeInOrderAndLoseNothing) {
    const QString name = stored(stored({}, member.keyColumn), member.nameColumn);
    const QString known = Desk::suite(QString("SELECT TOP(1) [%1] FROM %2 WHERE [CO] = '01'")
                                          .arg(member.keyColumn, member.table));
    const bool bySequence = member.orderBy == std::string("ProcessSeq");
    show(1, {}, [&] {
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.noKey);
        EXPECT_EQ(user.focus(), member.keyEdit);
        user.typeInto(member.keyEdit, " ");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.noName) << "blanks are a code";
        EXPECT_EQ(user.focus(), member.nameEdit);
        fill(known.toLower(), "  ");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.noName) << "and no name";
        user.typeInto(member.nameEdit, "Twice");
        if (bySequence) {
            user.typeInto("edProcessSeq", "3000000000");
            user.press(Qt::Key_F10);
            EXPECT_EQ(user.message(), "The sequence is too large.");
            user.typeInto("edProcessSeq", stored(known, "ProcessSeq"));
        }
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.taken);
        EXPECT_EQ(user.focus(), member.takenFocus);
        EXPECT_EQ(user.sees(member.nameEdit), "TWICE");
        if (bySequence) {
            user.typeInto("edProcessSeq", "0");
        } else {
            user.typeInto(member.keyEdit, "NEW ONE");
        }
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(rows(QString("[CO] = '01' AND [%1] = 'TWICE'").arg(member.nameColumn)), "1");
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, anyTextIsKeptAsItStands) {
    const struct
    {
        QString code, name;
    } texts[] = {
        {"O'B\"`", "'; DROP TABLE CROTECHMST --"},
        {"%_[A]", "100% _ [A-Z] {} $ :NAME ? @X"},
        {"-A-", "A - B"},
        {QString::fromUtf8("ΚΩΔΙΚΟΣ"), QString(100, QChar(0x03A9))},
        {QString::fromUtf8("قطعة 日本"), QString::fromUtf8("東京 😀")},
        {"          ", "TEN BLANKS"},
    };
    for (const auto& [code, name] : texts) {
        add(code, name);
        EXPECT_EQ(rows(QString("[CO] = '01' AND [%1] = N'%2' AND [%3] = N'%4'")
                           .arg(member.keyColumn, QString(code).replace("'", "''"),
                                member.nameColumn, QString(name).replace("'", "''"))),
                  "1")
            << code.toStdString();
    }
    add("TOO LONG FOR IT", QString(101, 'x'));
    EXPECT_EQ(stored("TOO LONG F", member.nameColumn), QString(100, 'X'));
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, twoUsersAndARowThatVanished) {
    add("ZZ1", "Both have it");
    show(2, "ZZ1", [&] {
        user.typeInto(member.nameEdit, "Second");
        show(2, "ZZ1", [&] {
            user.typeInto(member.nameEdit, "First");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(stored("ZZ1", member.nameColumn), "SECOND") << "the last one wins";
    const QString before = rows();
    show(2, "ZZ1", [&] {
        Desk::onSuite(
            QString("DELETE FROM %1 WHERE [%2] = 'ZZ1'").arg(member.table, member.keyColumn));
        user.typeInto(member.nameEdit, "Too late");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(rows().toInt(), before.toInt() - 1) << "nothing comes back";
    show(3, "ZZ1", [&] {
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.noKey) << "there is nothing to delete";
        user.press(Qt::Key_Escape);
    });
    // Another seat takes the code while it is typed here.
    show(1, {}, [&] {
        fill("ZZ2", "Here");
        show(1, {}, [&] {
            fill("ZZ2", "There");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.taken);
        user.expectForm("System Prompt", [&] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(stored("ZZ2", member.nameColumn), "THERE");
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, aTableThatCannotBeReadIsToldAndAnEmptyOneIsQuiet) {
    Desk::onSuite(QString("DELETE FROM %1").arg(member.table));
    showList([&] {
        EXPECT_EQ(user.rowCount(), 0);
        for (const auto key : {Qt::Key_Return, Qt::Key_Delete}) {
            user.press(key);
        }
        expectPlainScreen(QString(member.table) + "-empty");
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(faults(), QStringList());
    Desk::onSuite(QString("DROP TABLE %1").arg(member.table));
    const QString reason =
        QString("|SQL Error reading object \"%1\". Details: \rInvalid object name '%1'.")
            .arg(member.table);
    showList([&] {
        EXPECT_EQ(desk.shown, QStringList(member.listNo + reason));
        EXPECT_EQ(raised.size(), 1) << "and thrown on";
        user.press(Qt::Key_Escape);
    });
    const auto screen = member.detail();
    screen->xFunction = 2;
    screen->xRecID = 1;
    user.workIn(*screen, [&] {
        EXPECT_EQ(desk.shown.value(1), member.detailNo + reason);
        EXPECT_EQ(raised.size(), 1) << "the dialog is all";
        user.press(Qt::Key_Escape);
    });
}

// Calls of F10 in add mode: duplicate check, begin, insert, commit.
TEST_P(CodeTablesTest, aServerLostAtAnyStatementLeavesAWholeCodeOrNone) {
    for (int call = 1; call <= 4; ++call) {
        const QString code = "LOST" + QString::number(call);
        const auto told = faults().size();
        bool stayed = false;
        show(1, {}, [&] {
            fill(code, "Lost");
            server.dropAt(call);
            user.press(Qt::Key_F10);
            stayed = user.form().isVisible();
            if (stayed) {
                EXPECT_EQ(user.sees(member.keyEdit), code) << "nothing typed is lost";
                user.press(Qt::Key_F10);
            }
        });
        EXPECT_TRUE(server.dropped()) << call;
        server.forget();
        EXPECT_EQ(faults().size(), told + 1) << call << ": told once";
        EXPECT_EQ(stored(code, member.nameColumn), stayed ? "LOST" : "") << call;
    }
}
