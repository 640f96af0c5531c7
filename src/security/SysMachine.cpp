#include "security/SysMachine.h"

#include "platform/seat/MachineIdentity.h"
#include "platform/seat/ProgramVersion.h"

#include <QStringList>
#include <QVersionNumber>

using namespace velcro;

QString sm_GetMACAddress() {
    return seat::adapterAddresses().isEmpty() ? QStringLiteral("MACAddress Not Found")
                                              : sm_GetAdapterInfo(0);
}

QString sm_GetAdapterInfo(int Lana) {
    return seat::adapterAddresses().value(Lana, QStringLiteral("Mac NOT Found"));
}

QString sm_GetSerialID() {
    const auto serial = seat::volumeSerial();
    return serial ? QStringLiteral("%1").arg(*serial, 8, 16, QLatin1Char('0')).toUpper()
                  : QString();
}

QString sm_GetPCName() {
    return pcNameText(seat::computerName());
}

QString pcNameText(const QString& computer) {
    return computer.left(20);
}

QString sm_Get_Login_UserName() {
    return seat::userName();
}

QString sm_GetIP() {
    return addressThatCounts(seat::hostAddresses());
}

QString addressThatCounts(const QStringList& addresses) {
    return addresses.isEmpty() ? QString() : addresses.last();
}

QString sm_Version() {
    const QString own = seat::programFileVersion();
    return versionText(own.isEmpty() ? QStringLiteral(VELCRO_VERSION) : own);
}

QString versionText(const QString& dotted) {
    const auto version = QVersionNumber::fromString(dotted);
    if (version.isNull()) {
        return QStringLiteral("0.0.0");
    }
    return QStringLiteral("%1.%2.%3")
        .arg(version.majorVersion())
        .arg(version.minorVersion(), 2, 10, QLatin1Char('0'))
        .arg(version.microVersion(), 2, 10, QLatin1Char('0'));
}
