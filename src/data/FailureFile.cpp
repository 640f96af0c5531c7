#include "data/FailureFile.h"

#include "platform/seat/Folders.h"
#include "platform/seat/PrivateFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// A password that was to be written must not stay behind in a file that goes to the help desk.
QString withoutPasswords(QString text) {
    static const QRegularExpression assignment(
        QStringLiteral("(pswd\\]?\\s*=\\s*)N?'(?:[^']|'')*'"),
        QRegularExpression::CaseInsensitiveOption);
    return text.replace(assignment, QStringLiteral("\\1'***'"));
}

} // namespace

void writeFailureFile(const QString& name, const QString& text) {
    const QString path = velcro::seat::nativePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QString reason;
    if (!velcro::seat::replaceFile(path, withoutPasswords(text).toUtf8(), &reason)) {
        qWarning("%s: %s", qPrintable(path), qPrintable(reason));
    }
}
