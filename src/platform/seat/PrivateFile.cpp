#include "platform/seat/PrivateFile.h"

#include <QTemporaryFile>

#include <filesystem>
#include <system_error>

namespace velcro::seat {

bool replaceFile(const QString& path, const QByteArray& bytes, QString* reason) {
    QTemporaryFile fresh(path + QStringLiteral(".XXXXXX")); // made new, for its owner alone
    bool written = fresh.open() && fresh.write(bytes) == bytes.size() && fresh.flush();
    QString why = fresh.errorString();
    if (written) {
        fresh.close();
        // Renames over a link, where QFile and QSaveFile would go where it leads.
        std::error_code error;
        std::filesystem::rename(fresh.fileName().toStdU16String(), path.toStdU16String(), error);
        written = !error;
        why = QString::fromStdString(error.message());
        fresh.setAutoRemove(!written);
    }
    if (!written && reason) {
        *reason = why;
    }
    return written;
}

} // namespace velcro::seat
