// A plain INI text file: sections, keys and values as they stand, without any decoding.
#pragma once

#include <QList>
#include <QString>

#include <stdexcept>

namespace velcro::seat {

/// The file cannot be read, or is no INI file; what() tells which, in UTF-8.
class IniError : public std::runtime_error
{
public:
    explicit IniError(const QString& text)
        : std::runtime_error(text.toStdString()) {}
};

/// Sections and keys are found in any case; of two equal keys the first counts. A key that ends in a
/// blank is another one than the same key without. A value is all that follows its "=", blanks
/// included.
class IniFile
{
public:
    /// UTF-8, UTF-16 with its mark, or else the seat's own letters. Lines that are neither a section
    /// nor a key of one are passed over, and so is the end mark of old editors. Throws IniError for
    /// control characters and for a file without any section.
    static IniFile read(const QString& path);

    QString value(const QString& section, const QString& key, const QString& missing = {}) const;
    bool contains(const QString& section, const QString& key) const;
    void setValue(const QString& section, const QString& key, const QString& value);
    /// Replaces the file in one step, keeping the old one when that fails; false then. See
    /// replaceFile.
    bool write(const QString& path) const;

private:
    struct Entry
    {
        QString section, key, value;
    };
    qsizetype find(const QString& section, const QString& key) const; // -1 for none
    void addLine(QStringView line);

    QList<Entry> entries_;
    QString section_; // the one being read
};

} // namespace velcro::seat
