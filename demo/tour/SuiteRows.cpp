#include "SuiteRows.h"

#include "data/Connection.h"
#include "data/Session.h"
#include "data/Statement.h"

QMap<QString, QString> suiteRow(const QString& select) {
    Connection other(ConnectionOptions{});
    other.setConnectString(
        sfg_BuildUNIConnectionStr(gCmnHost, QStringLiteral("VELSUITE"), {}, {}, {}, {}));
    other.Connect();
    Statement query(other);
    query.SQL.Add(select);
    query.Open();
    QMap<QString, QString> row;
    for (std::size_t i = 0; !query.IsEmpty() && i < query.rows().columnCount(); ++i) {
        const Field field = query.Fields(int(i));
        row[field.name()] = field.AsString();
    }
    return row;
}

int suiteNumber(const QString& select) {
    const auto row = suiteRow(select);
    return row.isEmpty() ? 0 : row.first().toInt();
}
