// The reader that is plugged into a seat, over libfprint. A helper program of ours watches it: see
// helper/velcro-finger.cpp for what the two say to each other.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"

#include <QObject>
#include <QProcess>
#include <QSet>

namespace velcro::fingerprint {

class PluggedReader : public QObject, public FingerprintReader
{
public:
    PluggedReader();
    ~PluggedReader() override;

    bool open(ReaderEvents events) override;
    void close() override;
    QString serialNumber() const override { return serialNumber_; }
    QString engineVersion() const override { return QStringLiteral("libfprint-2"); }
    int lastQuality() const override { return lastQuality_; }
    void enrolledChanged() override { waitForFinger(); }
    Comparison compare(const Print& print, const QByteArray& stored) override;

    /// The helper stands beside the program unless a test knows another place.
    inline static QString helperProgram;

private:
    void hear(const QByteArray& line);
    void hearImage(const QList<QByteArray>& words);
    void hearCaptured(int row);
    void helperEnded();
    void waitForFinger();

    QProcess helper_;
    ReaderEvents events_;
    bool opened_ = false;
    bool asked_ = false; // the helper has templates_
    QString serialNumber_;
    int lastQuality_ = 0;
    QList<QByteArray> templates_; // that a finger is compared with
    QSet<QByteArray> unreadable_;
};

} // namespace velcro::fingerprint
