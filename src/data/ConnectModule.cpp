#include "data/ConnectModule.h"

#include "data/Errors.h"

bool connectModule(Connection& connection, const ConnectTarget& target) {
    try {
        connection.Disconnect();
        connection.setConnectString(sfg_BuildUNIConnectionStr(target.host, target.database,
                                                              target.user, target.password,
                                                              target.connector, target.azure));
        connection.Connect();
        return connection.Connected();
    } catch (const std::exception& error) {
        throw VelmaraError(QString::fromLatin1(target.failure)
                               .arg(QLatin1String(target.unit), target.database, errorText(error)));
    }
}

QStringList standardSpecificOptions() {
    return {
        QStringLiteral("PersistSecurityInfo=False"),
        QStringLiteral("ForceCreateDatabase=True"),
        QStringLiteral("Provider=prAuto"),
        QStringLiteral("ConnectionTimeout=15"),
        QStringLiteral("IPVersion=ivIPv4"),
        QStringLiteral("Authentication=auServer"),
        QStringLiteral("ApplicationIntent=aiReadWrite"),
        QStringLiteral("AutoTranslate=True"),
        QStringLiteral("MultipleConnections=True"),
        QStringLiteral("PacketSize=4096"),
        QStringLiteral("MultipleActiveResultSets=False"),
        QStringLiteral("UseHttp=False"),
        QStringLiteral("HttpTrustServerCertificate=False"),
        QStringLiteral("MultiSubnetFailover=False"),
        QStringLiteral("TrustServerCertificate=False"),
        QStringLiteral("Encrypt=False"),
    };
}
