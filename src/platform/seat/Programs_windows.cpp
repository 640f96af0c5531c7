#include "platform/seat/Programs.h"

#include "platform/seat/WindowsApi.h"

#include <QDir>

#include <shellapi.h>

namespace velcro::seat::system {

namespace {

/// As the started program takes its command line apart again.
QString quoted(const QString& argument) {
    if (!argument.isEmpty() && !argument.contains(QLatin1Char(' ')) &&
        !argument.contains(QLatin1Char('\t')) && !argument.contains(QLatin1Char('"'))) {
        return argument;
    }
    QString text;
    int backslashes = 0;
    for (const QChar letter : argument) {
        if (letter == QLatin1Char('"')) { // those before it count double, and it has one itself
            text += QString(backslashes + 1, QLatin1Char('\\'));
        }
        backslashes = letter == QLatin1Char('\\') ? backslashes + 1 : 0;
        text += letter;
    }
    return QLatin1Char('"') + text + QString(backslashes, QLatin1Char('\\')) + QLatin1Char('"');
}

} // namespace

// The shell may start what a program alone may not without asking for an administrator: the
// keyboards on screen, which reach into other programs' windows.
bool startProgram(const QString& path, const QStringList& arguments) {
    QStringList words;
    for (const QString& argument : arguments) {
        words << quoted(argument);
    }
    const std::wstring file = QDir::toNativeSeparators(path).toStdWString();
    const std::wstring line = words.join(QLatin1Char(' ')).toStdWString();
    SHELLEXECUTEINFOW start{};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_FLAG_NO_UI;
    start.lpVerb = L"open";
    start.lpFile = file.c_str();
    start.lpParameters = line.c_str();
    start.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&start) != FALSE;
}

} // namespace velcro::seat::system
