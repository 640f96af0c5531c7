#include "data/FailureFile.h"

#include "platform/seat/Folders.h"

#include <QDir>
#include <QFile>
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
    QFile file(path);
    const QByteArray bytes = withoutPasswords(text).toUtf8();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) ||
        file.write(bytes) != bytes.size()) {
        qWarning("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}
