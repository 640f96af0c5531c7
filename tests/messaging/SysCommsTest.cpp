#include "messaging/SysComms.h"

#include "data/Session.h"
#include "messaging/Breathing.h"
#include "platform/seat/Clock.h"
#include "security/SysLoadParams.h"
#include "support/HttpServer.h"
#include "support/MessageSite.h"
#include "support/RawServer.h"

#include <gtest/gtest.h>

using namespace velcro::test;
using Reply = RawServer::Reply;

namespace {

class SysCommsTest : public testing::Test
{
protected:
    SysCommsTest() { fill(); }
    ~SysCommsTest() override { velcro::seat::setClock({}); }

    static void fill() {
        sysc_InitCommsFelds();
        sysc_CellNo = "082-555-0101";
        sysc_BodyHeader = "Dear Ann";
    }
    static void use(const std::string& gateway, const std::string& service = {}) {
        pointMessagesAt(gateway, service);
        par_LoadParameters(gCO, gBranch);
    }
    /// What the gateway's answer makes of the message: "sent", or the reason.
    static std::string sentOver(const Reply& reply) {
        const RawServer server([&reply](int) { return reply; });
        setSiteParameters({{104, server.address()}});
        par_LoadParameters(gCO, gBranch);
        fill();
        return sysc_SendSMS() ? "sent" : sysc_ReturnMsg.toStdString();
    }

    Desk desk;
};

} // namespace

TEST_F(SysCommsTest, onlyTenDigitsAreANumber) {
    for (const auto* good : {u"0825550101", u"082-555-0101", u"(082)555.0101", u"082●555●0101",
                             u"(082-555-0101", u"082)5550101"}) {
        EXPECT_TRUE(sysc_ValidatePhoneNumber(QString::fromUtf16(good)));
    }
    for (const auto* bad : {"", "082 555 1234", "+27825550101", "27825550101", "08255501011",
                            "082--5550101", "O825550101", "082-555-0101 ", "((082)5550101"}) {
        EXPECT_FALSE(sysc_ValidatePhoneNumber(bad)) << bad;
    }
    EXPECT_FALSE(sysc_ValidatePhoneNumber(QString(10000, u'x')));
    EXPECT_FALSE(sysc_ValidatePhoneNumber(QString(10000, u'1')));
}

