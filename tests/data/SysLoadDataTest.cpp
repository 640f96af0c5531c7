#include "data/SysLoadData.h"

#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/PeriodAndTax.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "screens/Combos.h"
#include "support/FailureOf.h"
#include "support/FakeServer.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace {

class SysLoadDataTest : public testing::Test
{
protected:
    SysLoadDataTest() {
        createDataModules();
        gData->ConnectDB_VEL({}, "h", "SUITE", {}, {}, {});
        gSuite = "VELMARA";
        gCO = "01";
        gBranch = "100";
        gCmbCO.clear();
        gCmbBranch.clear();
        combo.addItem("before");
    }
    ~SysLoadDataTest() override {
        freeDataModules();
        freeSharedLists();
        gPrompts = {};
    }
    QStringList items() const {
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i) {
            texts.append(combo.itemText(i));
        }
        return texts;
    }

    velcro::test::FakeServer server;
    QComboBox combo;
};

} // namespace

TEST_F(SysLoadDataTest, threeListsHaveAFormOfTheirOwn) {
    server.answer("SYSTAX", {"TaxCode", "TaxDesc", "TaxRate"}, {{"S", "Standard", "15"}});
    server.answer("GLGCBTXTP", {"TxTp", "Description", "DrCr"}, {{"PAY", "Payment", "C"}});
    server.answer("GLGCALENDAR", {"GLYear", "Period"}, {{"2026", "3"}});
    sld_LoadCombo("SysTax", combo, "N", "I");
    EXPECT_EQ(items(), (QStringList{"S - Standard (15)", "C - Customs VAT Rate"}));
    sld_LoadCombo("SYSTAX", combo, "N", "B");
    EXPECT_EQ(items(), QStringList{"S - Standard (15)"});
    sld_LoadCombo("GLGCBTXTP", combo, "N");
    EXPECT_EQ(items(), QStringList{"PAY - Payment (C)"});
    sld_LoadCombo("GLGCALENDAR", combo, "N");
    EXPECT_EQ(items(), QStringList{"2026 - 3"});
}

TEST_F(SysLoadDataTest, aLongListShowsTwentyAtATime) {
    std::vector<std::vector<std::string>> rows(25, {"A", "B"});
    server.answer("CROProcessMst", {"ProcessCode", "Description"}, rows);
    sld_LoadCombo("CROProcessMst", combo, "N");
    EXPECT_EQ(combo.count(), 25);
    EXPECT_EQ(combo.maxVisibleItems(), 20);
}

TEST_F(SysLoadDataTest, aKeyIsTakenWhenTheStatementGivesARow) {
    server.answer("taken", {"RecID"}, {{"1"}});
    server.fail("broken", "Syntax.");
    EXPECT_TRUE(sld_CheckDuplicates("taken", "CROTechMst"));
    EXPECT_FALSE(sld_CheckDuplicates("free", "CROTechMst"));
    gErrorMsg = "told before";
    EXPECT_EQ(failureOf([] { sld_CheckDuplicates("broken", "CROTechMst"); }),
              "SysLoadData.sld_CheckDuplicates] SQL Error reading object \"CROTechMst\".\rtold "
              "before");
}

TEST_F(SysLoadDataTest, aSeriesKeyIsRefusedBeforeAnythingIsSent) {
    struct Case
    {
        const char *company, *branch, *module, *type, *refusal;
    };
    const std::vector<Case> cases = {
        {" ", "", "", "", "Invalid CO parameter: empty or null."},
        {"12345678901", "", "", "", "CO parameter exceeds 10 characters: \"12345678901\"."},
        {"1", " ", "", "", "Invalid BRANCH parameter: empty or null."},
        {"1", "12345678901", "", "", "BRANCH parameter exceeds 10 characters: \"12345678901\"."},
        {"1", "1", "", "", "Invalid MODCODE parameter: empty or null."},
        {"1", "1", "CROX", "", "MODCODE parameter exceeds 3 characters: \"CROX\"."},
        {"1", "1", "CRO", "", "Invalid TXTP parameter: empty or null."},
        {"1", "1", "CRO", "CROMSTX", "TXTP parameter exceeds 6 characters: \"CROMSTX\"."}};
    const std::size_t sent = server.log.size();
    for (const Case& it : cases) {
        EXPECT_EQ(failureOf([&] { sld_GenerateDocNo(it.company, it.branch, it.module, it.type); }),
                  QLatin1String("SysLoadData.sld_GenerateDocNo] ") + it.refusal);
    }
    EXPECT_EQ(server.log.size(), sent);
}

