#include "data/Reading.h"

#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "support/FailureOf.h"
#include "support/FakeServer.h"

#include <gtest/gtest.h>

using velcro::test::FakeServer;

namespace {

class ReadingTest : public testing::Test
{
protected:
    ReadingTest() {
        createDataModules();
        gData->ConnectDB_VEL({}, "shop", "SUITE", {}, {}, {});
        server.answer("FROM Good", {"Code"}, {{"A"}, {"B"}});
        server.answer("FROM Nobody", {"Code"}, {});
        gPrompts.errorForm = [this](const QString& number, const QString& text, const QString& unit,
                                    const QString& routine) {
            shown = QStringList{number, text, unit, routine}.join('|');
        };
    }
    ~ReadingTest() override {
        gPrompts = {};
        freeDataModules();
    }

    FakeServer server;
    QString shown;
};

} // namespace

TEST_F(ReadingTest, aFailureDoesWhatWasChosenAndNothingStaysOpen) {
    const QString dialog = "7|Could not: No.|Unit|Routine";
    const struct
    {
        const char* what;
        ReadFailure failure;
        QString shown, kept, raised;
    } choices[] = {
        {"dialog and false", dialogAndFalse("7", "Could not: ", "Unit", "Routine"), dialog, "", ""},
        {"dialog and raise", dialogAndRaise("7", "Could not: ", "Unit", "Routine"), dialog, "",
         "No."},
        {"kept", keptInErrorMsg("Could not: \"", "\"."), "", "Could not: \"No.\".", ""},
        {"raised under another text", raisedAs("Could not: "), "", "", "Could not: No."},
        {"raised", raised(), "", "", "No."},
    };
    for (const auto& [what, failure, told, kept, thrown] : choices) {
        SCOPED_TRACE(what);
        shown.clear();
        gErrorMsg.clear();
        server.fail("FROM Bad", "No.");
        bool answer = true;
        const auto read = [&, &rule = failure] {
            answer = readRows(gData->vQuery1, {"SELECT Code", "  FROM Bad"}, rule, hasRow);
        };
        EXPECT_EQ(failureOf(read), thrown.isEmpty() ? "no failure" : thrown);
        EXPECT_EQ(answer, !thrown.isEmpty()) << "false where it is not thrown";
        EXPECT_EQ(shown, told);
        EXPECT_EQ(gErrorMsg, kept);
        EXPECT_FALSE(gData->vQuery1.Active());
    }
}

TEST_F(ReadingTest, whatIsTakenIsTheAnswer) {
    Statement& query = gData->vQuery1;
    EXPECT_TRUE(readRows(query, {"SELECT Code", "  FROM Good"}, raised(), hasRow));
    EXPECT_EQ(server.log.back(), "SELECT Code\n  FROM Good");
    EXPECT_FALSE(query.Active()) << "closed after use";
    EXPECT_FALSE(readRows(query, {"SELECT Code FROM Nobody"}, raised(), hasRow));
    QStringList codes;
    const bool read =
        readRows(gData->Velmara, {"SELECT Code FROM Good"}, raised(), [&codes](Statement& rows) {
            for (; !rows.Eof(); rows.Next()) {
                codes << rows.FieldByName("Code").AsString();
            }
        });
    EXPECT_TRUE(read);
    EXPECT_EQ(codes, QStringList({"A", "B"}));
}

TEST_F(ReadingTest, aFaultWhileTakingIsTheReadsOwnButAMistakeOfTheProgramGoesOn) {
    const auto kept = keptInErrorMsg("Could not: ");
    EXPECT_FALSE(readRows(gData->Velmara, {"SELECT Code FROM Good"}, kept,
                          [](const Statement& rows) { rows.FieldByName("Missing"); }));
    EXPECT_EQ(gErrorMsg, "Could not: Field 'Missing' not found");
    EXPECT_THROW(readRows(gData->vQuery1, {"SELECT Code FROM Good"}, kept,
                          [](const Statement&) { throw std::out_of_range("index"); }),
                 std::out_of_range);
    EXPECT_FALSE(gData->vQuery1.Active());
}
