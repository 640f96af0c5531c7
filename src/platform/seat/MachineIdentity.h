// Who and what this seat is, from the system itself.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace velcro::seat {

/// Adapter addresses as "00-11-22-33-44-55", the first adapter first; without loop-backs.
QStringList adapterAddresses();
/// Serial of the volume that the system stands on.
std::optional<std::uint32_t> volumeSerial();
QString computerName();
QString userName();
/// IPv4 addresses of the computer's own name, in the order in which the resolver gives them. Where
/// the name leads back to the computer alone (127.x), those of its adapters.
QStringList hostAddresses();

/// Six bytes in hexadecimal with "-" between; blank for anything else.
QString adapterText(const QByteArray& address);

#ifndef Q_OS_WIN
/// The addresses below a folder like /sys/class/net: hardware adapters before made-up ones, each
/// kind in the kernel's order.
QStringList adapterAddressesIn(const QString& folder);
#endif

} // namespace velcro::seat
