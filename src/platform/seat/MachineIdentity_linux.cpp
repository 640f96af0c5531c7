#include "platform/seat/MachineIdentity.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netdb.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <tuple>
#include <unistd.h>

namespace velcro::seat {

namespace {

QByteArray lineOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readLine(256).trimmed() : QByteArray();
}

QString addressText(const sockaddr* address) {
    std::array<char, INET_ADDRSTRLEN> text{};
    const auto* inet = reinterpret_cast<const sockaddr_in*>(address);
    return inet_ntop(AF_INET, &inet->sin_addr, text.data(), text.size())
               ? QString::fromLatin1(text.data())
               : QString();
}

QStringList addressesOfName(const QString& name) {
    addrinfo hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    if (getaddrinfo(name.toUtf8().constData(), nullptr, &hints, &list) != 0) {
        return {};
    }
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> owner(list, &freeaddrinfo);
    QStringList result;
    for (const addrinfo* it = list; it; it = it->ai_next) {
        result.append(addressText(it->ai_addr));
    }
    return result;
}

QStringList addressesOfAdapters() {
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return {};
    }
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> owner(list, &freeifaddrs);
    QStringList result;
    for (const ifaddrs* it = list; it; it = it->ifa_next) {
        if (it->ifa_addr && it->ifa_addr->sa_family == AF_INET && !(it->ifa_flags & IFF_LOOPBACK)) {
            result.append(addressText(it->ifa_addr));
        }
    }
    return result;
}

// The identifier of the file system that a device holds, where the system lists it.
QByteArray fileSystemIdentifier(dev_t device) {
    const QDir folder(QStringLiteral("/dev/disk/by-uuid"));
    for (const QFileInfo& entry : folder.entryInfoList(QDir::Files | QDir::System)) {
        struct stat found
        {
        };
        if (stat(QFile::encodeName(entry.filePath()).constData(), &found) == 0 &&
            found.st_rdev == device) {
            return entry.fileName().toLatin1();
        }
    }
    return {};
}

} // namespace

QStringList adapterAddressesIn(const QString& folder) {
    using Adapter = std::tuple<bool, int, QString>; // made-up, number, address
    std::vector<Adapter> adapters;
    for (const QString& name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString path = folder + QLatin1Char('/') + name;
        const QByteArray address = QByteArray::fromHex(lineOf(path + "/address").replace(":", ""));
        if (address.size() == 6 && address != QByteArray(6, '\0')) {
            adapters.emplace_back(!QFileInfo::exists(path + "/device"),
                                  lineOf(path + "/ifindex").toInt(), adapterText(address));
        }
    }
    std::sort(adapters.begin(), adapters.end());
    QStringList result;
    for (const Adapter& adapter : adapters) {
        result.append(std::get<QString>(adapter));
    }
    return result;
}

QStringList adapterAddresses() {
    return adapterAddressesIn(QStringLiteral("/sys/class/net"));
}

std::optional<std::uint32_t> volumeSerial() {
    struct stat root
    {
    };
    if (stat("/", &root) != 0) {
        return std::nullopt;
    }
    // The first eight digits of a file system's identifier are its serial on FAT, and as good as
    // one on any other.
    QByteArray identifier = fileSystemIdentifier(root.st_dev).replace("-", "").left(8);
    bool ok = false;
    const std::uint32_t serial = identifier.toUInt(&ok, 16);
    if (ok) {
        return serial;
    }
    struct statfs volume
    {
    };
    if (statfs("/", &volume) != 0) {
        return std::nullopt;
    }
    static_assert(sizeof volume.f_fsid == 2 * sizeof(std::uint32_t));
    std::array<std::uint32_t, 2> words{};
    std::memcpy(words.data(), &volume.f_fsid, sizeof volume.f_fsid);
    return words[0] ^ words[1];
}

QString computerName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? QString::fromLocal8Bit(name.data())
                                                          : QString();
}

QString userName() {
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found) {
        return QString::fromLocal8Bit(found->pw_name);
    }
    return qEnvironmentVariable("USER");
}

QStringList hostAddresses() {
    const QStringList ofName = addressesOfName(computerName());
    const bool leadsOut = std::any_of(ofName.begin(), ofName.end(), [](const QString& address) {
        return !address.startsWith(QLatin1String("127."));
    });
    const QStringList ofAdapters = leadsOut ? QStringList() : addressesOfAdapters();
    return ofAdapters.isEmpty() ? ofName : ofAdapters;
}

} // namespace velcro::seat
