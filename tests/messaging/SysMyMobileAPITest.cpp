#include "messaging/SysMyMobileAPI.h"

#include "platform/seat/Clock.h"
#include "support/HttpServer.h"
#include "support/RawServer.h"

#include <gtest/gtest.h>

using velcro::test::HttpServer;
using velcro::test::RawServer;
using Reply = RawServer::Reply;

namespace {

const std::string goodKey = R"({"token":"KEY-1"})";

class SysMyMobileAPITest : public testing::Test
{
protected:
    SysMyMobileAPITest() {
        velcro::seat::setClock(QDateTime(QDate(2026, 11, 23), QTime(9, 5, 7, 42)));
        api.Username = "us:er";
        api.Password = "p\"\u00E4";
        api.LogMessages = &log;
        api.ReponseTimeOut = 2000;
    }
    ~SysMyMobileAPITest() override { velcro::seat::setClock({}); }

    /// The key comes from a server that is gone afterwards.
    void authenticate() {
        const RawServer server([](int) { return Reply{RawServer::whole(goodKey)}; });
        api.setBaseURL(QString::fromStdString(server.address()));
        ASSERT_TRUE(api.Authenticate()) << api.LastErrorMessage().toStdString();
        log.clear();
    }
    void use(const std::string& address) { api.setBaseURL(QString::fromStdString(address)); }
    std::string failure() const { return api.LastErrorMessage().toStdString(); }
    std::string lastLog() const { return log.isEmpty() ? "" : log.last().toStdString(); }

    QStringList log;
    TSysMyMobileAPI api;
};

/// What a failed log-in leaves, of a server that answers so.
struct BadAnswer
{
    Reply reply;
    std::string reason; // "..." at its end stands for anything
    std::string loggedBefore = {};
};

const std::string half = "HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\n{\"token\":\"KE";

const BadAnswer badAnswers[] = {
    {{RawServer::whole("no such user", "401 Unauthorized")},
     "HTTP Error: 401 - Unauthorized. Server Response: no such user"},
    {{RawServer::whole(goodKey, "202 Accepted")},
     "HTTP Error: 202 - Accepted. Server Response: " + goodKey},
    {{RawServer::whole("%1 %2", "500 Internal %1 Error")},
     "HTTP Error: 500 - Internal %1 Error. Server Response: %1 %2"},
    {{"HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\nContent-Length: 0\r\n\r\n"},
     "HTTP Error: 302 - Found. Server Response: "},
    {{RawServer::whole("")}, "Failed to parse JSON response from server."},
    {{RawServer::whole("<html>")}, "Failed to parse JSON response from server."},
    {{RawServer::whole("[\"token\"]")}, "Failed to parse JSON response from server."},
    {{RawServer::whole("{\"token\":\"\xFF\xFE\"}")}, "Failed to parse JSON response from server."},
    {{RawServer::whole("{\"Token\":\"x\"}")}, "Failed to parse \"token\" from JSON response."},
    {{RawServer::whole("{\"token\":null}")}, "Failed to parse \"token\" from JSON response."},
    {{RawServer::whole("{\"token\":1}")}, "Failed to parse \"token\" from JSON response."},
    {{RawServer::whole("{\"token\":\"\"}")},
     "Authentication successful, but no API key was returned."},
    {{half},
     "HTTP Protocol Error: 200. Server Response: {\"token\":\"KE",
     "Authenticate: EIdHTTPProtocolException - "},
    {{"what?\r\n"},
     "HTTP Protocol Error: 0. Server Response: ",
     "Authenticate: EIdHTTPProtocolException - "},
    {{""}, "Indy Exception: Empty reply from server", "Authenticate: Indy library error - "},
    {{"", Reply::Stall},
     "Indy Exception: The server was silent for 300 ms.",
     "Authenticate: Indy library error - "},
    {{"HTTP/1.1 200 OK\r\n\r\n", Reply::Cut, 100'000'000},
     "Request failed. General Exception: The answer is larger than 16777216 bytes.",
     "Authenticate: General exception - "},
};

} // namespace

