#include "messaging/SysComms.h"

#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Settings.h"
#include "data/Validators.h"
#include "messaging/Breathing.h"
#include "messaging/SysJSONParser.h"
#include "messaging/SysMyMobileAPI.h"
#include "platform/http/Client.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool notSent(const QString& reason) {
    sysc_ReturnMsg = reason;
    return false;
}

/// What both channels begin with.
bool hasNumberAndSender() {
    if (!sysc_ValidatePhoneNumber(sysc_CellNo)) {
        return notSent(u"CANNOT SEND SMS\rInvalid Cellphone Number Format"_s);
    }
    const QString sender = sfvel_GetParam("SYS", 99);
    if (sysc_Name.trimmed().isEmpty() && !sender.trimmed().isEmpty()) {
        sysc_Name = sender;
    }
    return true;
}

// Nothing is encoded: the gateway takes the text up to the next "&".
QString gatewayAddress() {
    return sfvel_GetParam("SYS", 104) + "action=message_send&username="_L1 +
           sfvel_GetParam("SYS", 105) + "&password="_L1 + sfvel_GetParam("SYS", 106) + "&to="_L1 +
           sysc_CellNo + "&text="_L1 + sysc_BodyHeader + "&from="_L1 + sysc_Name;
}

/// The gateway's answer. Throws HttpError; a status that is none of success is one.
QString askGateway() {
    using velcro::http::HttpError;
    const velcro::http::Request request{.method = "POST",
                                        .address = gatewayAddress().toStdString(),
                                        .headers = {{"User-Agent", "velCRO"}}};
    const auto answer = velcro::http::Client().send(request);
    if (answer.status < 200 || answer.status > 299) {
        throw HttpError(HttpError::Kind::Protocol,
                        "HTTP/1.1 " + std::to_string(answer.status) + ' ' + answer.reason);
    }
    return QString::fromStdString(answer.body);
}

bool gatewayAccepted(const QString& answer) {
    const QString status = sj_Parse_Tag(answer, u"status"_s);
    const QString message = sj_Parse_Tag(answer, u"message"_s);
    const QString details = sj_Parse_Tag(answer, u"details"_s);
    return status == "1"_L1 || notSent("SMS Not Sent\r\rResponse Status = "_L1 + status +
                                       "\rMessage = "_L1 + message + "\rDetail = "_L1 + details);
}

} // namespace

void sysc_InitCommsFelds() {
    for (QString* field : {&sysc_TxTp, &sysc_Account, &sysc_AccountDB, &sysc_Name, &sysc_Email,
                           &sysc_CellNo, &sysc_Subject, &sysc_BodyHeader, &sysc_BodyDetails,
                           &sysc_BodyTrailer, &sysc_Attachment, &sysc_From, &sysc_ReturnMsg}) {
        field->clear();
    }
}

bool sysc_ValidatePhoneNumber(const QString& xPhoneNumber) {
    return matchesPattern(QStringLiteral(u"^\\(?([0-9]{3})\\)?[-.●]?([0-9]{3})[-.●]?([0-9]{4})$"),
                          xPhoneNumber);
}

bool sysc_SendSMS() {
    if (!hasNumberAndSender()) {
        return false;
    }
    letScreensPaint();
    try {
        const QString answer = askGateway();
        letScreensPaint();
        return gatewayAccepted(answer);
    } catch (const std::runtime_error& error) { // also an answer that is none of the gateway's
        return notSent("Error Sending Text Message\r"_L1 + errorText(error));
    }
}

bool sysc_SendMySMS() {
    if (!hasNumberAndSender()) {
        return false;
    }
    const QString wMsgID = "single-id-"_L1 + sfg_GenerateDTReference();
    TSysMyMobileAPI client;
    client.setBaseURL(sfvel_GetParam("SYS", 239));
    client.Username = sfvel_GetParam("SYS", 240);
    client.Password = sfvel_GetParam("SYS", 241);
    if (!client.Authenticate()) {
        return notSent("Authentication Failed:\r\n"_L1 + client.LastErrorMessage());
    }
    return client.SendSingleMessage(sysc_CellNo, sysc_BodyHeader, wMsgID) ||
           notSent("SMS Not Sent\r\n"_L1 + client.LastErrorMessage());
}
