// What only the system codes have: a type, shown in words.
#include "support/Desk.h"
#include "support/ScriptedUser.h"
#include "workshop/CRO001.h"

#include <gtest/gtest.h>

using velcro::test::Desk;

TEST(SystemCodesTest, typesAreShownInWordsAndAnUpdateLeavesTheType) {
    Desk desk;
    ScriptedUser user;
    Desk::onSuite("DELETE FROM CROCodeMaster");
    const char* const types[][2] = {
        {"F", "FAULTS"}, {"i", "INTAKES"}, {"S", "STATUSES"}, {"q", "q"}};
    for (const auto& [type, shown] : types) {
        Desk::onSuite(QString("INSERT INTO CROCodeMaster ([CO], [CodeType], [Code], [Description]) "
                              "VALUES ('01', '%1', 'C%1', 'D')")
                          .arg(type));
    }
    TfrmCRO001 list;
    user.workIn(list, [&] {
        for (const auto& [type, shown] : types) {
            const auto row = user.column("System Code").indexOf("C" + QString(type));
            EXPECT_EQ(user.column("Code Type").value(row), shown);
        }
        while (user.current("System Code") != "CF") {
            user.press(Qt::Key_Down);
        }
        user.expectForm("Workshop Centre: System Code Management", [&] {
            EXPECT_EQ(user.sees("cmbCodeType"), "F - FAULTS");
            user.find<QWidget>("cmbCodeType").setFocus();
            user.press(Qt::Key_End);
            EXPECT_EQ(user.sees("cmbCodeType"), "S - STATUSES") << "can be chosen";
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current("Code Type"), "FAULTS") << "and is not written";
        user.press(Qt::Key_Escape);
    });
    TfrmCRO001A odd;
    odd.xFunction = 2;
    odd.xRecID = Desk::suite("SELECT [RecID] FROM CROCodeMaster WHERE [CodeType] = 'q'").toInt();
    user.workIn(odd, [&] {
        EXPECT_EQ(user.sees("cmbCodeType"), "");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Please select the type of code.");
        EXPECT_EQ(user.focus(), "cmbCodeType");
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(desk.shown, QStringList());
}
