// One line on the standard output for whoever started the program: what it has reached, how much
// memory it holds by then and how much processor time it took.
#pragma once

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <ctime>

namespace bench {

/// Resident memory in MB, as the system counts it.
inline double residentMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
            }
        }
    }
    return 0;
}

/// Call it with the screen shown: paints what waits to be painted first.
inline void stamp(const char* reached) {
    QApplication::processEvents();
    std::printf("%s %.1f %.3f\n", reached, residentMegabytes(),
                1000.0 * double(std::clock()) / CLOCKS_PER_SEC);
    std::fflush(stdout);
}

} // namespace bench
