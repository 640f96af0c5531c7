// Databases that earlier versions, other programs and people have left: what a sweep makes of them,
// and that their rows are still there.
#include "schema/TillSeat.h"
#include "support/FailureOf.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;
using velcro::test::TillSeat;

TEST(OlderTillTest, aSweepBringsItUpToDateAndLosesNoRow) {
    const auto sections = velcro::test::sectionsOf(OLDER_TILL);
    const EmbeddedDatabase till;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        if (i == 1) {
            TillSeat seat(till.folder().path().string());
            seat.sweep();
            EXPECT_TRUE(seat.refused.contains("DROP INDEX [ Own] ON [dbo].[POSTillMaster] "));
        }
        for (const auto& [batch, answer] : sections[i].questions) {
            EXPECT_EQ(till.answer(batch), answer) << sections[i].name << "\n" << batch;
        }
    }
}

TEST(OlderTillTest, aDescriptionThatCannotBeChangedEndsTheSweepInWords) {
    EmbeddedDatabase database;
    TillSeat seat(database.folder().path().string());
    database.answer("CREATE TABLE Other (A int, B nvarchar(400))");
    database.answer("CREATE VIEW Shown AS SELECT A, B AS Description1 FROM Other");
    const QString failure = failureOf([&] { seat.sweep(); });
    EXPECT_TRUE(failure.startsWith(
        "[SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error reading object "
        "\"INFORMATION_SCHEMA\". Reason: [SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error "
        "Reading \"INFORMATION_SCHEMA\". Reason: DataUTIL.til_ExecSQL - Error Executing SQL "
        "Command. Reason: "))
        << failure.toStdString();
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM SYSTillControl"), "0") << "nothing recorded";
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.indexes WHERE is_unique = 0"), "0");

    database.answer("DROP VIEW Shown");
    database.answer("CREATE TABLE Wide (Description1 nvarchar(400))");
    database.answer("INSERT INTO Wide VALUES (REPLICATE('x', 160))");
    EXPECT_TRUE(failureOf([&] { seat.sweep(); }).contains("SQL Error Reading"));
    EXPECT_EQ(database.answer("SELECT LEN(Description1) FROM Wide"), "160");

    database.answer("UPDATE Wide SET Description1 = 'x'");
    seat.sweep();
    EXPECT_EQ(database.answer("SELECT DBVersion FROM SYSTillControl"), "14.47.41");
}

// Versions are compared as text.
TEST(OlderTillTest, theVersionOnRecordDecides) {
    gTillDBVersion = requiredTillDBVersion;
    const struct
    {
        const char* recorded;
        bool behind;
    } versions[] = {{"", true},       {"14.47.40", true}, {"14.47.41", false}, {"14.47.5", false},
                    {"9.1.1", false}, {"15.0.0", false},  {"14.47", true},     {"v14", false},
                    {" 99", true},    {"x", false},       {"14.47.41 ", false}};
    for (const auto& [recorded, behind] : versions) {
        gLocalDBVersion = recorded;
        EXPECT_EQ(tillSchemaIsBehind(), behind) << recorded;
    }
}