TEST_F(SysMyMobileAPITest, whatGoesOutIsTheSameToTheLastByte) {
    const RawServer server([](int n) {
        return Reply{n == 1 ? RawServer::whole(goodKey) : RawServer::whole("{}", "202 Accepted"),
                     Reply::Wait};
    });
    use(server.address());
    ASSERT_TRUE(api.Authenticate()) << failure();
    EXPECT_TRUE(api.IsAuthenticated());
    ASSERT_TRUE(api.SendSingleMessage("0825550101", "Hi \"Ann\"\n\U0001F600 /é", "single-id-1"));
    ASSERT_TRUE(api.SendSingleMessage("0825550102", "", ""));
    const auto sent = server.requests();
    ASSERT_EQ(sent.size(), 3U);
    const auto head = [&](const std::string& line, const std::string& basic, std::size_t length) {
        return line + " HTTP/1.1\r\nHost: " + server.host() + "\r\nAuthorization: Basic " + basic +
               "\r\nUser-Agent: Corvelle/TSysMyMobileAPI\r\nAccept: application/json\r\n"
               "Content-Type: application/json; charset=utf-8\r\nConnection: keep-alive\r\n"
               "Content-Length: " +
               std::to_string(length) + "\r\n\r\n";
    };
    const std::string logIn = "{\"username\":\"us:er\",\"password\":\"p\\\"\xC3\xA4\"}";
    EXPECT_EQ(sent[0], head("POST /Authentication", "dXM6ZXI6cCLDpA==", logIn.size()) + logIn);
    const std::string single =
        "{\"messages\":[{\"destination\":\"0825550101\",\"content\":\"Hi \\\"Ann\\\"\\n"
        "\xF0\x9F\x98\x80 /\xC3\xA9\",\"messageId\":\"single-id-1\"}]}";
    EXPECT_EQ(sent[1], head("POST /v3/bulkmessages", "S0VZLTE6", single.size()) + single);
    const std::string plain = R"({"messages":[{"destination":"0825550102","content":""}]})";
    EXPECT_EQ(sent[2], head("POST /v3/bulkmessages", "S0VZLTE6", plain.size()) + plain);
}

TEST_F(SysMyMobileAPITest, everyStepIsLogged) {
    const HttpServer server([](const HttpServer::Received& request) {
        return request.method == "POST" ? HttpServer::Reply{200, goodKey}
                                        : HttpServer::Reply{404, "gone"};
    });
    use(server.address());
    api.Authenticate();
    EXPECT_EQ(log.join('\n'), " -> [11/23-09:05:07]  Payload: "
                              "{\"username\":\"us:er\",\"password\":\"p\\\"\u00E4\"}");
    log.clear();
    api.SendSingleMessage("1", "2", "");
    const QString url = QString::fromStdString(server.address());
    EXPECT_EQ(log.join('\n'), " -> [11/23-09:05:07]  DoRequest: POST to " + url +
                                  "v3/bulkmessages\n"
                                  " -> [11/23-09:05:07]  Payload: "
                                  "{\"messages\":[{\"destination\":\"1\",\"content\":\"2\"}]}\n"
                                  " <- [11/23-09:05:07]  DoRequest: Success response (200)\n"
                                  " <- [11/23-09:05:07]  Response: {\"token\":\"KEY-1\"}");
    log.clear();
    EXPECT_FALSE(api.GetBalance());
    EXPECT_EQ(log.join('\n'), " -> [11/23-09:05:07]  DoRequest: GET to " + url +
                                  "v3/balance\n"
                                  "! <- [11/23-09:05:07]  DoRequest: Error in response - HTTP "
                                  "Error: 404 - Not Found. Server Response: gone");
    EXPECT_EQ(api.LastResponse(), "gone");
    log.clear();
    EXPECT_FALSE(api.SendBulkMessages());
    EXPECT_EQ(lastLog(), "?  [11/23-09:05:07]  No messages in BulkMessages list to send.");
    api.WriteLog("note", lmtInformation, ldNone);
    EXPECT_EQ(lastLog(), "  [11/23-09:05:07]  note");
}

