// A finger that nobody has, compared with thousands of templates on libfprint's virtual reader: from
// the picture to the answer. The reference asks the library itself, in this process, for the same.
//   FingerBench [templates] [rounds]
#include "Stopwatch.h"

#include "platform/fingerprint/PluggedReader.h"
#include "platform/fingerprint/helper/Prints.h"
#include "support/FingerPicture.h"
#include "support/VirtualFingerReader.h"

#include <QCoreApplication>

#include <cstdlib>
#include <stdexcept>
#include <thread>

using bench::Rounds;
using namespace velcro::fingerprint;
using velcro::test::fingerPicture;
using velcro::test::VirtualFingerReader;

namespace {

constexpr unsigned enrolledFingers = 12; // whose templates come again and again
constexpr unsigned stranger = 100;
constexpr auto untilAsked = std::chrono::milliseconds(300);

void waitUntil(const std::function<bool()>& isSo) {
    while (!isSo()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void pause() {
    const auto end = bench::Clock::now() + untilAsked;
    while (bench::Clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

Rounds ours(VirtualFingerReader& device, const QList<QByteArray>& templates, int rounds) {
    PluggedReader reader;
    PluggedReader::helperProgram = QStringLiteral(VELCRO_FINGER);
    int captures = 0;
    bool matched = false;
    const bool opened = reader.open({.touched = [] {},
                                     .captured =
                                         [&](const std::shared_ptr<Print>& print) {
                                             ++captures;
                                             for (const QByteArray& text : templates) {
                                                 matched |= reader.compare(*print, text).verified;
                                             }
                                         },
                                     .featureInfo = [](int) {},
                                     .imageReceived = [](const QImage&) {},
                                     .lost = [](const QString&) {},
                                     .enrolled = [&] { return templates; }});
    if (!opened) {
        throw std::runtime_error("the virtual reader does not open");
    }
    Rounds result;
    for (int round = 0; round < rounds; ++round) {
        pause();
        const QImage picture = fingerPicture(stranger, unsigned(round));
        result.run([&] {
            device.lay(picture);
            waitUntil([&] { return captures > round; });
        });
    }
    if (matched) {
        throw std::runtime_error("a stranger's finger was let in");
    }
    return result;
}

Rounds library(VirtualFingerReader& device, const QList<QByteArray>& templates, int rounds) {
    const Owned<FpContext> context(fp_context_new());
    QByteArray failure;
    FpDevice* reader = firstReader(*context, failure);
    if (reader == nullptr || !fp_device_open_sync(reader, nullptr, nullptr)) {
        throw std::runtime_error("the virtual reader does not open: " + failure.toStdString());
    }
    const Owned<GPtrArray> gallery(g_ptr_array_new_with_free_func(g_object_unref));
    for (const QByteArray& text : templates) {
        g_ptr_array_add(gallery.get(), printOf(text, *reader).release());
    }
    Rounds result;
    for (int round = 0; round < rounds; ++round) {
        const QImage picture = fingerPicture(stranger, unsigned(round));
        bench::Clock::time_point laid;
        std::thread finger([&] {
            std::this_thread::sleep_for(untilAsked);
            laid = bench::Clock::now();
            device.lay(picture);
        });
        const auto processor = std::clock();
        FpPrint* match = nullptr;
        fp_device_identify_sync(reader, gallery.get(), nullptr, nullptr, nullptr, &match, nullptr,
                                nullptr);
        const auto answered = bench::Clock::now();
        finger.join();
        result.add(answered - laid, std::clock() - processor);
    }
    fp_device_close_sync(reader, nullptr, nullptr);
    return result;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 5000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 3;
    VirtualFingerReader device;
    QList<QByteArray> templates;
    for (unsigned finger = 0; finger < enrolledFingers; ++finger) {
        templates.append(device.enrol(finger));
    }
    while (templates.size() < count) {
        templates.append(templates.at(templates.size() - qsizetype(enrolledFingers)));
    }
    const Rounds reference = library(device, templates, rounds);
    const Rounds mine = ours(device, templates, rounds);
    bench::printHead();
    bench::print("a finger against all templates", mine, reference, 1.1);
    std::printf("%d templates: %.1f microseconds each, the library %.1f\n", count,
                1000 * mine.best() / count, 1000 * reference.best() / count);
    return 0;
}
