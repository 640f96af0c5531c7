#include "data/ComboLoaders.h"
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/PeriodAndTax.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadCommon.h"
#include "data/SysLoadData.h"
#include "screens/Combos.h"
#include "security/SysLoadParams.h"
#include "support/Desk.h"

#include <QComboBox>
#include <QImage>

#include <gtest/gtest.h>

namespace {

class DeskLoadersTest : public testing::Test
{
protected:
    QStringList load(const char* key, const char* leading, const char* param1 = "",
                     const char* param2 = "", const char* param3 = "") {
        sld_LoadCombo(key, combo, leading, param1, param2, param3);
        QStringList items;
        for (int i = 0; i < combo.count(); ++i) {
            items.append(combo.itemText(i));
        }
        return items;
    }
    static QStringList column(const QString& select) {
        Statement query(gData->Velmara);
        query.SQL.Add(select);
        QStringList values;
        for (query.Open(); !query.Eof(); query.Next()) {
            values.append(query.Fields(0).AsString());
        }
        return values;
    }

    velcro::test::Desk desk;
    QComboBox combo;
};

} // namespace

TEST_F(DeskLoadersTest, codesComeInTheOrderOfTheirTable) {
    const QStringList branches = {"100 - Central", "101 - Harbour", "102 - Northfold"};
    EXPECT_EQ(load("SYSCOMPANY", "N").value(1), "02 - Kestrovane Tools & Outdoor Equipment CC");
    EXPECT_EQ(load("sysbranch", "N"), branches);
    EXPECT_EQ(load("SYSBRANCH", "*NEW*", "Y", "X"),
              QStringList({" ", "<Add New>"}) + branches.mid(1));
    EXPECT_EQ(load("SYSBRANCH", "Branches", "", "H"),
              (QStringList{"*ALL* - Branches", "100 - Central"}));
    EXPECT_EQ(load("SYSWH", "N"),
              (QStringList{"MAIN - Main store", "SCRAP - Scrap", "SPARE - Spares cage"}));
    EXPECT_EQ(load("SYSWH", " *BLANK* ", "", "102", "A"), (QStringList{" ", "MAIN - Shop floor"}));
    EXPECT_EQ(load("SYSWH", "").value(0), "*ALL* - ");
    EXPECT_EQ(gCmbCO + gCmbBranch, "01100") << "the loaders' company stays set";
    EXPECT_EQ(
        load("SYSTAX", "N", "I"),
        (QStringList{"1 - Standard rate (15)", "1 - Standard rate to 2018 (14)",
                     "0 - Zero rate (0)", "M - Imported services (15)", "C - Customs VAT Rate"}));
    EXPECT_EQ(load("SYSTAX", "N", "O").value(3), "X - Exempt (0)");
    EXPECT_EQ(load("SYSTXTP", "N", "CRO", "0").value(2), "CROQOT - Repair quotations");
    EXPECT_EQ(load("SYSTXTP", "N", "", "3"), QStringList{"POSINV - Cash sale"});
    EXPECT_EQ(load("SYSCODEMASTER", "N", "TITLE", "N", " ORDER BY [Description] DESC"),
              (QStringList{"MS - Ms", "MR - Mr"}));

    gCmbCO = "*ALL*";
    EXPECT_EQ(load("SYSBRANCH", "N"), (QStringList{"100 - Central", "201 - Mill Lane",
                                                   "101 - Harbour", "102 - Northfold"}));
    gCmbCO = "02";
    EXPECT_EQ(load("SYSBRANCH", "N"), QStringList{"201 - Mill Lane"});
}

TEST_F(DeskLoadersTest, theWorkshopsCodesAreThoseOfTheSessionsCompany) {
    gCmbCO = "02"; // another company's codes are on a screen
    for (const auto& [key, select] : std::vector<std::pair<const char*, QString>>{
             {"CROCODEMASTER", "[Code] + ' - ' + [Description] FROM CROCodeMaster WHERE "
                               "[CodeType] = 'F' AND [CO] = '01' ORDER BY [Description]"},
             {"CROTechMst", "[TechCode] + ' - ' + [TechName] FROM CROTechMst WHERE [CO] = '01' "
                            "ORDER BY [TechName]"},
             {"croprocessmst", "[ProcessCode] + ' - ' + [Description] FROM CROProcessMst WHERE "
                               "[CO] = '01' ORDER BY [ProcessSeq]"}}) {
        const QStringList expected = column("SELECT " + select);
        EXPECT_GT(expected.size(), 3) << key;
        EXPECT_EQ(load(key, "N", "F"), expected) << key;
        EXPECT_EQ(combo.maxVisibleItems(), qMin<int>(20, combo.count())) << key;
    }
}

TEST_F(DeskLoadersTest, everyKeyOfTheTableIsAStatementThatCanBeRead) {
    constexpr int noSuchTable = 208; // other modules' tables are not on this seat
    int answered = 0;
    for (const ComboLoader& loader : comboLoaders()) {
        for (const char* given : {"", "1"}) {
            Statement query(gData->Velmara);
            query.SQL.Add(sld_LoadComboSQL(loader.key, given, given,
                                           QString(*given ? " ORDER BY [Code]" : ""), "01", "100"));
            try {
                query.Open();
                ++answered;
            } catch (const velcro::sql::SqlError& error) {
                EXPECT_EQ(error.number(), noSuchTable) << loader.key << ": " << error.what() << "\n"
                                                       << error.statement();
            }
        }
    }
    EXPECT_GT(answered, 30);
    EXPECT_EQ(comboLoaders().size(), 111U);
}

