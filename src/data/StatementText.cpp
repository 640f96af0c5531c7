#include "data/StatementText.h"

#include "data/DateTimeText.h"
#include "data/Session.h"

namespace {

bool addTo(TextLines& buffer, const QString& xSQL, const QString& xFunction) {
    if (xFunction.compare(QLatin1String("NEW"), Qt::CaseInsensitive) == 0) {
        buffer.Clear();
    }
    buffer.Add(xSQL + QLatin1String(" ;"));
    return true;
}

} // namespace

void sfg_ClearSQL() {
    gSQL.Clear();
}

void sfg_ClearSQL2() {
    gSQL2.Clear();
}

bool sfg_AddSQL(const QString& xSQL, const QString& xFunction) {
    return addTo(gSQL, xSQL, xFunction);
}

bool sfg_AddSQL2(const QString& xSQL, const QString& xFunction) {
    return addTo(gSQL2, xSQL, xFunction);
}

bool sfg_AddSQL(const QStringList& pieces, const QString& xFunction) {
    return sfg_AddSQL(pieces.join(QString()), xFunction);
}

bool sfg_AddSQL2(const QStringList& pieces, const QString& xFunction) {
    return sfg_AddSQL2(pieces.join(QString()), xFunction);
}

QString QuotedStr(const QString& text) {
    QString doubled = text;
    doubled.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + doubled + QLatin1Char('\'');
}

QString QuotedStr(qint64 number) {
    return QuotedStr(QString::number(number));
}

namespace {

QString quotedAndJoined(const QStringList& values, const char* between) {
    QStringList quoted;
    for (const QString& value : values) {
        quoted.append(QuotedStr(value));
    }
    return quoted.join(QLatin1String(between));
}

} // namespace

QString QuotedStrArray(const QStringList& xValues) {
    return quotedAndJoined(xValues, ", ");
}

QString valueList(const QStringList& values) {
    return quotedAndJoined(values, ",");
}

QString sfg_AddDTO() {
    return QuotedStr(sfg_Date(0)) + "," + QuotedStr(sfg_Time()) + "," + QuotedStr(gUserCode) + "," +
           QuotedStr(gPCName) + ")";
}

QString sfg_UpdateDTO() {
    return "[DTODate]  = " + QuotedStr(sfg_Date(0)) + "," + //
           "[DTOTime]  = " + QuotedStr(sfg_Time()) + "," +  //
           "[DTOUser]  = " + QuotedStr(gUserCode) + "," +   //
           "[DTOMacID] = " + QuotedStr(gPCName);
}

QString sfg_DTO() {
    return sfg_Date(0) + " - " + sfg_Time() + " - " + gUserCode;
}
