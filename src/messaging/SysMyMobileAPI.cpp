#include "messaging/SysMyMobileAPI.h"

#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "messaging/Breathing.h"
#include "messaging/ServiceAnswers.h"
#include "platform/seat/Clock.h"

#include <nlohmann/json.hpp>

using namespace Qt::Literals::StringLiterals;
using velcro::http::Answer;
using velcro::http::HttpError;
using velcro::http::Request;
using Json = nlohmann::ordered_json; // members go out in the order in which they are put in

namespace {

QString textOf(const std::string& bytes) {
    return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
}

QString httpError(const Answer& answer) {
    return u"HTTP Error: %1 - %2. Server Response: %3"_s.arg(answer.status)
        .arg(textOf(answer.reason), textOf(answer.body));
}

Json messageObject(const QString& to, const QString& body, const QString& id) {
    Json message{{"destination", to.toStdString()}, {"content", body.toStdString()}};
    if (!id.isEmpty()) {
        message["messageId"] = id.toStdString();
    }
    return message;
}

std::string messagesBody(const std::vector<Json>& messages) {
    Json body;
    body["messages"] = messages;
    return body.dump();
}

/// What happened instead of an answer, and the class it is logged under.
struct Fault
{
    QString reason;
    QLatin1StringView loggedAs;
};

Fault faultOf(const HttpError& error) {
    switch (error.kind()) {
    case HttpError::Kind::Protocol:
        return {u"HTTP Protocol Error: %1. Server Response: %2"_s.arg(error.answer().status)
                    .arg(textOf(error.answer().body)),
                "EIdHTTPProtocolException - "_L1};
    case HttpError::Kind::Network:
        return {"Indy Exception: "_L1 + errorText(error), "Indy library error - "_L1};
    default:
        return {"Request failed. General Exception: "_L1 + errorText(error),
                "General exception - "_L1};
    }
}

} // namespace

TSysMyMobileAPI::TSysMyMobileAPI()
    : zBaseURL(QStringLiteral(VELCRO_MESSAGE_SERVICE)) {}

void TSysMyMobileAPI::setBaseURL(const QString& xBaseURL) {
    zBaseURL = xBaseURL.endsWith(u'/') ? xBaseURL : xBaseURL + u'/';
}

void TSysMyMobileAPI::WriteLog(const QString& xMessage, TLogMessageType xType,
                               TLogDirection xDirection) {
    static constexpr QLatin1StringView typeMarks[] = {" "_L1, "? "_L1, "! "_L1};
    static constexpr QLatin1StringView directionMarks[] = {" "_L1, "<- "_L1, "-> "_L1};
    if (LogMessages != nullptr) {
        const QString day = dateText(velcro::seat::now().date()).right(5);
        LogMessages->append(QString(typeMarks[xType]) + directionMarks[xDirection] + u'[' + day +
                            u'-' + sfg_Time() + "]  "_L1 + xMessage);
    }
    letScreensPaint();
}

bool TSysMyMobileAPI::failed(const QString& reason, const QString& logPrefix, TLogMessageType type,
                             TLogDirection direction) {
    zLastErrorMessage = reason;
    WriteLog(logPrefix + reason, type, direction);
    return false;
}

bool TSysMyMobileAPI::failedAnswer(const QString& reason) {
    return failed(reason, {}, lmtError, ldIn);
}

bool TSysMyMobileAPI::IsSSLRequired(const QString& xURL) {
    return xURL.left(8).toLower() == "https://"_L1;
}

Request TSysMyMobileAPI::ConfigureRequest(bool AIsLoginCall) {
    Request request;
    if (IsSSLRequired(zBaseURL)) {
        request.peer = velcro::http::Peer::Anybody;
    }
    if (AIsLoginCall) {
        request.basic = {Username.toStdString(), Password.toStdString()};
    } else if (zIsAuthenticated && !zAPIKey.isEmpty()) {
        request.basic = {zAPIKey.toStdString(), {}};
    } else {
        failed(u"Not authenticated. Please call Authenticate first."_s, {}, lmtError, ldNone);
        throw VelmaraError(zLastErrorMessage);
    }
    request.headers = {{"User-Agent", "Corvelle/TSysMyMobileAPI"},
                       {"Accept", "application/json"},
                       {"Content-Type", "application/json; charset=utf-8"},
                       {"Connection", "keep-alive"}};
    request.readTimeOut = std::chrono::milliseconds(ReponseTimeOut);
    return request;
}

bool TSysMyMobileAPI::answered(const Request& request, const QString& routine, Answer& answer) {
    try {
        answer = zHTTPClient.send(request);
        zLastResponse = answer.body;
        return true;
    } catch (const HttpError& error) {
        const Fault fault = faultOf(error);
        return failed(fault.reason, routine + fault.loggedAs, lmtError, ldIn);
    }
}

