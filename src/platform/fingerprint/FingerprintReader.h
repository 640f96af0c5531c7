// A fingerprint reader as the log-in screens see it, whoever made it.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <stdexcept>

namespace velcro::fingerprint {

/// The two families of templates that the suite keeps, each in a table of its own.
enum class Family { DigitalPersona, ZKTeco };

/// What a reader took of a finger. Only that reader can read it.
class Print
{
public:
    Print() = default;
    virtual ~Print() = default;
    Print(const Print&) = delete;
    Print& operator=(const Print&) = delete;
};

struct Comparison
{
    bool verified = false;
    double falseAcceptanceRate = 0; // reached; 0 where a reader tells none
};

/// A stored template that the reader cannot make sense of.
class TemplateError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What a reader tells. All come on the thread that opened it, from its message loop.
struct ReaderEvents
{
    /// A finger lies on the sensor.
    std::function<void()> touched;
    std::function<void(const std::shared_ptr<Print>& print)> captured;
    /// How good a scan was: 0 good, -1 suspicious, any other number not good.
    std::function<void(int quality)> featureInfo;
    std::function<void(const QImage& image)> imageReceived;
    /// The reader is gone, and why.
    std::function<void(const QString& reason)> lost;
    /// Asked before each finger: the templates that it may be compared with, in their order. Some
    /// readers compare by themselves while they take it.
    std::function<QList<QByteArray>()> enrolled;
};

class FingerprintReader
{
public:
    FingerprintReader() = default;
    virtual ~FingerprintReader() = default;
    FingerprintReader(const FingerprintReader&) = delete;
    FingerprintReader& operator=(const FingerprintReader&) = delete;

    /// True when a sensor is there and waits for a finger.
    virtual bool open(ReaderEvents events) = 0;
    /// No event comes after it.
    virtual void close() = 0;
    virtual QString serialNumber() const = 0;
    virtual QString engineVersion() const = 0;
    /// Of the last scan, 0 to 100.
    virtual int lastQuality() const = 0;

    /// Whether the reader is taking a finger for enrolment, and how many times it wants it still.
    virtual bool isRegister() const { return false; }
    virtual int enrollIndex() const { return 0; }
    virtual void cancelEnroll() {}

    /// The templates that a finger may be compared with are others from now on.
    virtual void enrolledChanged() {}
    /// Throws TemplateError.
    virtual Comparison compare(const Print& print, const QByteArray& stored) = 0;
};

using ReaderFactory = std::function<std::unique_ptr<FingerprintReader>(Family family)>;

/// Makes the seat's readers; set where the program is put together. Null stands for no reader.
inline ReaderFactory readerFactory;

/// A reader that is plugged into this seat: over libfprint, or the vendors' components on Windows.
std::unique_ptr<FingerprintReader> pluggedReader(Family family);

} // namespace velcro::fingerprint
