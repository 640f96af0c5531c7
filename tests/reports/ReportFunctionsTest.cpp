#include "reports/ReportFunctions.h"

#include "data/Session.h"
#include "data/SysDataModel.h"
#include "platform/reporting/Functions.h"
#include "reports/PrintFormat.h"
#include "reports/RepSys.h"
#include "security/SysLoadParams.h"
#include "support/Desk.h"
#include "support/FailureOf.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using velcro::reporting::registeredFunction;
using velcro::reporting::registeredFunctions;
using velcro::test::Desk;

namespace {

// Every session value that a function answers holds its own name for the test.
#define NAMED(value)                                                                               \
    { &value, #value }
const std::pair<QString*, const char*> sessionValues[] = {
    NAMED(gCOName),       NAMED(gCOBusAdd1),    NAMED(gCOBusAdd2),  NAMED(gCOBusAdd4),
    NAMED(gCOPhone),      NAMED(gCOFax),        NAMED(gCOEMail),    NAMED(gCOVatNo),
    NAMED(gCORegNo),      NAMED(gCOWebSite),    NAMED(gCOBankName), NAMED(gCOBranchName),
    NAMED(gCOBranchCode), NAMED(gCOAccNo),      NAMED(gCOAccName),  NAMED(gBRName),
    NAMED(gBRShortName),  NAMED(gBRBusAdd1),    NAMED(gBRBusAdd2),  NAMED(gBRBusAdd3),
    NAMED(gBRBusAdd4),    NAMED(gBRPhone),      NAMED(gBRFax),      NAMED(gBREMail),
    NAMED(gBRWebSite),    NAMED(gBRVATNo),      NAMED(gBRRegNo),    NAMED(gBRBankName),
    NAMED(gBRBranchName), NAMED(gBRBranchCode), NAMED(gBRAccNo),    NAMED(gBRAccName),
    NAMED(gImagePath),    NAMED(gDefAccount),   NAMED(gRepName),    NAMED(gRepDesc),
    NAMED(gUserCode),     NAMED(gUserName),     NAMED(gVersion)};
const std::pair<QString*, const char*> printFormat[] = {
    {&gPrtFmt, "W"},         {&gPrtCOName, "prt company"}, {&gPrtCOAdd1, "prt 1"},
    {&gPrtCOAdd2, "prt 2"},  {&gPrtCOAdd3, "prt 3"},       {&gPrtCOAdd4, "prt 4"},
    {&gPrtCOTel, "prt tel"}, {&gPrtCOFax, "prt fax"},      {&gPrtCOEMail, "prt mail"},
};

class ReportFunctionsTest : public testing::Test
{
protected:
    ReportFunctionsTest() {
        for (const auto& [value, text] : sessionValues) {
            *value = QString::fromLatin1(text);
        }
        gCOBusAdd3.clear();
        par_LoadParameters(gCO, gBranch);
        registerReportFunctions();
    }
    ~ReportFunctionsTest() override {
        for (const auto& [value, text] : printFormat) {
            value->clear();
        }
        gReportCriteria.clear();
    }

    static QVariant call(const QString& name, const QVariantList& arguments = {}) {
        return registeredFunction(name)->call(arguments);
    }
    static std::string answer(const QString& name, const QVariantList& arguments = {}) {
        return call(name, arguments).toString().toStdString();
    }

    Desk desk;
};

} // namespace

// What the designer shows and a template gets, in the order in which it is listed.
TEST_F(ReportFunctionsTest, everyFunctionIsListedAndAnswers) {
    QStringList velmara, orvane;
    for (const auto& [category, functions] : velcro::test::sectionsOf(REPORT_ROWS)) {
        for (const auto& [shown, expected] : functions) {
            const QString name = QString::fromStdString(shown).section(": ", 0, 0);
            const auto* function = registeredFunction(name);
            ASSERT_NE(function, nullptr) << shown;
            EXPECT_EQ(name + ": " + function->signature, shown.c_str());
            EXPECT_EQ(function->category.toStdString(), category) << shown;
            EXPECT_EQ(QString::fromStdString(answer(name)).replace("\r\n", "\\r\\n"),
                      expected.c_str());
            (category.starts_with("Velmara") ? velmara : orvane) << name;
        }
    }
    QStringList listed = registeredFunctions();
    EXPECT_EQ(listed.size(), velmara.size() + orvane.size());
    listed.removeIf([&](const QString& name) { return orvane.contains(name); });
    EXPECT_EQ(listed, velmara) << "a second registration keeps the place of the first";
    EXPECT_EQ(registeredFunction("NoSuchFunction"), nullptr);
}

TEST_F(ReportFunctionsTest, theDesignerAsksForArgumentsWhereAFunctionDoesNotDeny) {
    QStringList denying, affirming;
    for (const QString& name : registeredFunctions()) {
        const auto own = registeredFunction(name)->overridesHasParams;
        if (own.has_value()) {
            (*own ? affirming : denying) << name;
        }
    }
    denying.sort();
    EXPECT_EQ(denying.join(' '), "BranchName CompanyName GetLargeImage GetSmallImage "
                                 "GetTenderType1 GetTenderType2 GetTenderType3 GetTenderType4 "
                                 "ImgPath ReportName SelectionCriteria UserName Version");
    EXPECT_EQ(affirming.join(' '), "GetMessage GetDBBranchName");
    EXPECT_TRUE(registeredFunction("WHName")->hasParams());
    EXPECT_EQ(registeredFunction("gettendertype3")->className, "rep_GetTenderType1");
}

TEST_F(ReportFunctionsTest, thePrintFormatHasALetterheadOfItsOwn) {
    for (const auto& [value, text] : printFormat) {
        *value = QString::fromLatin1(text);
    }
    EXPECT_EQ(answer("CompanyNameOnly"), "prt company");
    EXPECT_EQ(answer("CompanyAddress"), "prt 1\r\nprt 2\r\nprt 3\r\nprt 4");
    EXPECT_EQ(answer("CompanyAddress01") + answer("CompanyAddress02") + answer("CompanyAddress03") +
                  answer("CompanyAddress04"),
              "prt 1prt 2prt 3prt 4");
    EXPECT_EQ(answer("CompanyPhone") + answer("CompanyFax") + answer("CompanyEMail"),
              "prt telprt faxprt mail");
    EXPECT_EQ(answer("CompanyVATNo"), "gCOVatNo") << "has no partner there";
    EXPECT_EQ(answer("CompanyName"), "gCOName");
}

TEST_F(ReportFunctionsTest, withoutTheSecondUnitTheFirstOnesAreInForce) {
    registerFunctions("Velmara Functions", repSysFunctions());
    EXPECT_EQ(answer("CompanyName"), "01 - gCOName");
    EXPECT_EQ(answer("BranchName"), "100-gBRName");
    EXPECT_EQ(answer("Version"), "gVersion");
    EXPECT_EQ(answer("GetTenderType2"), "Staff account");
    EXPECT_FALSE(call("GetTenderType4").isValid()) << "the branch has three";
    gPrtFmt = "W";
    gPrtCOName = "prt company";
    EXPECT_EQ(answer("CompanyName"), "prt company");
}

TEST_F(ReportFunctionsTest, rowsAreReadByTheArguments) {
    Desk::onSuite("INSERT INTO DEBBalance ([CO], [Branch], [DebtorType], [Account], [AP], [DCurr], "
                  "[D030], [D060], [D090], [D120], [D150], [D180], [DOver]) VALUES ('01', '100', "
                  "'D', 'QUOTE''S', 209901, 0.5, 1, 2, 4, 8, 16, 32, 64)");
    const struct
    {
        const char* name;
        QVariantList arguments;
        const char* answer;
    } calls[] = {
        {"WHName", {"", " ", "SPARE"}, "Spares cage"},
        {"WHName", {"02", "201", "MAIN"}, "Yard"},
        {"WHName", {"", "", "NONE"}, ""},
        {"WHName", {"", "", "' OR 1=1 --"}, ""},
        {"GetDebtorBalance", {"QUOTE'S", 209901}, "127.5"},
        {"GetDebtorBalance", {"QUOTE'S", 209902}, "0"},
        {"GetMessage",
         {"CRO", "00002"},
         "This estimate is valid for 14 days. Parts are subject to availability."},
        {"GetMessage", {"CRO", "99999"}, ""},
        {"GetMessage", {"CRO"}, ""},
        {"GetDBBranchName", {"02", "201"}, "Kestrovane Mill Lane"},
        {"GetDBBranchName", {"", "101"}, "Brindavel Harbour Row"},
        {"GetDBBranchName", {"09", "9"}, ""},
        {"AmtInWords", {"12.50"}, " TWELVE RANDS AND FIFTY  CENTS "},
        {"AmtInWords", {"inf"}, "ZERO RANDS ONLY "},
        {"AmtInWords", {"1,250.00"}, "ZERO RANDS ONLY "},
        {"SecToTime", {3661}, "01:01:01"},
        {"SecToTime", {"86399"}, "23:59:59"},
        {"SecToTime", {360000}, "100:00:00"},
    };
    for (const auto& [name, arguments, expected] : calls) {
        EXPECT_EQ(answer(name, arguments), expected) << name;
    }
    EXPECT_EQ(failureOf([] { call("AmtInWords", {"12.345"}); }),
              "'.5' is not a valid integer value");
}

TEST_F(ReportFunctionsTest, aFailedReadIsAnsweredAndShowsNoDialog) {
    for (const char* table : {"SYSWH", "DEBBalance", "SYSMessage", "SYSBranch", "SYSTender"}) {
        Desk::onSuite(QStringLiteral("DROP TABLE ") + table);
    }
    EXPECT_EQ(answer("WHName"), "");
    EXPECT_EQ(answer("GetDebtorBalance", {"C00001", 209901}), "0");
    EXPECT_EQ(answer("GetMessage", {"CRO", "00001"}), "ERROR : Invalid object name 'SYSMESSAGE'.");
    EXPECT_EQ(answer("GetDBBranchName"), "ERROR : Invalid object name 'SYSBranch'.");
    EXPECT_EQ(answer("GetTenderType2"), "ERROR : Invalid object name 'SYSTender'.");
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(ReportFunctionsTest, criteriaAlignTheirColons) {
    const auto add = [](const QString& criterion, const QString& value) {
        gReportCriteria.push_back(
            std::make_unique<TReportCriterion>(TReportCriterion{criterion, value}));
    };
    add(" From date ", "2026/11/01");
    add("To", "");
    EXPECT_EQ(answer("SelectionCriteria"), "From date...: 2026/11/01\rTo..........: \r");
    EXPECT_EQ(call("SelectionCriteriaLines"), 2);
}

TEST_F(ReportFunctionsTest, aLogoThatWasPutAsideComesBack) {
    gImagePath = desk.workingFolder();
    const QString logo = gImagePath + "ORVLogo1.jpg";
    EXPECT_EQ(call("ImgPath"), logo) << "whether there is one or not";
    QFile aside(logo + ".bak");
    ASSERT_TRUE(aside.open(QIODevice::WriteOnly));
    aside.close();
    EXPECT_EQ(call("ImgPath"), logo);
    EXPECT_TRUE(QFile::exists(logo));
    EXPECT_FALSE(QFile::exists(aside.fileName()));
}
