#include "reports/ReportFunctions.h"

#include "data/Session.h"
#include "data/SysDataModel.h"
#include "platform/reporting/Functions.h"
#include "reports/PrintFormat.h"
#include "reports/RepSys.h"
#include "security/SysLoadParams.h"
#include "support/Desk.h"
#include "support/FailureOf.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using velcro::reporting::registeredFunction;
using velcro::reporting::registeredFunctions;
using velcro::test::Desk;

namespace {

// Every session value that a function answers, and what it holds for the test.
const std::pair<QString*, const char*> sessionValues[] = {
    {&gCO, "01"},
    {&gCOName, "company"},
    {&gCOBusAdd1, "street"},
    {&gCOBusAdd2, "suburb"},
    {&gCOBusAdd3, ""},
    {&gCOBusAdd4, "7001"},
    {&gCOPhone, "021"},
    {&gCOFax, "022"},
    {&gCOEMail, "office@co.example"},
    {&gCOVatNo, "VAT"},
    {&gCORegNo, "REG"},
    {&gCOWebSite, "www.co.example"},
    {&gCOBankName, "bank"},
    {&gCOBranchName, "bank branch"},
    {&gCOBranchCode, "770014"},
    {&gCOAccNo, "00114"},
    {&gCOAccName, "account"},
    {&gBranch, "100"},
    {&gBRName, "branch"},
    {&gBRShortName, "short"},
    {&gBRBusAdd1, "br street"},
    {&gBRBusAdd2, "br suburb"},
    {&gBRBusAdd3, "br town"},
    {&gBRBusAdd4, "br 7001"},
    {&gBRPhone, "br 021"},
    {&gBRFax, "br 022"},
    {&gBREMail, "br@co.example"},
    {&gBRWebSite, "br.co.example"},
    {&gBRVATNo, "br VAT"},
    {&gBRRegNo, "br REG"},
    {&gBRBankName, "br bank"},
    {&gBRBranchName, "br bank branch"},
    {&gBRBranchCode, "br 770"},
    {&gBRAccNo, "br 00114"},
    {&gBRAccName, "br account"},
    {&gImagePath, "/images/"},
    {&gDefAccount, "C00001"},
    {&gRepName, "R01"},
    {&gRepDesc, "list"},
    {&gUserCode, "COUNTER1"},
    {&gUserName, "user"},
    {&gVersion, "1.2.3"},
};
const std::pair<QString*, const char*> printFormat[] = {
    {&gPrtFmt, "W"},         {&gPrtCOName, "prt company"}, {&gPrtCOAdd1, "prt 1"},
    {&gPrtCOAdd2, "prt 2"},  {&gPrtCOAdd3, "prt 3"},       {&gPrtCOAdd4, "prt 4"},
    {&gPrtCOTel, "prt tel"}, {&gPrtCOFax, "prt fax"},      {&gPrtCOEMail, "prt mail"},
};

// What the designer shows and a template gets, in the order in which it is listed.
struct Expected
{
    const char* name;
    const char* signature; // behind "function " and the name, which few do not have as their own
    const char* answer;
};
const Expected velmara[] = {
    {"CompanyNameOnly", " :String;", "company"},
    {"CompanyAddress", " :String;", "street\r\nsuburb\r\n\r\n7001"},
    {"CompanyAddress01", " :String;", "street"},
    {"CompanyAddress02", " :String;", "suburb"},
    {"CompanyAddress03", " :String;", ""},
    {"CompanyAddress04", " :String;", "7001"},
    {"CompanyPhone", " :String;", "021"},
    {"CompanyFax", " :String;", "022"},
    {"CompanyEMail", " :String;", "office@co.example"},
    {"CompanyVATNo", " :String;", "VAT"},
    {"CompanyRegNo", " :String;", "REG"},
    {"CompanyWebSite", " :String;", "www.co.example"},
    {"CompanyBankDetails", ":String;",
     "Bank Name   : bank\r\nBranch Code : 770014\r\nAccount No. : 00114"},
    {"CompanyBankName", ":String;", "bank"},
    {"CompanyBankBranchName", ":String;", "bank branch"},
    {"CompanyBankBranchCode", ":String;", "770014"},
    {"CompanyBankAccNo", ":String;", "00114"},
    {"CompanyBankAccName", ":String;", "account"},
    {"BranchNameOnly", " :String;", "branch"},
    {"BranchShortName", " :String;", "short"},
    {"BranchSpecificAddress", " :String;", "br street\r\nbr suburb\r\nbr town\r\nbr 7001"},
    {"BranchAddress01", " :String;", "br street"},
    {"BranchAddress02", " :String;", "br suburb"},
    {"BranchAddress03", " :String;", "br town"},
    {"BranchAddress04", " :String;", "br 7001"},
    {"BranchTelephone", " :String;", "br 021"},
    {"BranchFax", ":String;", "br 022"},
    {"BranchEMail", " :String;", "br@co.example"},
    {"BranchWebSite", " :String;", "br.co.example"},
    {"BranchVATNo", " :String;", "br VAT"},
    {"BranchRegNo", " :String;", "br REG"},
    {"BranchBankName", ":String;", "br bank"},
    {"BranchBankBranchName", ":String;", "br bank branch"},
    {"BranchBankBranchCode", ":String;", "br 770"},
    {"BranchBankAccNo", ":String;", "br 00114"},
    {"BranchBankAccName", ":String;", "br account"},
    {"WHName", "(aCompany: String; aBranch: String; aWH: String): string;", "Main store"},
    {"GetSmallImage", " : String;", "/images/01100-LOGO-SMALL-1.jpg"},
    {"GetLargeImage", " : String;", "/images/LOGO-FULL-01.jpg"},
    {"GetLblType", " :String;", "NORMAL"},
    {"GetDebtorBalance", "(aDebAcc: String; aAP: Integer): Double;", "0"},
    {"RePrint", " : Boolean;", "false"},
    {"SelectionCriteriaLines", " : Integer;", "0"},
    {"GetMessage", "(aModCode: String; aMsgCode: String): String;", ""},
    {"GetDBBranchName", "(aModCode: String; aMsgCode: String): String;",
     "Brindavel Central Workshop"},
    {"DefaultCashAccount", " :String;", "C00001"},
};
const Expected orvane[] = {
    {"CompanyName", " : String;", "company"},
    {"BranchName", " : String;", "[100] - branch"},
    {"ReportName", " : String;", "(R01) - list"},
    {"UserName", " :String;", "[COUNTER1] - user"},
    {"Version", " : string;", "[1.2.3]"},
    {"ImgPath", "ImagePath : string;", "/images/ORVLogo1.jpg"},
    {"AmtInWords", "(aAmount : String): String;", "ZERO RANDS ONLY "},
    {"SecToTime", "(aSeconds : Integer ): String;", "00:00:00"},
    {"SelectionCriteria", " : String;", ""},
    {"GetTenderType1", " :String;", "Gift card"},
    {"GetTenderType2", "GetTenderType1 :String;", "Gift card"},
    {"GetTenderType3", "GetTenderType1 :String;", "Gift card"},
    {"GetTenderType4", "GetTenderType1 :String;", "Gift card"},
};

class ReportFunctionsTest : public testing::Test
{
protected:
    ReportFunctionsTest() {
        for (const auto& [value, text] : sessionValues) {
            *value = QString::fromLatin1(text);
        }
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
    static void expectInForce(const Expected& expected, const char* category) {
        const auto* function = registeredFunction(expected.name);
        ASSERT_NE(function, nullptr) << expected.name;
        const QString rest = QString::fromLatin1(expected.signature);
        const bool ownName = rest[0].isLetter();
        EXPECT_EQ(function->signature, "function " + (ownName ? QString() : expected.name) + rest);
        EXPECT_EQ(function->category, category) << expected.name;
        EXPECT_EQ(answer(expected.name), expected.answer) << expected.name;
    }

    Desk desk;
};

} // namespace

TEST_F(ReportFunctionsTest, everyFunctionIsListedAndAnswers) {
    for (const auto& expected : velmara) {
        expectInForce(expected, "Velmara Functions");
    }
    for (const auto& expected : orvane) {
        expectInForce(expected, "Orvane Functions");
    }
    const QStringList names = registeredFunctions();
    EXPECT_EQ(names.size(), std::ssize(velmara) + std::ssize(orvane));
    QStringList inOrder;
    for (const auto& expected : velmara) {
        inOrder << expected.name;
    }
    const QSet<QString> ofRepSys(inOrder.begin(), inOrder.end());
    QStringList listed = names;
    listed.removeIf([&](const QString& name) { return !ofRepSys.contains(name); });
    EXPECT_EQ(listed, inOrder) << "a second registration keeps the place of the first";
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
    EXPECT_EQ(answer("CompanyVATNo"), "VAT") << "has no partner there";
    EXPECT_EQ(answer("CompanyName"), "company");
}

TEST_F(ReportFunctionsTest, withoutTheSecondUnitTheFirstOnesAreInForce) {
    registerFunctions("Velmara Functions", repSysFunctions());
    EXPECT_EQ(answer("CompanyName"), "01 - company");
    EXPECT_EQ(answer("BranchName"), "100-branch");
    EXPECT_EQ(answer("Version"), "1.2.3");
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
