// What the process holds in memory.
#pragma once

#include <QFile>
#include <QString>

#include <cstddef>

#include <malloc.h>

namespace bench {

/// What the process has taken from the heap by now.
inline std::size_t heapBytes() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What the process holds in memory of its own, without the files that it has mapped.
inline double residentMB() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QString text = QString::fromLatin1(status.readAll());
    return text.section(QStringLiteral("RssAnon:"), 1)
               .section(QStringLiteral("kB"), 0, 0)
               .toDouble() /
           1024;
}

} // namespace bench
