#include "schema/Definitions.h"

#include <QStringList>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace velcro::schema {

namespace {

QStringList linesOf(const char* text) {
    QStringList lines;
    for (const QString& line : QString::fromLatin1(text).split('\n', Qt::SkipEmptyParts)) {
        if (const QString trimmed = line.trimmed(); !trimmed.isEmpty()) {
            lines.append(trimmed);
        }
    }
    return lines;
}

/// The words of a line; what stands behind the last but one is one word.
QStringList wordsOf(const QString& line, int count) {
    QStringList words;
    QString rest = line;
    while (!rest.isEmpty() && words.size() + 1 < count) {
        const auto blank = rest.indexOf(' ');
        words.append(rest.left(blank));
        rest = blank < 0 ? QString() : rest.mid(blank).trimmed();
    }
    words.append(rest);
    words.resize(count);
    return words;
}

QList<Column> columnsFrom(const char* text) {
    QList<Column> columns;
    for (const QString& line : linesOf(text)) {
        const QStringList words = wordsOf(line, 2);
        columns.append({words[0], words[1]});
    }
    return columns;
}

Change::Kind kindOf(const QString& verb) {
    if (verb == "add"_L1) {
        return Change::Kind::Add;
    }
    return verb == "alter"_L1 ? Change::Kind::Alter : Change::Kind::Drop;
}

Change changeFrom(const QString& line, const QString& table) {
    const QStringList words = wordsOf(line, 4);
    const auto dot = words[1].indexOf('.');
    const auto bracket = words[2].indexOf('(');
    Change change{kindOf(words[0]), dot < 0 ? table : words[1].left(dot), words[1].mid(dot + 1)};
    change.type = words[2].left(bracket);
    change.length = bracket < 0 ? QString() : words[2].mid(bracket + 1).chopped(1);
    change.value = words[3].isEmpty() ? QString() : words[3].mid(1).chopped(1);
    return change;
}

} // namespace

QList<Column> columnsOf(const TableDefinition& table) {
    QList<Column> columns = columnsFrom(table.columns);
    for (const Column& other : columnsFrom(table.otherwise)) {
        const auto same = [&](const Column& column) { return column.name == other.name; };
        if (other.type.isEmpty()) {
            columns.removeIf(same);
        } else {
            *std::ranges::find_if(columns, same) = other;
        }
    }
    return columns;
}

QString createText(const TableDefinition& table) {
    QStringList columns;
    for (const Column& column : columnsOf(table)) {
        columns.append('[' + column.name + "] " + column.type);
    }
    return "CREATE TABLE [dbo].[" + QString::fromLatin1(table.name) + "] (" +
           columns.join(", "_L1) + " )";
}

QList<Change> changesOf(const UpdateStep& step) {
    QList<Change> changes;
    const QStringList lines = linesOf(step.changes);
    for (const QString& table : QString::fromLatin1(step.tables).split(' ')) {
        for (const QString& line : lines) {
            changes.append(changeFrom(line, table));
        }
    }
    return changes;
}

const UpdateStep& updateStep(const QString& name) {
    for (const Family* family : families) {
        for (const UpdateStep& step : family->updates) {
            if (name == QLatin1String(step.name)) {
                return step;
            }
        }
    }
    throw std::logic_error("no update step " + name.toStdString());
}

QList<Index> indexes() {
    QList<Index> all;
    for (const char* list : indexLists) {
        for (const QString& line : linesOf(list)) {
            const QStringList words = wordsOf(line, 3);
            all.append({words[0], words[1], words[2]});
        }
    }
    return all;
}

} // namespace velcro::schema
