#include "platform/seat/IniFile.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>

namespace velcro::seat {

namespace {

QString decoded(const QByteArray& bytes) {
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

bool isControl(QChar c) {
    return c < QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\r') &&
           c != QLatin1Char('\n');
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
    const QString text = decoded(file.readAll());
    if (std::any_of(text.begin(), text.end(), isControl)) {
        throw IniError(QStringLiteral("The file %1 is garbled: it is no text file.").arg(path));
    }
    IniFile result;
    int number = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        result.addLine(line.trimmed(), ++number, path);
    }
    if (result.section_.isNull()) {
        throw IniError(QStringLiteral("The file %1 is garbled: it has no section.").arg(path));
    }
    return result;
}

void IniFile::addLine(const QString& line, int number, const QString& path) {
    if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))) {
        return;
    }
    if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
        section_ = line.mid(1, line.size() - 2).trimmed();
        return;
    }
    const auto equals = line.indexOf(QLatin1Char('='));
    if (equals < 1 || section_.isNull()) {
        throw IniError(QStringLiteral("The file %1 is garbled in line %2: it is neither a section "
                                      "nor a key of one.")
                           .arg(path)
                           .arg(number));
    }
    entries_.append({section_, line.left(equals), line.mid(equals + 1).trimmed()});
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
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
}

} // namespace velcro::seat
