// A seat's start: from the command to the log-in screen against an empty window of the same size,
// from OK to the live menu, and the memory held at both.
#include "Stopwatch.h"

#include "support/TempFolder.h"

#include <QCoreApplication>
#include <QProcess>

#include <map>
#include <stdexcept>

using bench::Rounds;

namespace {

constexpr int rounds = 15;

/// A started program, its stamps and when they came.
class Started
{
public:
    Started(const QString& program, const QStringList& arguments)
        : start_(bench::Clock::now()) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(program, arguments, QIODevice::ReadOnly);
        while (process_.state() != QProcess::NotRunning) {
            if (process_.waitForReadyRead(60'000)) {
                takeStamps();
            } else {
                process_.waitForFinished(1'000);
            }
        }
        takeStamps();
        if (process_.exitStatus() != QProcess::NormalExit || process_.exitCode() != 0) {
            throw std::runtime_error(program.toStdString() + " failed");
        }
    }

    /// Since the start.
    bench::Clock::duration reached(const QString& stamp) const { return find(stamp).when - start_; }
    double megabytes(const QString& stamp) const { return find(stamp).values[0].toDouble(); }
    std::clock_t processor(const QString& stamp) const {
        return std::clock_t(find(stamp).values[1].toDouble() * CLOCKS_PER_SEC / 1000);
    }
    QStringList values(const QString& stamp) const { return find(stamp).values; }

private:
    struct Stamp
    {
        bench::Clock::time_point when;
        QStringList values;
    };

    void takeStamps() {
        const auto now = bench::Clock::now();
        while (process_.canReadLine()) {
            auto words = QString::fromUtf8(process_.readLine()).simplified().split(' ');
            const QString name = words.takeFirst();
            stamps_[name] = {now, words};
        }
    }
    const Stamp& find(const QString& name) const {
        const auto found = stamps_.find(name);
        if (found == stamps_.end()) {
            throw std::runtime_error("the program never came to \"" + name.toStdString() + "\"");
        }
        return found->second;
    }

    bench::Clock::time_point start_;
    QProcess process_;
    std::map<QString, Stamp> stamps_;
};

void makeSeat(const QString& folder) {
    const int failed =
        QProcess::execute(QStringLiteral(VELCRO_SAMPLE),
                          {"--no-start", "--seat", folder, "--data", VELCRO_SAMPLE_DATA,
                           "--structure", VELCRO_SAMPLE_STRUCTURE});
    if (failed != 0) {
        throw std::runtime_error("the sample seat could not be made");
    }
    qputenv("XDG_CONFIG_HOME", (folder + "/config").toLocal8Bit());
    qputenv("XDG_DATA_HOME", (folder + "/data").toLocal8Bit());
}

void measure() {
    const Started first(QStringLiteral(START_PROBE), {}); // makes the rest of the till's database
    const QStringList size = first.values("size");
    Rounds logIn, empty, live;
    double atLogIn = 0, atMenu = 0;
    for (int i = 0; i < rounds; ++i) {
        const Started program(QStringLiteral(START_PROBE), {});
        const Started window(QStringLiteral(EMPTY_WINDOW), size);
        logIn.add(program.reached("log-in"), program.processor("log-in"));
        live.add(program.reached("live") - program.reached("typed"),
                 program.processor("live") - program.processor("typed"));
        empty.add(window.reached("painted"), window.processor("painted"));
        atLogIn = std::max(atLogIn, program.megabytes("log-in"));
        atMenu = std::max(atMenu, program.megabytes("live"));
    }
    bench::printHead();
    bench::print("start to log-in screen, against an empty window", logIn, empty, 2);
    std::printf("%-44s %9.3f ms against %.3f ms, ratio %.2f\n", "  of it on the processor",
                logIn.processor(), empty.processor(), logIn.processor() / empty.processor());
    bench::print("OK to the live menu (aim 300)", live);
    std::printf("resident: %.1f MB at the log-in screen, %.1f MB at the menu (aim 150)\n", atLogIn,
                atMenu);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const velcro::test::TempFolder folder;
    makeSeat(QString::fromStdString(folder.file("seat")));
    measure();
    return 0;
}
