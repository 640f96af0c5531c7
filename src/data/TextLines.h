// Lines of text that are put together one by one and sent as one: a statement, or a batch of them.
#pragma once

#include <QString>
#include <QStringList>

class TextLines
{
public:
    TextLines() = default;
    explicit TextLines(QStringList lines)
        : lines_(std::move(lines)) {}

    void Add(const QString& line) { lines_.append(line); }
    void Clear() { lines_.clear(); }
    int Count() const { return int(lines_.size()); }
    bool isEmpty() const { return lines_.isEmpty(); }
    /// All lines, joined by line feeds.
    QString Text() const { return lines_.join(QLatin1Char('\n')); }
    const QStringList& lines() const { return lines_; }

private:
    QStringList lines_;
};
