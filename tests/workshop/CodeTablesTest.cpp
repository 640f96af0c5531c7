// The workshop's code tables: three lists with their details, by one table of what differs.
#include "data/DataModules.h"
#include "data/Session.h"
#include "support/Desk.h"
#include "support/DetailColumns.h"
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
    struct
    {
        const char *list, *detail;
    } caption, errorNo;
    const char* orderBy;  // column
    QStringList headings; // in view order
    struct
    {
        const char *add, *edit, *remove, *save;
    } button;
    struct
    {
        const char *edit, *column, *heading;
    } key, name; // the code and what it means
    struct
    {
        const char *noKey, *noName, *taken, *takenFocus;
    } refusal;
};

const Member members[] = {
    {"CROCodeMaster",
     make<TfrmCRO001>,
     make<TfrmCRO001A>,
     {"Workshop Centre: System Codes Management", "Workshop Centre: System Code Management"},
     {"001-001", "001-001"},
     "Code",
     {"Code Type", "System Code", "Description", "Notes"},
     {"    New*    Code", "     Edit      Code", "Remove Code", "Save Code"},
     {"edCode", "Code", "System Code"},
     {"edDescription", "Description", "Description"},
     {"Please enter the system code.", "Please enter the system code description.",
      "System code already exists. Enter a unique one.", "cmbCodeType"}},
    {"CROTechMst",
     make<TfrmCRO002>,
     make<TfrmCRO002A>,
     {"Workshop Centre: Technicians Management", "Workshop Centre: Technician Management"},
     {"002-001", "001-001"},
     "TechCode",
     {"Technician Code", "Technician Name", "Cellphone"},
     {"New* Technician", "Edit Technician", "Remove Technician", "Save Technician"},
     {"edTechCode", "TechCode", "Technician Code"},
     {"edTechName", "TechName", "Technician Name"},
     {"Please enter the system code.", "Please enter the system code description.",
      "Technician code already exists. Enter a unique one.", "edTechCode"}},
    {"CROProcessMst",
     make<TfrmCRO003>,
     make<TfrmCRO003A>,
     {"Workshop Centre: Process Codes Management", "Workshop Centre: Process Code Management"},
     {"003-001", "003-001"},
     "ProcessSeq",
     {"Sequence", "Process Code", "Description"},
     {"New* Process", "Edit Process", "Remove Process", "Save Code"},
     {"edProcessCode", "ProcessCode", "Process Code"},
     {"edDescription", "Description", "Description"},
     {"Please enter the process code.", "Please enter the process code description.",
      "Technician code already exists. Enter a unique one.", "edProcessCode"}}};

