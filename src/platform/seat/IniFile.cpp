#include "platform/seat/IniFile.h"

#include "platform/seat/AnsiText.h"
#include "platform/seat/PrivateFile.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>

namespace velcro::seat {

namespace {

QString decoded(const QByteArray& bytes) {
    const auto marked = QStringConverter::encodingForData(bytes);
    // Stateless: half a letter at the end of the file is an error and not waited for.
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8),
                           QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() ? fromAnsi(bytes) : text;
}

bool isControl(QChar c) {
    return c < QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\r') &&
           c != QLatin1Char('\n');
}

// Editors of old end a text with it.
void chopEndMark(QString& text) {
    const QString rest = text.section(QChar(0x1a), 1);
    if (rest.trimmed().isEmpty()) {
        text.truncate(text.size() - rest.size() - (text.contains(QChar(0x1a)) ? 1 : 0));
    }
}

bool sameText(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

IniFile IniFile::read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw IniError(
            QStringLiteral("The file %1 cannot be read: %2.").arg(path, file.errorString()));
    }
    QString text = decoded(file.readAll());
    chopEndMark(text);
    if (std::any_of(text.begin(), text.end(), isControl)) {
        throw IniError(QStringLiteral("The file %1 is garbled: it is no text file.").arg(path));
    }
    IniFile result;
    for (QStringView line : QStringView(text).split(QLatin1Char('\n'))) {
        result.addLine(line.endsWith(QLatin1Char('\r')) ? line.chopped(1) : line);
    }
    if (result.section_.isNull()) {
        throw IniError(QStringLiteral("The file %1 is garbled: it has no section.").arg(path));
    }
    return result;
}

// What is neither a section nor a key of one is passed over, as every program that shares the file
// does.
void IniFile::addLine(QStringView line) {
    const QStringView plain = line.trimmed();
    if (plain.startsWith(QLatin1Char(';')) || plain.startsWith(QLatin1Char('#'))) {
        return;
    }
    if (plain.startsWith(QLatin1Char('[')) && plain.endsWith(QLatin1Char(']'))) {
        section_ = plain.mid(1, plain.size() - 2).trimmed().toString();
        return;
    }
    const auto equals = line.indexOf(QLatin1Char('='));
    if (equals < 1 || section_.isNull()) {
        return;
    }
    QStringView key = line.left(equals);
    while (!key.isEmpty() && key.front().isSpace()) {
        key = key.mid(1);
    }
    entries_.append({section_, key.toString(), line.mid(equals + 1).toString()});
}

qsizetype IniFile::find(const QString& section, const QString& key) const {
    const auto matching = [&](const auto& keyMatches) {
        const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return sameText(entry.section, section) && keyMatches(entry.key);
        });
        return found == entries_.end() ? -1 : found - entries_.begin();
    };
    const auto exact = matching([&](const QString& it) { return sameText(it, key); });
    // "Key = value": the blank before the sign is no part of the key.
    return exact >= 0 ? exact
                      : matching([&](const QString& it) { return sameText(it.trimmed(), key); });
}

QString IniFile::value(const QString& section, const QString& key, const QString& missing) const {
    const auto index = find(section, key);
    return index < 0 ? missing : entries_[index].value;
}

bool IniFile::contains(const QString& section, const QString& key) const {
    return find(section, key) >= 0;
}

void IniFile::setValue(const QString& section, const QString& key, const QString& value) {
    const auto index = find(section, key);
    if (index < 0) {
        entries_.append({section, key, value});
    } else {
        entries_[index].value = value;
    }
}

bool IniFile::write(const QString& path) const {
    QStringList sections;
    for (const Entry& entry : entries_) {
        if (!sections.contains(entry.section, Qt::CaseInsensitive)) {
            sections.append(entry.section);
        }
    }
    QString text;
    for (const QString& section : std::as_const(sections)) {
        text += QLatin1Char('[') + section + QLatin1String("]\n");
        for (const Entry& entry : entries_) {
            if (sameText(entry.section, section)) {
                text += entry.key + QLatin1Char('=') + entry.value + QLatin1Char('\n');
            }
        }
    }
    return replaceFile(path, text.toUtf8());
}

} // namespace velcro::seat