TEST_F(SysMyMobileAPITest, aLogInThatFailsTellsWhy) {
    for (const auto& [reply, reason, loggedBefore] : badAnswers) {
        const RawServer server([&reply = reply](int) { return reply; });
        use(server.address());
        api.ReponseTimeOut = 300;
        log.clear();
        EXPECT_FALSE(api.Authenticate()) << reason;
        EXPECT_FALSE(api.IsAuthenticated());
        EXPECT_EQ(failure(), reason);
        EXPECT_EQ(lastLog(), "! <- [11/23-09:05:07]  " + loggedBefore + reason);
        EXPECT_EQ(server.requests().size(), 1U) << reason;
    }
}

TEST_F(SysMyMobileAPITest, whomItCannotReachItDoesNotReach) {
    const auto expectIndy = [this](const std::string& address, const std::string& beginning) {
        use(address);
        EXPECT_FALSE(api.Authenticate()) << address;
        EXPECT_EQ(failure().substr(0, beginning.size()), beginning) << failure();
    };
    const auto gone = RawServer([](int) { return Reply(); }).address();
    expectIndy(gone, "Indy Exception: Failed to connect to 127.0.0.1 port ");
    expectIndy("", "Indy Exception: This is no http address: /Authentication");
    const auto answer = [](const auto&) { return HttpServer::Reply{200, goodKey}; };
    const HttpServer old(answer, HttpServer::Security::Tls10);
    expectIndy(old.address(), "Indy Exception: ");
    EXPECT_TRUE(old.received().empty());
    const HttpServer unsignedOne(answer, HttpServer::Security::Tls);
    use("HTTPS" + unsignedOne.address().substr(5));
    EXPECT_TRUE(api.Authenticate()) << "the certificate is not looked at: " << failure();
}

TEST_F(SysMyMobileAPITest, nothingGoesOutWithoutAKey) {
    const HttpServer server([](const auto&) { return HttpServer::Reply{401}; });
    use(server.address());
    EXPECT_FALSE(api.SendSingleMessage("0825550101", "text", "1"));
    const std::string reason = "Not authenticated. Please call Authenticate first.";
    EXPECT_EQ(failure(), "Failed during request setup: " + reason);
    EXPECT_EQ(log.join('\n').toStdString(),
              "!  [11/23-09:05:07]  " + reason +
                  "\n!  [11/23-09:05:07]  DoRequest: Critical setup error - "
                  "Failed during request setup: " +
                  reason);
    EXPECT_FALSE(api.CheckAPIKeyValid());
    EXPECT_FALSE(api.GetBalance());
    EXPECT_TRUE(server.received().empty());
    authenticate();
    use(server.address());
    EXPECT_FALSE(api.Authenticate());
    EXPECT_FALSE(api.GetBalance()) << "a failed log-in takes the key away";
    EXPECT_EQ(server.received().size(), 1U);
}

TEST_F(SysMyMobileAPITest, otherFaultsOfARequestAreLoggedByTheirClass) {
    authenticate();
    std::string answer;
    EXPECT_FALSE(api.DoRequest("PUT", "v3/balance", {}, answer));
    EXPECT_EQ(lastLog(), "! <- [11/23-09:05:07]  DoRequest: General exception - Request failed. "
                         "General Exception: Unsupported HTTP method: PUT");
    const RawServer server([](int) { return Reply{half}; });
    use(server.address());
    EXPECT_FALSE(api.DoRequest("GET", "x", {}, answer));
    EXPECT_EQ(lastLog(), "! <- [11/23-09:05:07]  DoRequest: EIdHTTPProtocolException - HTTP "
                         "Protocol Error: 200. Server Response: {\"token\":\"KE");
    use("");
    EXPECT_FALSE(api.DoRequest("GET", "x", {}, answer));
    EXPECT_EQ(lastLog(), "! <- [11/23-09:05:07]  DoRequest: Indy library error - Indy Exception: "
                         "This is no http address: /x");
}