class CodeTablesTest : public testing::TestWithParam<Member>
{
protected:
    CodeTablesTest() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised.append(message); });
    }
    ~CodeTablesTest() override { velcro::ui::setErrorDisplay({}); }

    const Member& member = GetParam();

    /// The column of the row with that code, of company 01.
    QString stored(const QString& code, const char* column) const {
        return Desk::suite(
            QString("SELECT [%1] FROM %2 WHERE [CO] = '01' AND [%3] = N'%4'")
                .arg(column, member.table, member.key.column, QString(code).replace("'", "''")));
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
        user.typeInto(member.key.edit, code);
        user.typeInto(member.name.edit, name);
    }
    void expectPlainScreen(const QString& picture) {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), picture);
    }
    QStringList faults() const { return desk.shown + raised; }

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
        EXPECT_EQ(user.form().windowTitle(), member.caption.list);
        EXPECT_EQ(
            QString::number(user.rowCount()),
            Desk::suite(QString("SELECT COUNT(*) FROM %1 WHERE [CO] = '01'").arg(member.table)));
        EXPECT_EQ(user.current(member.key.heading),
                  Desk::suite(QString("SELECT TOP(1) [%1] FROM %2 WHERE [CO] = '01' ORDER BY [%3]")
                                  .arg(member.key.column, member.table, member.orderBy)));
        for (const QString& heading : member.headings) {
            EXPECT_EQ(user.column(heading).size(), user.rowCount()) << heading.toStdString();
        }
        for (const char* hidden : {"Company", "RecID"}) {
            EXPECT_THROW(user.column(hidden), std::runtime_error) << hidden;
        }
        for (const auto& [button, caption] : {std::pair("btnAdd", member.button.add),
                                              {"btnUpdate", member.button.edit},
                                              {"btnDelete", member.button.remove}}) {
            EXPECT_EQ(user.sees(button), caption);
        }
        expectPlainScreen(picture + "-list");
        user.press(Qt::Key_Down);
        const QString code = user.current(member.key.heading);
        user.expectForm(member.caption.detail, [&] {
            EXPECT_EQ(user.sees(member.key.edit), code);
            EXPECT_TRUE(user.find<QLineEdit>(member.key.edit).isReadOnly());
            EXPECT_EQ(user.focus(), member.name.edit);
            EXPECT_EQ(user.sees("btnSave"), member.button.save);
            expectPlainScreen(picture + "-detail");
            user.typeInto(member.name.edit, "changed");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current(member.key.heading), code) << "found again";
        EXPECT_EQ(user.current(member.name.heading), "CHANGED");

        const int before = user.rowCount();
        user.expectForm(member.caption.detail, [&] {
            EXPECT_EQ(user.sees("btnSave"), "DELETE");
            EXPECT_FALSE(user.find<QWidget>("pnlMain").isEnabled());
            EXPECT_EQ(user.message(), "Press [F10] to Delete");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(user.rowCount(), before - 1);
        EXPECT_FALSE(user.column(member.key.heading).contains(code));
        user.expectForm(member.caption.detail, [&] {
            expectPlainScreen(picture + "-new");
            fill("zz1", "added");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
        EXPECT_TRUE(user.column(member.key.heading).contains("ZZ1"));
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(faults(), QStringList());
}

TEST_P(CodeTablesTest, everyFieldComesIntoItsColumnAndBack) {
    QStringList keeps = {member.key.column};
    if (member.refusal.takenFocus == std::string("cmbCodeType")) {
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
    const QString known = Desk::suite(QString("SELECT TOP(1) [%1] FROM %2 WHERE [CO] = '01'")
                                          .arg(member.key.column, member.table));
    const bool bySequence = member.orderBy == std::string("ProcessSeq");
    show(1, {}, [&] {
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.refusal.noKey);
        EXPECT_EQ(user.focus(), member.key.edit);
        user.typeInto(member.key.edit, " ");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.refusal.noName) << "blanks are a code";
        EXPECT_EQ(user.focus(), member.name.edit);
        fill(known.toLower(), "  ");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.refusal.noName) << "and no name";
        user.typeInto(member.name.edit, "Twice");
        if (bySequence) {
            user.typeInto("edProcessSeq", "3000000000");
            user.press(Qt::Key_F10);
            EXPECT_EQ(user.message(), "The sequence is too large.");
            user.typeInto("edProcessSeq", stored(known, "ProcessSeq"));
        }
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), member.refusal.taken);
        EXPECT_EQ(user.focus(), member.refusal.takenFocus);
        EXPECT_EQ(user.sees(member.name.edit), "TWICE");
        if (bySequence) {
            user.typeInto("edProcessSeq", "0");
        } else {
            user.typeInto(member.key.edit, "O'TOO LONG FOR IT");
        }
        user.typeInto(member.name.edit, QString(101, 'x'));
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(stored(bySequence ? known : "O'TOO LONG", member.name.column), QString(100, 'X'));
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
        EXPECT_EQ(desk.shown, QStringList(member.errorNo.list + reason));
        EXPECT_EQ(raised.size(), 1) << "and thrown on";
        user.press(Qt::Key_Escape);
    });
    const auto screen = member.detail();
    screen->xFunction = 2;
    screen->xRecID = 1;
    user.workIn(*screen, [&] {
        EXPECT_EQ(desk.shown.value(1), member.errorNo.detail + reason);
        EXPECT_EQ(raised.size(), 1) << "the dialog is all";
        user.press(Qt::Key_Escape);
    });
}
