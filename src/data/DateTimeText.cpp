#include "data/DateTimeText.h"

#include "data/DataUCMN.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "platform/seat/Clock.h"

QString sfg_GetServerDate() {
    return readRows(
        cData->VelmaraCommon, {"SELECT current_timestamp as SDate"},
        dialogAndRaise("999999", sqlErrorOnTable("XXXXX"), "SysFuncGlobal", "sfg_GetServerDate"),
        [](const Statement& rows) {
            return rows.IsEmpty() ? QStringLiteral("Not Found")
                                  : rows.FieldByName("SDate").AsString().section(' ', 0, 0);
        });
}

QString dateText(const QDate& date) {
    return date.toString(QStringLiteral("yyyy/MM/dd"));
}

QDate StrToDate(const QString& text) {
    const QDate date = QDate::fromString(text.trimmed(), QStringLiteral("yyyy/MM/dd"));
    if (!date.isValid()) {
        throw ConversionError(QStringLiteral("'%1' is not a valid date").arg(text));
    }
    return date;
}

QString sfg_Date(int xAddDays) {
    return dateText(StrToDate(sfg_GetServerDate()).addDays(xAddDays));
}

QString sfg_Time() {
    return velcro::seat::now().toString(QStringLiteral("HH:mm:ss"));
}

QString sfg_DTOS(const QString& xDate) {
    const QString date = xDate.trimmed().isEmpty() ? sfg_Date(0) : xDate;
    return date.left(4) + date.mid(5, 2) + date.mid(8, 2);
}

QString sfg_STOD(const QString& xDate) {
    return xDate.left(4) + "/" + xDate.mid(4, 2) + "/" + xDate.mid(6, 2);
}

int sfg_TimeToSec(const QString& xTime) {
    if (xTime.trimmed().isEmpty()) {
        return 0;
    }
    const auto colon = xTime.indexOf(QLatin1Char(':'));
    return StrToInt(xTime.left(colon)) * 3600 + StrToInt(xTime.mid(colon + 1, 2)) * 60 +
           StrToInt(xTime.right(2));
}

QString sfg_TempFileName() {
    return velcro::seat::now().toString(QStringLiteral("yyyyMMdd-HHmmss"));
}

QString sfg_GenerateDTReference() {
    return velcro::seat::now().toString(QStringLiteral("yyyyMMddHHmmsszzz"));
}
