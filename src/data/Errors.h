// The exceptions that the program itself throws, and the text of any exception.
#pragma once

#include <QString>

#include <exception>
#include <stdexcept>

/// A failure told in the program's own words; what() is UTF-8.
class VelmaraError : public std::runtime_error
{
public:
    explicit VelmaraError(const QString& text)
        : std::runtime_error(text.toStdString()) {}
};

/// A text that was read as a number or a date and is none.
class ConversionError : public VelmaraError
{
public:
    using VelmaraError::VelmaraError;
};

/// What an exception says, as it is shown to the user.
inline QString errorText(const std::exception& error) {
    return QString::fromUtf8(error.what());
}

/// Throws ConversionError "'x' is not a valid integer value" when the trimmed text is no integer.
int StrToInt(const QString& text);
/// Throws ConversionError "'x' is not a valid floating point value".
double StrToFloat(const QString& text);
