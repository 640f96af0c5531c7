#include "reports/SysRepUtils.h"

#include "data/Errors.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "data/TextHelpers.h"
#include "reports/PrintFormat.h"
#include "reports/ReportReads.h"
#include "reports/SysNumToWords.h"

#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int firstTenderType = 10; // parameter of the group "BRANCH"

QString bracketed(const QString& code, const QString& name) {
    return u'[' + code + "] - "_L1 + name;
}

double amountOrZero(const QString& text) {
    try {
        return StrToFloat(text);
    } catch (const ConversionError&) {
        return 0;
    }
}

void rep_GetAmtWords(Parameters& parameters) {
    const double amount = amountOrZero(parameters.GetParamValue(0).toString());
    parameters.SetParamValue(1, ntw_NumToWords(amount).toUpper());
}

void rep_SecToTime(Parameters& parameters) {
    parameters.SetParamValue(1, secondsAsTime(parameters.GetParamValue(0).toInt()));
}

// Whatever put the logo aside left it under another name.
QString rep_ImgPath() {
    const QString path = gImagePath + "ORVLogo1.jpg"_L1;
    if (!QFile::exists(path)) {
        QFile::rename(path + ".bak"_L1, path);
    }
    return path;
}

} // namespace

QString selectionCriteria() {
    qsizetype wLong = 0;
    for (const auto& entry : gReportCriteria) {
        wLong = std::max(wLong, entry->Criterion.trimmed().size());
    }
    ++wLong;
    QString text;
    for (const auto& entry : gReportCriteria) {
        const QString name = entry->Criterion.trimmed();
        text += name + QString(wLong - name.size() + 2, u'.') + ": "_L1 + entry->Value + u'\r';
    }
    return text;
}

QString secondsAsTime(int xSeconds) {
    const auto two = [](int number) { return sfg_PADL(QString::number(number), u'0', 2); };
    return two(xSeconds / 3600) + u':' + two(xSeconds / 60 - xSeconds / 3600 * 60) + u':' +
           two(xSeconds % 60);
}

// The registered name and the signature of "ImgPath" differ, and the four tender types are the first
// one: templates in the field know them so.
std::span<const FunctionRow> sysRepUtilsFunctions() {
    static const FunctionRow rows[] = {
        {"CompanyName", "rep_GetCompanyName", "function CompanyName : String;", answer(gCOName),
         false},
        {"BranchName", "rep_GetBranchName", "function BranchName : String;",
         answerOf([] { return bracketed(gBranch, gBRName); }), false},
        {"ReportName", "rep_GetReportName", "function ReportName : String;",
         answerOf([] { return u'(' + gRepName + ") - "_L1 + gRepDesc; }), false},
        {"UserName", "rep_GetUserName", "function UserName :String;",
         answerOf([] { return bracketed(gUserCode, gUserName); }), false},
        {"Version", "rep_GetVersion", "function Version : string;",
         answerOf([] { return u'[' + gVersion + u']'; }), false},
        {"ImgPath", "rep_ImgPath", "function ImagePath : string;", answerOf(rep_ImgPath), false},
        {"AmtInWords", "rep_GetAmtWords", "function AmtInWords(aAmount : String): String;",
         rep_GetAmtWords},
        {"SecToTime", "rep_SecToTime", "function SecToTime(aSeconds : Integer ): String;",
         rep_SecToTime},
        {"SelectionCriteria", "rep_SelectionCriteria", "function SelectionCriteria : String;",
         answerOf(selectionCriteria), false},
        {"GetTenderType1", "rep_GetTenderType1", "function GetTenderType1 :String;",
         tenderType(firstTenderType), false},
        {"GetTenderType2", "rep_GetTenderType1", "function GetTenderType1 :String;",
         tenderType(firstTenderType), false},
        {"GetTenderType3", "rep_GetTenderType1", "function GetTenderType1 :String;",
         tenderType(firstTenderType), false},
        {"GetTenderType4", "rep_GetTenderType1", "function GetTenderType1 :String;",
         tenderType(firstTenderType), false},
    };
    return rows;
}
