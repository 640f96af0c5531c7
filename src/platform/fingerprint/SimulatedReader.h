// A reader without a device, for trying out and for tests: fingers are laid on it by name.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"

#include <QObject>

namespace velcro::fingerprint {

class SimulatedReader : public QObject, public FingerprintReader
{
public:
    /// A finger is laid on by writing its name into the file, which is then emptied; without a file
    /// only touch() lays one on.
    explicit SimulatedReader(QString fingerFile = {});
    ~SimulatedReader() override;

    /// The template of a finger.
    static QByteArray templateOf(const QString& finger);
    /// Lays a finger on every reader that is open; it is seen when messages are taken next. Any
    /// quality but 0 is a scan that cannot be used.
    static void touch(const QString& finger, const QImage& image = {}, int quality = 0);
    static void unplug();

    bool open(ReaderEvents events) override;
    void close() override;
    QString serialNumber() const override { return QStringLiteral("SIM-0001"); }
    QString engineVersion() const override { return QStringLiteral("10"); }
    int lastQuality() const override { return lastQuality_; }
    bool isRegister() const override { return timesToEnroll > 0; }
    int enrollIndex() const override { return timesToEnroll; }
    void cancelEnroll() override { timesToEnroll = 0; }
    Comparison compare(const Print& print, const QByteArray& stored) override;

    /// Set before it is opened: no sensor answers.
    inline static bool plugged = true;
    int timesToEnroll = 0;

private:
    void take(const QString& finger, const QImage& image, int quality);
    void readFile();

    ReaderEvents events_;
    QString fingerFile_;
    int lastQuality_ = 0;
};

} // namespace velcro::fingerprint