TEST_F(SysLoadDataTest, aNumberIsWhatTheServerGives) {
    const auto number = [] { return sld_GenerateDocNo("01", "100", "CRO", "CROMST  "); };
    server.answer("VELMARA_GENERATE_NUMBER", {"NUMBER"}, {{"100501"}});
    EXPECT_EQ(number(), "100501");
    ASSERT_EQ(server.parameters.size(), 4U);
    EXPECT_EQ(std::get<std::string>(server.parameters[3].value), "CROMST  ") << "untrimmed";
    server.answer("VELMARA_GENERATE_NUMBER", {"NUMBER"}, {});
    EXPECT_EQ(number(), "0");
    server.answer("VELMARA_GENERATE_NUMBER", {"NUMBER"}, {{"0"}});
    EXPECT_EQ(failureOf(number),
              "SysLoadData.sld_GenerateDocNo] SQL Error executing VELMARA_GENERATE_NUMBER for "
              "\"CRO\"/\"CROMST  \".\rSysLoadData.sld_GenerateDocNo] Failed to generate document "
              "number for \"CRO\"/\"CROMST  \".");
    server.fail("VELMARA_GENERATE_NUMBER", "No such procedure.");
    EXPECT_EQ(failureOf(number), "No such procedure.");
}

TEST_F(SysLoadDataTest, periodsAndTheirPredecessors) {
    server.answer("SysAP", {"AP", "FromDate", "ToDate"},
                  {{"202603", "2026/03/01", "2026/03/31"}, {"202601", "2026/01/01", "2026/01/31"}});
    sfg_ResetParamFields("");
    EXPECT_EQ(sld_GetPrevAP(202603, 2), 0);
    EXPECT_EQ(gSParam[1], "");
    EXPECT_EQ(sld_GetPrevAP(202603, 0), 202603);
    EXPECT_EQ(sld_GetPrevAP(202603, 1), 202601);
    EXPECT_EQ(gIParam[1], 202601);
    EXPECT_EQ(gSParam[3], "2026/01/01 - 2026/01/31");

    server.answer("SYSAP", {"AP", "FromDate", "ToDate", "APActive", "APOpen"},
                  {{"202603", "2026/03/01", "2026/03/31", "Y", "N"}});
    gSParam[9] = "old";
    EXPECT_EQ(sfvel_GetPeriod("2026/03/09"), 202603);
    EXPECT_EQ(gSParam[2] + gSParam[3] + gSParam[4] + gSParam[9], "2026/03/31YN");
    server.fail("SYSAP", "Gone.");
    QStringList told;
    gPrompts.errorForm = [&](const QString& number, const QString& text, const QString& program,
                             const QString& routine) {
        told = {number, text, program, routine};
    };
    EXPECT_THROW(sfvel_GetPeriod("2026/03/09"), velcro::sql::SqlError);
    EXPECT_EQ(told, (QStringList{"SFVEL-14", "SQL Error on Table: SYSAP :-\rGone.",
                                 "SysFuncVelmara", "sld_GetPeriod"}));
}

TEST_F(SysLoadDataTest, theFirstRateThatHoldsOnTheDateCounts) {
    for (const TVatRate& rate :
         {TVatRate{"S", "", 14, "", "2018/03/31"}, TVatRate{"S", "", 15, "2018/04/01", ""},
          TVatRate{"S", "", 99, "", ""}}) {
        gVatRates.push_back(std::make_unique<TVatRate>(rate));
    }
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("s", "2018/03/31"), 14);
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("S", "2018/04/01"), 15);
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("S", "1999/12/31"), 0);
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("Z", "2018/04/01"), 0);
    EXPECT_EQ(gVatRates[0]->FromDate, "2000/01/01");
}