TEST_F(SysCommsTest, aNumberThatIsNoneGoesNowhere) {
    const RawServer server([](int) { return Reply(); });
    use(server.address(), server.address());
    for (const auto send : {sysc_SendSMS, sysc_SendMySMS}) {
        fill();
        sysc_CellNo = "082 555 0101";
        EXPECT_FALSE(send());
        EXPECT_EQ(sysc_ReturnMsg, "CANNOT SEND SMS\rInvalid Cellphone Number Format");
    }
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(SysCommsTest, theGatewayIsAskedByTheseBytes) {
    const RawServer server([](int) {
        return Reply{RawServer::whole("{\"status\":\"1\"}"), Reply::Wait};
    });
    use(server.address());
    int paints = 0;
    gLetScreensPaint = [&paints] { ++paints; };
    EXPECT_TRUE(sysc_SendSMS()) << sysc_ReturnMsg.toStdString();
    gLetScreensPaint = {};
    EXPECT_EQ(paints, 2);
    EXPECT_EQ(sysc_Name, "Brindavel");
    sysc_Name = " Shop ";
    sysc_BodyHeader = "100% @Now#\r\n\"it's\" a+b=c \u00E9 \U0001F600&to=1";
    EXPECT_TRUE(sysc_SendSMS());
    const auto sent = server.requests();
    ASSERT_EQ(sent.size(), 2U);
    const std::string start = "POST /send?action=message_send&username=gate&password=pw"
                              "&to=082-555-0101&text=";
    const std::string rest = " HTTP/1.1\r\nHost: " + server.host() +
                             "\r\nUser-Agent: velCRO\r\nContent-Length: 0\r\n\r\n";
    EXPECT_EQ(sent[0], start + "Dear%20Ann&from=Brindavel" + rest);
    EXPECT_EQ(sent[1], start +
                           "100%%20@Now%23%0D%0A\"it's\"%20a+b=c%20%C3%A9%20%F0%9F%98%80&to=1"
                           "&from=%20Shop%20" +
                           rest);
}

TEST_F(SysCommsTest, theGatewaysAnswerDecides) {
    const auto whole = [](const std::string& body) { return Reply{RawServer::whole(body)}; };
    const std::string broken = "Error Sending Text Message\r";
    const std::pair<Reply, std::string> answers[] = {
        {whole("{\"status\":1}"), "sent"},
        {whole("{\"status\":\"0\",\"message\":\"No credit\",\"details\":[1]}"),
         "SMS Not Sent\r\rResponse Status = 0\rMessage = No credit\rDetail = [1]"},
        {whole("{}"), "SMS Not Sent\r\rResponse Status = \rMessage = \rDetail = "},
        {whole(""), broken + "Invalid class typecast"},
        {whole("\xFF\xFE"), broken + "Invalid class typecast"},
        {{RawServer::whole("{\"status\":1}", "500 Out of order")},
         broken + "HTTP/1.1 500 Out of order"},
        {{"HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n"},
         broken + "HTTP/1.1 302 Found"},
        {{""}, broken + "Empty reply from server"},
    };
    for (const auto& [reply, outcome] : answers) {
        EXPECT_EQ(sentOver(reply), outcome);
    }
}

TEST_F(SysCommsTest, aGatewayThatIsNotThereOrNotTrustedIsAFault) {
    const auto reasonAt = [](const std::string& gateway) {
        use(gateway);
        fill();
        EXPECT_FALSE(sysc_SendSMS()) << gateway;
        return sysc_ReturnMsg.toStdString();
    };
    EXPECT_EQ(reasonAt("").substr(0, 81),
              "Error Sending Text Message\rThis is no http address: action=message_send&username=");
    const HttpServer unsignedOne([](const auto&) { return HttpServer::Reply(); },
                                 HttpServer::Security::Tls);
    EXPECT_EQ(reasonAt(unsignedOne.address()),
              "Error Sending Text Message\rSSL certificate problem: self-signed certificate");
}

TEST_F(SysCommsTest, theServiceGetsALogInAndAMessage) {
    velcro::seat::setClock(QDateTime(QDate(2026, 11, 23), QTime(9, 5, 7, 42)));
    const HttpServer server([](const HttpServer::Received& request) {
        return HttpServer::Reply{200,
                                 request.target == "/Authentication" ? "{\"token\":\"K\"}" : "{}"};
    });
    std::string address = server.address();
    address.pop_back(); // the client adds what lacks
    use({}, address);
    EXPECT_TRUE(sysc_SendMySMS()) << sysc_ReturnMsg.toStdString();
    EXPECT_EQ(server.lines(),
              (std::vector<std::string>{
                  "POST /Authentication {\"username\":\"mobile\",\"password\":\"secret\"}",
                  "POST /v3/bulkmessages {\"messages\":[{\"destination\":\"082-555-0101\","
                  "\"content\":\"Dear Ann\",\"messageId\":\"single-id-20261123090507042\"}]}"}));
    EXPECT_EQ(server.received()[1].headers.at("Authorization"), "Basic Szo=");
}

TEST_F(SysCommsTest, theServicesRefusalIsTold) {
    int refusesFrom = 1;
    const HttpServer server([&refusesFrom, n = 0](const auto&) mutable {
        return ++n >= refusesFrom ? HttpServer::Reply{403, "no"}
                                  : HttpServer::Reply{200, "{\"token\":\"K\"}"};
    });
    use({}, server.address());
    EXPECT_FALSE(sysc_SendMySMS());
    EXPECT_EQ(sysc_ReturnMsg,
              "Authentication Failed:\r\nHTTP Error: 403 - Forbidden. Server Response: no");
    refusesFrom = 3;
    EXPECT_FALSE(sysc_SendMySMS());
    EXPECT_EQ(sysc_ReturnMsg, "SMS Not Sent\r\nHTTP Error: 403 - Forbidden. Server Response: no");
    EXPECT_EQ(server.received().size(), 3U);
}
