// Client of the text message service MyMobileAPI: logs in for a key, sends messages singly or in
// bulk, reads the balance, and logs every step.
#pragma once

#include "platform/http/Client.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

enum TLogMessageType { lmtInformation, lmtWarning, lmtError };
enum TLogDirection { ldNone, ldIn, ldOut };

/// A message that waits to be sent.
struct TMyMobileMessage
{
    QString ToMessage; // the destination number
    QString Body;
    QString MessageId; // may be blank
};

/// Every operation tells by its result whether it worked, and leaves the reason in LastErrorMessage.
/// None throws. An object serves once and is thrown away; the service's certificate is not looked at.
class TSysMyMobileAPI
{
public:
    /// Begins with the vendor's own address, which the build sets (VELCRO_MESSAGE_SERVICE).
    TSysMyMobileAPI();

    QString BaseURL() const { return zBaseURL; }
    /// Always ends in "/": one is added where it lacks, to a blank one too.
    void setBaseURL(const QString& xBaseURL);

    int ReponseTimeOut = 30000;         // milliseconds
    QString Username, Password;         // of the log-in
    QStringList* LogMessages = nullptr; // takes each log line; passwords are logged too
    std::vector<std::unique_ptr<TMyMobileMessage>> BulkMessages;

    bool IsAuthenticated() const { return zIsAuthenticated; }
    QString LastResponse() const { return QString::fromStdString(zLastResponse); }
    QString LastErrorMessage() const { return zLastErrorMessage; }
    double LastBalance() const { return zLastBalance; }
    bool LastAuthCheck() const { return zLastAuthCheck; }

    /// Logs in and keeps the key that all others want. Only status 200 will do.
    bool Authenticate();
    /// Whether the service still takes the key.
    bool CheckAPIKeyValid();
    bool GetBalance();
    bool SendSingleMessage(const QString& xTo, const QString& xBody, const QString& xMessageId);
    /// All of BulkMessages in one request; they stay there.
    bool SendBulkMessages();

    void WriteLog(const QString& xMessage, TLogMessageType xType, TLogDirection xDirection);
    /// Sends to an endpoint of the service with the key; 200 and 202 are good. Only "GET" and "POST".
    bool DoRequest(const QString& xMethod, const QString& xEndpoint, const std::string& xRequest,
                   std::string& xResponse);

private:
    velcro::http::Request ConfigureRequest(bool AIsLoginCall);
    static bool IsSSLRequired(const QString& xURL);
    bool answered(const velcro::http::Request& request, const QString& routine,
                  velcro::http::Answer& answer);
    bool takeKey(const std::string& answer);
    bool failed(const QString& reason, const QString& logPrefix, TLogMessageType type,
                TLogDirection direction);
    bool failedAnswer(const QString& reason);

    velcro::http::Client zHTTPClient;
    QString zBaseURL;
    std::string zLastResponse;
    QString zLastErrorMessage, zAPIKey;
    bool zIsAuthenticated = false;
    double zLastBalance = 0;
    bool zLastAuthCheck = false;
};