TEST_F(DeskLoadersTest, anUnknownKeyChangesNothingAndAMissingTableIsTold) {
    combo.addItem("before");
    EXPECT_EQ(load("NOSUCHKEY", "N"), QStringList{"before"});
    EXPECT_EQ(load("wootags", "N"), QStringList{"before"}) << "one key counts by its case";
    try {
        load("GLGCALENDAR", "N");
        ADD_FAILURE() << "there is no such table";
    } catch (const VelmaraError& error) {
        EXPECT_EQ(errorText(error), "[SysLoadData.sld_LoadCombo] SQL Error reading object "
                                    "\"GLGCALENDAR\".\rInvalid object name 'GLGCALENDAR'.");
    }
}

TEST_F(DeskLoadersTest, aCategorysPathLeadsFromTheRootOfItsTree) {
    desk.onSuite("CREATE TABLE [WooCategories] ([AppID] nvarchar(10), [CategoryId] int, "
                 "[Parent] int, [Name] nvarchar(50))");
    desk.onSuite("INSERT INTO [WooCategories] VALUES ('A', 1, 0, 'Home'), ('A', 2, 1, 'Sound'), "
                 "('A', 3, 2, 'Radio'), ('B', 4, 0, 'Other'), ('A', 5, 0, 'Garden')");
    EXPECT_EQ(
        load("WooCategories", "N", "A"),
        (QStringList{"5 - Garden", "1 - Home", "2 - Home -> Sound", "3 - Home -> Sound -> Radio"}));
    EXPECT_EQ(load("WooCategories", "N", "A", "3"), QStringList{"3 - Home -> Sound -> Radio"});
}

TEST_F(DeskLoadersTest, aNumberIsGivenOnceWhateverBecomesOfItsDocument) {
    const auto draw = [](const char* type = "CROMST") {
        return sld_GenerateDocNo("01", "100", "CRO", type);
    };
    EXPECT_EQ(draw(), "100501");
    gData->Velmara.StartTransaction();
    Statement work(gData->Velmara);
    work.SQL.Add("INSERT INTO CROTechMst ([CO], [TechCode]) VALUES ('01', 'N1')");
    work.ExecSQL();
    EXPECT_EQ(draw(), "100502") << "while this seat's own transaction holds the database";
    gData->Velmara.Rollback();
    EXPECT_EQ(desk.suite("SELECT COUNT(*) FROM CROTechMst WHERE [TechCode] = 'N1'"), "0");
    EXPECT_EQ(draw("CROMST  "), "100503") << "blanks behind a type are no part of it";
    EXPECT_EQ(draw("CROPRC"), "5001");
    EXPECT_EQ(sld_GenerateDocNo("03", "300", "CRO", "CROMST"), "1") << "a series nobody began";
    gData->CloseDB_VEL();
    gData->ConnectDB_VEL({}, gCmnHost, "VELSUITE", {}, {}, {});
    EXPECT_EQ(draw(), "100504");
}

TEST_F(DeskLoadersTest, periodsAndRatesAreThoseOfTheDate) {
    const QString today = sfg_Date(0);
    const int period = sfvel_GetPeriod(today);
    EXPECT_GT(period, 0);
    EXPECT_LE(gSParam[1], today);
    EXPECT_GE(gSParam[2], today);
    const QString from = gSParam[1];
    EXPECT_EQ(sld_GetPrevAP(period, 0), period);
    EXPECT_EQ(gSParam[1], from);
    const int before = sld_GetPrevAP(period, 1);
    EXPECT_GT(before, 0);
    EXPECT_LT(before, period);
    EXPECT_LT(gSParam[2], from);
    const int first = desk.suite("SELECT MIN([AP]) FROM SYSAP WHERE [CO] = '01'").toInt();
    EXPECT_EQ(sld_GetPrevAP(first, 1), 0);
    EXPECT_EQ(sfvel_GetPeriod("1900/01/01"), 0);

    ASSERT_TRUE(par_LoadParameters("01", "100")) << gErrorMsg.toStdString();
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("1", ""), 15);
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("1", "2018/03/31"), 14);
    EXPECT_DOUBLE_EQ(sfvel_GetVATRate("m", "2017/01/01"), 0);
    freeSharedLists();
}

TEST_F(DeskLoadersTest, theLogoAndTheControlSettingsAreFound) {
    EXPECT_TRUE(sld_LoadSmallImage("IMGLOGO"));
    EXPECT_EQ(QImage::fromData(gImageStream).size(), QSize(220, 72));
    EXPECT_FALSE(sld_LoadSmallImage("NOIMAGE"));
    desk.onSuite("UPDATE SYSRepImages SET ImageData = 0x WHERE ImageCode = 'IMGLOGO'");
    EXPECT_FALSE(sld_LoadSmallImage("IMGLOGO"));
    EXPECT_TRUE(gImageStream.isEmpty());
    desk.onCommon("UPDATE vcControl SET [DBConnector] = 'c', [DBUser] = 'u', [DBPswd] = 'p'");
    EXPECT_TRUE(slc_GetControlSettings("HELPDESK"));
    EXPECT_TRUE(gSParam[1].startsWith("Telephone")) << gSParam[1].toStdString();
    EXPECT_EQ(gSParam[2] + gSParam[3] + gSParam[4], "cup");
    EXPECT_FALSE(slc_GetControlSettings("NONE"));
    EXPECT_EQ(gSParam[1], "");
}
