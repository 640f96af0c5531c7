#include "platform/seat/PrivateFile.h"

#include <QFile>
#include <QRandomGenerator>

#include <filesystem>
#include <system_error>

namespace velcro::seat {

bool replaceFile(const QString& path, const QByteArray& bytes, QString* reason) {
    // Made new, for its owner alone. A QTemporaryFile stays open until it goes, and Windows renames no
    // file that is.
    QFile fresh(path + QLatin1Char('.') +
                QString::number(QRandomGenerator::system()->generate64(), 36));
    bool written = fresh.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                              QFile::ReadOwner | QFile::WriteOwner) &&
                   fresh.write(bytes) == bytes.size() && fresh.flush();
    QString why = fresh.errorString();
    if (written) {
        fresh.close();
        // Renames over a link, where QFile and QSaveFile would go where it leads.
        std::error_code error;
        std::filesystem::rename(fresh.fileName().toStdU16String(), path.toStdU16String(), error);
        written = !error;
        why = QString::fromStdString(error.message());
    }
    if (!written) {
        fresh.remove();
    }
    if (!written && reason) {
        *reason = why;
    }
    return written;
}

} // namespace velcro::seat
