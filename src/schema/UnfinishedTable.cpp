#include "schema/UnfinishedTable.h"

#include "data/Session.h"
#include "data/StatementText.h"
#include "schema/SysDBGen.h"

#include <QFile>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace velcro::schema {

namespace {

QString notePath() {
    return gSQLPath.isEmpty() ? QString() : gSQLPath + "TillTable.unfinished";
}

// A seat may be pointed at another till before it sweeps again.
QString thisTill() {
    return gLocHost + '/' + gLocDBName;
}

} // namespace

UnfinishedTable::UnfinishedTable(const QString& table, const QString& keyStatement)
    : path_(notePath()) {
    QFile note(path_);
    // A folder that cannot be written is no reason to leave the table unmade.
    if (!path_.isEmpty() && note.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        note.write(QStringList{thisTill(), table, keyStatement}.join('\n').toUtf8());
    }
}

UnfinishedTable::~UnfinishedTable() {
    if (!path_.isEmpty()) {
        QFile::remove(path_);
    }
}

void UnfinishedTable::finish() {
    QFile note(notePath());
    if (note.fileName().isEmpty() || !note.open(QIODevice::ReadOnly)) {
        return;
    }
    const QStringList lines = QString::fromUtf8(note.readAll()).split('\n');
    note.close();
    if (lines.size() != 3 || lines[0] != thisTill()) {
        return;
    }
    const bool hasKey = sdb_Local_Query(
        "SELECT * FROM SysIndexes WHERE NAME = " + QuotedStr(lines[1] + "_idx00"), u"N"_s);
    if (!hasKey && sdb_FindTable(lines[1])) {
        send(lines[2]);
    }
    note.remove();
}

} // namespace velcro::schema
