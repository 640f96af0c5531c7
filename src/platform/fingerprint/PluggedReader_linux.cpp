#include "platform/fingerprint/PluggedReader.h"

#include "platform/fingerprint/TemplateText.h"

#include <QCoreApplication>

#include <utility>

namespace velcro::fingerprint {

namespace {

constexpr int patience = 5000; // milliseconds, for a reader that is slow to wake up
constexpr int farewell = 300;

struct ComparedPrint : Print
{
    explicit ComparedPrint(QByteArray text)
        : matched(std::move(text)) {}
    QByteArray matched; // the template it matches; blank for none
};

QString helperPath() {
    return PluggedReader::helperProgram.isEmpty()
               ? QCoreApplication::applicationDirPath() + QStringLiteral("/velcro-finger")
               : PluggedReader::helperProgram;
}

/// Characters that would end a line early must not come between the rows.
QByteArray asLine(const QByteArray& text) {
    return isTemplateText(text) ? text : QByteArray("-");
}

} // namespace

std::unique_ptr<FingerprintReader> pluggedReader(Family /*family*/) {
    return std::make_unique<PluggedReader>();
}

PluggedReader::PluggedReader() {
    helper_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

PluggedReader::~PluggedReader() {
    close();
}

bool PluggedReader::open(ReaderEvents events) {
    helper_.start(helperPath(), {});
    if (!helper_.waitForStarted(patience)) {
        return false;
    }
    while (!helper_.canReadLine()) {
        if (!helper_.waitForReadyRead(patience)) {
            close();
            return false;
        }
    }
    const QByteArray answer = helper_.readLine().trimmed();
    opened_ = answer.startsWith("opened ");
    if (!opened_) {
        close();
        return false;
    }
    serialNumber_ = QString::fromUtf8(answer.mid(int(qstrlen("opened "))));
    events_ = std::move(events);
    connect(&helper_, &QProcess::readyReadStandardOutput, this, [this] {
        while (opened_ && helper_.canReadLine()) {
            hear(helper_.readLine().trimmed());
        }
    });
    connect(&helper_, &QProcess::finished, this, [this] { helperEnded(); });
    QMetaObject::invokeMethod(
        this, [this] { waitForFinger(); }, Qt::QueuedConnection);
    return true;
}

// A helper in the middle of its comparisons does not hear that its input has ended.
void PluggedReader::close() {
    opened_ = false;
    events_ = {};
    helper_.disconnect(this);
    if (helper_.state() != QProcess::NotRunning) {
        helper_.closeWriteChannel();
        if (!helper_.waitForFinished(farewell)) {
            helper_.kill();
            helper_.waitForFinished(patience);
        }
    }
}

void PluggedReader::helperEnded() {
    if (std::exchange(opened_, false)) {
        events_.lost(QStringLiteral("The reader's program has ended."));
    }
}

void PluggedReader::waitForFinger() {
    if (!opened_) {
        return;
    }
    QList<QByteArray> templates = events_.enrolled();
    if (asked_ && templates == templates_) {
        helper_.write("again\n");
        return;
    }
    asked_ = true;
    templates_ = std::move(templates);
    QByteArray lines = "wait " + QByteArray::number(templates_.size()) + '\n';
    for (const QByteArray& text : std::as_const(templates_)) {
        lines += asLine(text) + '\n';
    }
    helper_.write(lines);
}

void PluggedReader::hear(const QByteArray& line) {
    const QList<QByteArray> words = line.split(' ');
    const QByteArray& what = words.constFirst();
    const ReaderEvents events = events_; // a handler may close this reader
    if (what == "touched") {
        events.touched();
    } else if (what == "unreadable") {
        unreadable_.clear();
        for (const QByteArray& row : words.mid(1)) {
            unreadable_.insert(templates_.value(row.toInt()));
        }
    } else if (what == "image" && words.size() == 4) {
        hearImage(words);
    } else if (what == "quality" && words.size() == 3) {
        lastQuality_ = words[2].toInt();
        events.featureInfo(words[1].toInt());
    } else if (what == "captured" && words.size() == 2) {
        hearCaptured(words[1].toInt());
    } else if (what == "lost") {
        opened_ = false;
        events.lost(QString::fromUtf8(line.mid(int(qstrlen("lost ")))));
    }
}

void PluggedReader::hearImage(const QList<QByteArray>& words) {
    const int width = words[1].toInt();
    const int height = words[2].toInt();
    const QByteArray bytes = QByteArray::fromBase64(words[3]);
    if (width > 0 && height > 0 && bytes.size() >= qsizetype(width) * height) {
        events_.imageReceived(QImage(reinterpret_cast<const uchar*>(bytes.constData()), width,
                                     height, width, QImage::Format_Grayscale8)
                                  .copy());
    }
}

// The next finger may be laid on only when this one has been dealt with.
void PluggedReader::hearCaptured(int row) {
    events_.captured(
        std::make_shared<ComparedPrint>(row < 0 ? QByteArray() : templates_.value(row)));
    waitForFinger();
}

Comparison PluggedReader::compare(const Print& print, const QByteArray& stored) {
    if (unreadable_.contains(stored) || !isTemplateText(stored)) {
        throw TemplateError("The template cannot be read by this reader.");
    }
    const auto* taken = dynamic_cast<const ComparedPrint*>(&print);
    return {.verified = taken != nullptr && taken->matched == stored};
}

} // namespace velcro::fingerprint
