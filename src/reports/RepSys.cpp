#include "reports/RepSys.h"

#include "data/Session.h"
#include "data/SysDataModel.h"
#include "reports/PrintFormat.h"
#include "reports/ReportReads.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString companyAddress() {
    return isPrintFormatOwn() ? joinedLines({gPrtCOAdd1, gPrtCOAdd2, gPrtCOAdd3, gPrtCOAdd4})
                              : joinedLines({gCOBusAdd1, gCOBusAdd2, gCOBusAdd3, gCOBusAdd4});
}

QString bankDetails() {
    return joinedLines({"Bank Name   : "_L1 + gCOBankName, "Branch Code : "_L1 + gCOBranchCode,
                        "Account No. : "_L1 + gCOAccNo});
}

QString companyCodeAndName() {
    return isPrintFormatOwn() ? gPrtCOName : gCO + " - "_L1 + gCOName;
}

} // namespace

// clang-format off: a table, one function a line
std::span<const FunctionRow> repSysFunctions() {
    static const FunctionRow rows[] = {
        {"CompanyName", "rep_GetCompanyName", "function CompanyName :String;",
         answerOf(companyCodeAndName)},
        {"CompanyNameOnly", "rep_GetCompanyNameOnly", "function CompanyNameOnly :String;",
         answer(gCOName, gPrtCOName)},
        {"CompanyAddress", "rep_GetCompanyAddress", "function CompanyAddress :String;",
         answerOf(companyAddress)},
        {"CompanyAddress01", "rep_GetCompanyAddress01", "function CompanyAddress01 :String;",
         answer(gCOBusAdd1, gPrtCOAdd1)},
        {"CompanyAddress02", "rep_GetCompanyAddress02", "function CompanyAddress02 :String;",
         answer(gCOBusAdd2, gPrtCOAdd2)},
        {"CompanyAddress03", "rep_GetCompanyAddress03", "function CompanyAddress03 :String;",
         answer(gCOBusAdd3, gPrtCOAdd3)},
        {"CompanyAddress04", "rep_GetCompanyAddress04", "function CompanyAddress04 :String;",
         answer(gCOBusAdd4, gPrtCOAdd4)},
        {"CompanyPhone", "rep_GetCOPhone", "function CompanyPhone :String;",
         answer(gCOPhone, gPrtCOTel)},
        {"CompanyFax", "rep_GetCOFax", "function CompanyFax :String;", answer(gCOFax, gPrtCOFax)},
        {"CompanyEMail", "rep_GetCOEMail", "function CompanyEMail :String;",
         answer(gCOEMail, gPrtCOEMail)},
        {"CompanyVATNo", "rep_GetCOVATNo", "function CompanyVATNo :String;", answer(gCOVatNo)},
        {"CompanyRegNo", "rep_GetCORegNo", "function CompanyRegNo :String;", answer(gCORegNo)},
        {"CompanyWebSite", "rep_GetCOWebSite", "function CompanyWebSite :String;",
         answer(gCOWebSite)},
        {"CompanyBankDetails", "rep_GetCOBankDetails", "function CompanyBankDetails:String;",
         answerOf(bankDetails)},
        {"CompanyBankName", "rep_GetCOBankName", "function CompanyBankName:String;",
         answer(gCOBankName)},
        {"CompanyBankBranchName", "rep_GetCOBranchName", "function CompanyBankBranchName:String;",
         answer(gCOBranchName)},
        {"CompanyBankBranchCode", "rep_GetCOBranchCode", "function CompanyBankBranchCode:String;",
         answer(gCOBranchCode)},
        {"CompanyBankAccNo", "rep_GetCOAccNo", "function CompanyBankAccNo:String;",
         answer(gCOAccNo)},
        {"CompanyBankAccName", "rep_GetCOAccName", "function CompanyBankAccName:String;",
         answer(gCOAccName)},
        {"BranchName", "rep_GetBranchName", "function BranchName :String;",
         answerOf([] { return QString(gBranch + u'-' + gBRName); })},
        {"BranchNameOnly", "rep_GetBranchNameOnly", "function BranchNameOnly :String;",
         answer(gBRName)},
        {"BranchShortName", "rep_GetBranchShortName", "function BranchShortName :String;",
         answer(gBRShortName)},
        {"BranchSpecificAddress", "rep_GetBranchSpecificAddress",
         "function BranchSpecificAddress :String;", answerOf([] {
             return joinedLines({gBRBusAdd1, gBRBusAdd2, gBRBusAdd3, gBRBusAdd4});
         })},
        {"BranchAddress01", "rep_GetBranchAddress01", "function BranchAddress01 :String;",
         answer(gBRBusAdd1)},
        {"BranchAddress02", "rep_GetBranchAddress02", "function BranchAddress02 :String;",
         answer(gBRBusAdd2)},
        {"BranchAddress03", "rep_GetBranchAddress03", "function BranchAddress03 :String;",
         answer(gBRBusAdd3)},
        {"BranchAddress04", "rep_GetBranchAddress04", "function BranchAddress04 :String;",
         answer(gBRBusAdd4)},
        {"BranchTelephone", "rep_GetBranchTelephone", "function BranchTelephone :String;",
         answer(gBRPhone)},
        {"BranchFax", "rep_GetBranchFax", "function BranchFax:String;", answer(gBRFax)},
        {"BranchEMail", "rep_GetBranchEMail", "function BranchEMail :String;", answer(gBREMail)},
        {"BranchWebSite", "rep_GetBranchWebSite", "function BranchWebSite :String;",
         answer(gBRWebSite)},
        {"BranchVATNo", "rep_GetBranchVATNo", "function BranchVATNo :String;", answer(gBRVATNo)},
        {"BranchRegNo", "rep_GetBranchRegNo", "function BranchRegNo :String;", answer(gBRRegNo)},
        {"BranchBankName", "rep_GetBRBankName", "function BranchBankName:String;",
         answer(gBRBankName)},
        {"BranchBankBranchName", "rep_GetBRBranchName", "function BranchBankBranchName:String;",
         answer(gBRBranchName)},
        {"BranchBankBranchCode", "rep_GetBRBranchCode", "function BranchBankBranchCode:String;",
         answer(gBRBranchCode)},
        {"BranchBankAccNo", "rep_GetBRAccNo", "function BranchBankAccNo:String;", answer(gBRAccNo)},
        {"BranchBankAccName", "rep_GetBRAccName", "function BranchBankAccName:String;",
         answer(gBRAccName)},
        {"WHName", "rep_GetWHName",
         "function WHName(aCompany: String; aBranch: String; aWH: String): string;", rep_GetWHName},
        {"GetSmallImage", "rep_GetSmallImage", "function GetSmallImage : String;",
         answerOf([] { return QString(gImagePath + gCO + gBranch + "-LOGO-SMALL-1.jpg"_L1); }),
         false},
        {"GetLargeImage", "rep_GetLargeImage", "function GetLargeImage : String;",
         answerOf([] { return QString(gImagePath + "LOGO-FULL-"_L1 + gCO + ".jpg"_L1); }), false},
        {"CompanyAddress", "rep_GetCompanyAddress", "function CompanyAddress :String;",
         answerOf(companyAddress)}, // a second time, as it has always been
        {"GetLblType", "rep_GetLblType", "function GetLblType :String;",
         answerOf([] { return u"NORMAL"_s; })},
        {"GetDebtorBalance", "rep_GetDebBalance",
         "function GetDebtorBalance(aDebAcc: String; aAP: Integer): Double;", rep_GetDebBalance},
        {"RePrint", "rep_RePrint", "function RePrint : Boolean;", answerOf([] { return false; })},
        {"SelectionCriteriaLines", "rep_SelectionCriteriaLines",
         "function SelectionCriteriaLines : Integer;",
         answerOf([] { return int(gReportCriteria.size()); })},
        {"GetMessage", "rep_GetMessage",
         "function GetMessage(aModCode: String; aMsgCode: String): String;", rep_GetMessage, true},
        {"GetDBBranchName", "rep_GetDBBranchName",
         "function GetDBBranchName(aModCode: String; aMsgCode: String): String;",
         rep_GetDBBranchName, true}, // named after what they do not hold, and stays so
        {"DefaultCashAccount", "rep_DefaultCashAccount", "function DefaultCashAccount :String;",
         answer(gDefAccount)},
        {"Version", "rep_GetVersion", "function Version :String;", answer(gVersion)},
        {"GetTenderType1", "rep_GetTenderType1", "function GetTenderType1 :String;",
         tenderType(10)},
        {"GetTenderType2", "rep_GetTenderType2", "function GetTenderType2 :String;",
         tenderType(11)},
        {"GetTenderType3", "rep_GetTenderType3", "function GetTenderType3 :String;",
         tenderType(12)},
        {"GetTenderType4", "rep_GetTenderType4", "function GetTenderType4 :String;",
         tenderType(13)},
    };
    return rows;
}
// clang-format on