bool TSysMyMobileAPI::Authenticate() {
    zIsAuthenticated = false;
    zLastErrorMessage.clear();
    zAPIKey.clear();
    Request request = ConfigureRequest(true);
    request.method = "POST";
    request.address = (zBaseURL + "Authentication"_L1).toStdString();
    request.body =
        Json{{"username", Username.toStdString()}, {"password", Password.toStdString()}}.dump();
    WriteLog("Payload: "_L1 + textOf(request.body), lmtInformation, ldOut);
    Answer answer;
    if (!answered(request, u"Authenticate: "_s, answer)) {
        return false;
    }
    return answer.status == 200 ? takeKey(answer.body) : failedAnswer(httpError(answer));
}

bool TSysMyMobileAPI::takeKey(const std::string& answer) {
    QString token;
    if (!isObject(answer)) {
        return failedAnswer(u"Failed to parse JSON response from server."_s);
    }
    if (!TryGetValue(answer, u"token"_s, QString(), token)) {
        return failedAnswer(u"Failed to parse \"token\" from JSON response."_s);
    }
    if (token.isEmpty()) {
        return failedAnswer(u"Authentication successful, but no API key was returned."_s);
    }
    zAPIKey = token;
    zIsAuthenticated = true;
    return true;
}

bool TSysMyMobileAPI::DoRequest(const QString& xMethod, const QString& xEndpoint,
                                const std::string& xRequest, std::string& xResponse) {
    xResponse.clear();
    Request request;
    try {
        request = ConfigureRequest(false);
    } catch (const VelmaraError& error) {
        return failed("Failed during request setup: "_L1 + errorText(error),
                      u"DoRequest: Critical setup error - "_s, lmtError, ldNone);
    }
    const QString wURL = zBaseURL + xEndpoint;
    WriteLog("DoRequest: "_L1 + xMethod + " to "_L1 + wURL, lmtInformation, ldOut);
    if (!xRequest.empty()) {
        WriteLog("Payload: "_L1 + textOf(xRequest), lmtInformation, ldOut);
    }
    if (xMethod != "GET"_L1 && xMethod != "POST"_L1) {
        return failed("Request failed. General Exception: Unsupported HTTP method: "_L1 + xMethod,
                      u"DoRequest: General exception - "_s, lmtError, ldIn);
    }
    request.method = xMethod.toStdString();
    request.address = wURL.toStdString();
    request.body = xRequest;
    Answer answer;
    if (!answered(request, u"DoRequest: "_s, answer)) {
        return false;
    }
    xResponse = answer.body;
    if (answer.status != 200 && answer.status != 202) {
        return failed(httpError(answer), u"DoRequest: Error in response - "_s, lmtError, ldIn);
    }
    WriteLog(u"DoRequest: Success response (%1)"_s.arg(answer.status), lmtInformation, ldIn);
    WriteLog("Response: "_L1 + textOf(xResponse), lmtInformation, ldIn);
    return true;
}

bool TSysMyMobileAPI::CheckAPIKeyValid() {
    zLastAuthCheck = false;
    std::string answer;
    if (!DoRequest(u"GET"_s, u"Authentication"_s, {}, answer)) {
        return false;
    }
    if (!isObject(answer)) {
        return failedAnswer(u"Failed to parse JSON response for CheckAPIKeyValid."_s);
    }
    TryGetValue(answer, u"authenticated"_s, false, zLastAuthCheck);
    if (!zLastAuthCheck) {
        zLastErrorMessage = u"Authentication check returned false."_s;
    }
    return zLastAuthCheck;
}

bool TSysMyMobileAPI::GetBalance() {
    zLastBalance = 0;
    std::string answer;
    if (!DoRequest(u"GET"_s, u"v3/balance"_s, {}, answer)) {
        return false;
    }
    if (!isObject(answer)) {
        return failedAnswer(u"Failed to parse JSON response for GetBalance."_s);
    }
    return readBalance(answer, zLastBalance) ||
           failedAnswer(u"Balance field not found in response."_s);
}

bool TSysMyMobileAPI::SendSingleMessage(const QString& xTo, const QString& xBody,
                                        const QString& xMessageId) {
    std::string answer;
    return DoRequest(u"POST"_s, u"v3/bulkmessages"_s,
                     messagesBody({messageObject(xTo, xBody, xMessageId)}), answer);
}

bool TSysMyMobileAPI::SendBulkMessages() {
    if (BulkMessages.empty()) {
        return failed(u"No messages in BulkMessages list to send."_s, {}, lmtWarning, ldNone);
    }
    std::vector<Json> messages;
    for (const auto& message : BulkMessages) {
        messages.push_back(messageObject(message->ToMessage, message->Body, message->MessageId));
    }
    std::string answer;
    return DoRequest(u"POST"_s, u"v3/bulkmessages"_s, messagesBody(messages), answer);
}
