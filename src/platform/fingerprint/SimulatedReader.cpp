#include "platform/fingerprint/SimulatedReader.h"

#include <QFile>
#include <QTimer>

#include <algorithm>
#include <utility>
#include <vector>

namespace velcro::fingerprint {

namespace {

constexpr int goodQuality = 87;
constexpr int poorQuality = 12;
constexpr auto lookAtFile = std::chrono::milliseconds(200);
const QByteArray mark = "SIM:";

struct SimulatedPrint : Print
{
    explicit SimulatedPrint(QByteArray what)
        : text(std::move(what)) {}
    QByteArray text;
};

std::vector<SimulatedReader*> openReaders;

} // namespace

SimulatedReader::SimulatedReader(QString fingerFile)
    : fingerFile_(std::move(fingerFile)) {}

SimulatedReader::~SimulatedReader() {
    std::erase(openReaders, this);
}

// Only characters that a template's text may hold.
QByteArray SimulatedReader::templateOf(const QString& finger) {
    QByteArray text = mark;
    for (const char character : finger.toUpper().toLatin1()) {
        if (character >= '0') {
            text.append(character);
        }
    }
    return text;
}

void SimulatedReader::touch(const QString& finger, const QImage& image, int quality) {
    for (auto* reader : openReaders) {
        QTimer::singleShot(0, reader, [=] { reader->take(finger, image, quality); });
    }
}

void SimulatedReader::unplug() {
    for (auto* reader : openReaders) {
        QTimer::singleShot(0, reader, [reader] {
            if (reader->events_.lost) {
                reader->events_.lost(QStringLiteral("The reader was unplugged."));
            }
        });
    }
}

bool SimulatedReader::open(ReaderEvents events) {
    if (!plugged) {
        return false;
    }
    events_ = std::move(events);
    openReaders.push_back(this);
    if (!fingerFile_.isEmpty()) {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this] { readFile(); });
        timer->start(lookAtFile);
    }
    return true;
}

void SimulatedReader::close() {
    std::erase(openReaders, this);
    events_ = {};
}

void SimulatedReader::readFile() {
    QFile file(fingerFile_);
    if (file.size() == 0 || !file.open(QIODevice::ReadWrite)) {
        return;
    }
    const QString finger = QString::fromUtf8(file.readLine()).trimmed();
    file.resize(0);
    file.close();
    take(finger, {}, finger.isEmpty() ? 1 : 0);
}

void SimulatedReader::take(const QString& finger, const QImage& image, int quality) {
    if (!events_.captured) {
        return; // closed meanwhile
    }
    const ReaderEvents events = events_; // a handler may close this reader
    lastQuality_ = quality == 0 ? goodQuality : poorQuality;
    events.touched();
    if (!image.isNull()) {
        events.imageReceived(image);
    }
    events.featureInfo(quality);
    if (quality == 0) {
        events.captured(std::make_shared<SimulatedPrint>(templateOf(finger)));
    }
}

Comparison SimulatedReader::compare(const Print& print, const QByteArray& stored) {
    if (!stored.startsWith(mark)) {
        throw TemplateError("The template is of another reader.");
    }
    const auto* taken = dynamic_cast<const SimulatedPrint*>(&print);
    return {.verified = taken != nullptr && taken->text == stored};
}

} // namespace velcro::fingerprint
