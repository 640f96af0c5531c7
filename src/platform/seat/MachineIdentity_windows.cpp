#include "platform/seat/MachineIdentity.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include "platform/seat/WindowsApi.h"

#include <array>
#include <vector>

#include <iphlpapi.h>
#include <nb30.h>

namespace velcro::seat {

namespace {

struct AdapterStatus
{
    ADAPTER_STATUS status;
    std::array<NAME_BUFFER, 30> names;
};

QString adapterAddress(UCHAR number) {
    NCB command{};
    command.ncb_command = NCBRESET;
    command.ncb_lana_num = number;
    if (Netbios(&command) != NRC_GOODRET) {
        return {};
    }
    AdapterStatus adapter{};
    command = NCB{};
    command.ncb_command = NCBASTAT;
    command.ncb_lana_num = number;
    memset(command.ncb_callname, ' ', sizeof command.ncb_callname);
    command.ncb_callname[0] = '*';
    command.ncb_buffer = reinterpret_cast<UCHAR*>(&adapter);
    command.ncb_length = sizeof adapter;
    if (Netbios(&command) != NRC_GOODRET) {
        return {};
    }
    return adapterText(QByteArray(reinterpret_cast<char*>(adapter.status.adapter_address), 6));
}

struct Sockets
{
    Sockets() { started = WSAStartup(MAKEWORD(2, 2), &data) == 0; }
    ~Sockets() {
        if (started) {
            WSACleanup();
        }
    }
    WSADATA data{};
    bool started = false;
};

// Seats whose NetBIOS is turned off have adapters all the same.
QStringList adaptersOfTheSystem() {
    std::vector<char> room(64 * 1024);
    auto* list = reinterpret_cast<IP_ADAPTER_ADDRESSES*>(room.data());
    ULONG size = ULONG(room.size());
    constexpr ULONG flags =
        GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;
    QStringList result;
    if (GetAdaptersAddresses(AF_UNSPEC, flags, nullptr, list, &size) == NO_ERROR) {
        for (const auto* it = list; it; it = it->Next) {
            const QByteArray address(reinterpret_cast<const char*>(it->PhysicalAddress),
                                     int(it->PhysicalAddressLength));
            if (it->IfType != IF_TYPE_SOFTWARE_LOOPBACK && !adapterText(address).isEmpty()) {
                result.append(adapterText(address));
            }
        }
    }
    return result;
}

} // namespace

QStringList adapterAddresses() {
    LANA_ENUM adapters{};
    NCB command{};
    command.ncb_command = NCBENUM;
    command.ncb_buffer = reinterpret_cast<UCHAR*>(&adapters);
    command.ncb_length = sizeof adapters;
    QStringList result;
    if (Netbios(&command) == NRC_GOODRET) {
        for (int i = 0; i < adapters.length; ++i) {
            const QString address = adapterAddress(adapters.lana[i]);
            if (!address.isEmpty()) {
                result.append(address);
            }
        }
    }
    return result.isEmpty() ? adaptersOfTheSystem() : result;
}

std::optional<std::uint32_t> volumeSerial() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemDirectoryW(folder.data(), UINT(folder.size()));
    const std::array<wchar_t, 4> root{folder[0], L':', L'\\', L'\0'};
    DWORD serial = 0;
    if (!GetVolumeInformationW(root.data(), nullptr, 0, &serial, nullptr, nullptr, nullptr, 0)) {
        return std::nullopt;
    }
    return serial;
}

QString computerName() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    DWORD size = DWORD(name.size());
    return GetComputerNameW(name.data(), &size) ? QString::fromWCharArray(name.data()) : QString();
}

QString userName() {
    std::array<wchar_t, 257> name{};
    DWORD size = DWORD(name.size());
    return GetUserNameW(name.data(), &size) ? QString::fromWCharArray(name.data()) : QString();
}

QStringList hostAddresses() {
    const Sockets sockets;
    ADDRINFOW hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    ADDRINFOW* list = nullptr;
    const std::wstring name = computerName().toStdWString();
    if (!sockets.started || GetAddrInfoW(name.c_str(), nullptr, &hints, &list) != 0) {
        return {};
    }
    QStringList result;
    for (const ADDRINFOW* it = list; it; it = it->ai_next) {
        std::array<wchar_t, INET_ADDRSTRLEN> text{};
        const auto* address = reinterpret_cast<const sockaddr_in*>(it->ai_addr);
        InetNtopW(AF_INET, &address->sin_addr, text.data(), text.size());
        result.append(QString::fromWCharArray(text.data()));
    }
    FreeAddrInfoW(list);
    return result;
}

} // namespace velcro::seat