TEST_F(SysMyMobileAPITest, allMessagesOfTheQueueGoInOneRequestAndStay) {
    authenticate();
    const HttpServer server([](const auto&) { return HttpServer::Reply{202, "{}"}; });
    use(server.address());
    for (const auto* id : {"a", "", "c"}) {
        api.BulkMessages.push_back(
            std::make_unique<TMyMobileMessage>(TMyMobileMessage{"082", "text", id}));
    }
    EXPECT_TRUE(api.SendBulkMessages());
    EXPECT_EQ(server.lines(),
              std::vector<std::string>{
                  "POST /v3/bulkmessages {\"messages\":["
                  "{\"destination\":\"082\",\"content\":\"text\",\"messageId\":\"a\"},"
                  "{\"destination\":\"082\",\"content\":\"text\"},"
                  "{\"destination\":\"082\",\"content\":\"text\",\"messageId\":\"c\"}]}"});
    EXPECT_EQ(api.BulkMessages.size(), 3U);
}

TEST_F(SysMyMobileAPITest, theKeyIsChecked) {
    authenticate();
    const struct
    {
        const char* answer;
        bool valid;
        const char* reason;
    } answers[] = {
        {R"({"authenticated":true})", true, ""},
        {R"({"authenticated":false})", false, "Authentication check returned false."},
        {R"({"authenticated":"true"})", false, "Authentication check returned false."},
        {R"({"authenticated":null})", false, "Authentication check returned false."},
        {"{}", false, "Authentication check returned false."},
        {"true", false, "Failed to parse JSON response for CheckAPIKeyValid."},
    };
    for (const auto& [answer, valid, reason] : answers) {
        const RawServer server([answer = answer](int) { return Reply{RawServer::whole(answer)}; });
        use(server.address());
        EXPECT_EQ(api.CheckAPIKeyValid(), valid) << answer;
        EXPECT_EQ(api.LastAuthCheck(), valid);
        if (!valid) {
            EXPECT_EQ(failure(), reason) << answer;
        }
        ASSERT_EQ(server.requests().size(), 1U);
        EXPECT_TRUE(server.requests()[0].starts_with("GET /Authentication HTTP/1.1\r\n"));
    }
}

TEST_F(SysMyMobileAPITest, theBalanceIsReadAsItCan) {
    authenticate();
    const struct
    {
        const char* answer;
        bool read;
        double balance;
        const char* reason;
    } answers[] = {
        {R"({"balance":12.5})", true, 12.5, ""},
        {R"({"balance":-3})", true, -3, ""},
        {R"({"balance":"1234.50"})", true, 1234.5, ""},
        {R"({"balance":"abc"})", true, 0, ""},
        {R"({"balance":"1,234.50"})", true, 0, ""},
        {R"({"balance":null})", true, 0, ""},
        {"{}", false, 0, "Balance field not found in response."},
        {"[12.5]", false, 0, "Failed to parse JSON response for GetBalance."},
    };
    for (const auto& [answer, read, balance, reason] : answers) {
        const RawServer server([answer = answer](int) { return Reply{RawServer::whole(answer)}; });
        use(server.address());
        EXPECT_EQ(api.GetBalance(), read) << answer;
        EXPECT_EQ(api.LastBalance(), balance) << answer;
        if (!read) {
            EXPECT_EQ(failure(), reason);
            EXPECT_EQ(lastLog(), std::string("! <- [11/23-09:05:07]  ") + reason);
        }
    }
}

TEST_F(SysMyMobileAPITest, theAddressEndsInASlash) {
    EXPECT_TRUE(TSysMyMobileAPI().BaseURL().startsWith("https://"));
    EXPECT_TRUE(TSysMyMobileAPI().BaseURL().endsWith('/'));
    EXPECT_EQ(TSysMyMobileAPI().ReponseTimeOut, 30000);
    for (const auto& [given, kept] : {std::pair("x", "x/"), {"x/", "x/"}, {"", "/"}}) {
        api.setBaseURL(given);
        EXPECT_EQ(api.BaseURL(), kept);
    }
}
