// The seat's screen of a program that runs offscreen: as large as it is asked to be.
#pragma once

#include <QByteArray>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>

#include <stdexcept>

/// The offscreen platform reads its screen from the file, which must outlive the application. Call
/// before the application is made; without frames of windows when they are not wanted.
inline void useScreen(QTemporaryFile& file, int width, int height, bool frames) {
    const QJsonObject screen{
        {"name", "seat"},   {"x", 0},           {"y", 0},   {"width", width},
        {"height", height}, {"logicalDpi", 96}, {"dpr", 1}, {"logicalBaseDpi", 96}};
    const QJsonObject all{{"synchronousWindowSystemEvents", false},
                          {"windowFrameMargins", frames},
                          {"screens", QJsonArray{screen}}};
#ifdef _WIN32
    file.setFileTemplate(QStringLiteral("velcro-screen.XXXXXX")); // a colon would end the option
#endif
    if (!file.open() || file.write(QJsonDocument(all).toJson()) < 0 || !file.flush()) {
        throw std::runtime_error("cannot write the screen's size");
    }
#ifdef _WIN32
    const QString name = QFileInfo(file).fileName();
#else
    const QString name = file.fileName();
#endif
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + name.toLocal8Bit());
}
