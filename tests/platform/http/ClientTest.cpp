#include "platform/http/Client.h"

#include "support/HttpServer.h"
#include "support/RawServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>

using namespace velcro::http;
using velcro::test::HttpServer;
using velcro::test::RawServer;
using Kind = HttpError::Kind;
using Reply = RawServer::Reply;
using std::chrono::milliseconds;

namespace {

Request get(const std::string& address) {
    return {.method = "GET",
            .address = address,
            .connectTimeOut = milliseconds(2000),
            .readTimeOut = milliseconds(2000)};
}

/// "protocol|network|other: text", or the answer's status where there is no failure.
std::string outcome(const Request& request) {
    try {
        return std::to_string(Client().send(request).status);
    } catch (const HttpError& error) {
        const char* kinds[] = {"protocol: ", "network: ", "other: "};
        return kinds[int(error.kind())] + std::string(error.what());
    }
}

void expectBegins(const std::string& text, const std::string& beginning) {
    EXPECT_EQ(text.substr(0, beginning.size()), beginning) << text;
}

const std::string tooLarge = "other: The answer is larger than 16777216 bytes.";

} // namespace

TEST(ClientTest, sendsWhatItWasGivenByteForByte) {
    const RawServer server([](int) { return Reply{RawServer::whole("ok"), Reply::Wait}; });
    Client client;
    EXPECT_EQ(client.send(get(server.address() + "v3/it?to=1&text=a b")).body, "ok");
    client.send({.method = "POST",
                 .address = server.address(),
                 .headers = {{"User-Agent", "test/1"}, {"Content-Type", "text/plain"}},
                 .body = std::string("two\0bytes", 9),
                 .basic = Credentials{"us:er", "p\xC3\xA4ss"}});
    client.send({.method = "POST", .address = server.address() + "empty"});
    const std::vector<std::string> sent = server.requests();
    ASSERT_EQ(sent.size(), 3U);
    const std::string host = "Host: " + server.host() + "\r\n";
    EXPECT_EQ(sent[0], "GET /v3/it?to=1&text=a%20b HTTP/1.1\r\n" + host + "\r\n");
    EXPECT_EQ(sent[1], "POST / HTTP/1.1\r\n" + host +
                           "Authorization: Basic dXM6ZXI6cMOkc3M=\r\n"
                           "User-Agent: test/1\r\nContent-Type: text/plain\r\n"
                           "Content-Length: 9\r\n\r\n" +
                           std::string("two\0bytes", 9));
    EXPECT_EQ(sent[2], "POST /empty HTTP/1.1\r\n" + host + "Content-Length: 0\r\n\r\n");
}

TEST(ClientTest, theAddressGoesAsItStandsButForWhatBreaksItsLine) {
    const HttpServer server([](const auto&) { return HttpServer::Reply(); });
    const std::pair<std::string, std::string> addresses[] = {
        {"", "/"},
        {"a/../b/./c", "/a/../b/./c"},
        {"?text=100% + \"it's\" <&n>", "/?text=100%%20+%20\"it's\"%20<&n>"},
        {"?text=@AccName#&from=x", "/?text=@AccName%23&from=x"},
        {"?text=a\r\nX-Evil: 1\r\n\r\n", "/?text=a%0D%0AX-Evil:%201%0D%0A%0D%0A"},
        {"?text=\xC3\xA9\x7F\x01", "/?text=%C3%A9%7F%01"},
        {"?" + std::string(5000, 'x'), "/?" + std::string(5000, 'x')},
    };
    for (const auto& [address, target] : addresses) {
        EXPECT_EQ(outcome(get(server.address() + address)), "200") << address;
        EXPECT_EQ(server.received().back().target, target);
    }
}

TEST(ClientTest, aRedirectIsFollowedWhereThatIsAsked) {
    const HttpServer server([](const HttpServer::Received& request) {
        return request.target == "/there"  ? HttpServer::Reply{200, "there"}
               : request.target == "/loop" ? HttpServer::Reply{302, "", "/loop"}
                                           : HttpServer::Reply{302, "moved", "/there"};
    });
    Request request = get(server.address());
    const Answer kept = Client().send(request);
    EXPECT_EQ(kept.status, 302);
    EXPECT_EQ(kept.body, "moved");
    request.followsRedirects = true;
    EXPECT_EQ(Client().send(request).body, "there");
    request.address += "loop";
    expectBegins(outcome(request), "protocol: Maximum (5) redirects followed");
}

TEST(ClientTest, brokenAnswersAreToldFromBrokenNetworks) {
    const std::string long999 = "HTTP/1.1 200 OK\r\nContent-Length: 999\r\n\r\n";
    const std::string half = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf";
    const std::pair<Reply, const char*> cases[] = {
        {{"hello, I am no web server\r\n"}, "protocol: Received HTTP/0.9 when not allowed"},
        {{half}, "protocol: transfer closed with 6 bytes remaining to read"},
        {{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhal"},
         "protocol: transfer closed with outstanding read data remaining"},
        {{""}, "network: Empty reply from server"},
        {{"", Reply::Stall}, "network: The server was silent for 300 ms."},
        {{half, Reply::Stall}, "network: The server was silent for 300 ms."},
        {{long999, Reply::Cut, 998, 50}, "network: The answer did not come to its end."},
    };
    for (const auto& [reply, expected] : cases) {
        const RawServer server([&reply = reply](int) { return reply; });
        Request request = get(server.address());
        request.connectTimeOut = request.readTimeOut = milliseconds(300);
        expectBegins(outcome(request), expected);
    }
    const std::string closedPort = RawServer([](int) { return Reply(); }).address();
    expectBegins(outcome(get(closedPort)), "network: Failed to connect to 127.0.0.1");
}

TEST(ClientTest, anEndlessAnswerIsCutOff) {
    constexpr std::uint64_t hundredMegabytes = 100'000'000;
    const std::string length = "Content-Length: " + std::to_string(hundredMegabytes) + "\r\n";
    for (const auto& headers : {length, std::string()}) {
        const RawServer server([&](int) {
            return Reply{"HTTP/1.1 200 OK\r\n" + headers + "\r\n", Reply::Cut, hundredMegabytes};
        });
        EXPECT_EQ(outcome(get(server.address())), tooLarge);
    }
    std::string headers = "HTTP/1.1 200 OK\r\n";
    for (int i = 0; i < 300; ++i) {
        headers += "X-" + std::to_string(i) + ": " + std::string(60'000, 'h') + "\r\n";
    }
    const RawServer server([&](int) { return Reply{headers}; });
    EXPECT_NE(outcome(get(server.address())).find("arge"), std::string::npos);
}

TEST(ClientTest, tlsIsOneTwoAndTrustsWhomItIsTold) {
    const auto answer = [](const auto&) { return HttpServer::Reply{200, "secret"}; };
    const HttpServer server(answer, HttpServer::Security::Tls);
    Request request = get(server.address());
    expectBegins(outcome(request), "network: SSL certificate problem: self-signed certificate");
    EXPECT_TRUE(server.received().empty());
    request.peer = Peer::Anybody;
    EXPECT_EQ(Client().send(request).body, "secret");
    const HttpServer old(answer, HttpServer::Security::Tls10);
    request.address = old.address();
    expectBegins(outcome(request), "network: ");
    EXPECT_TRUE(old.received().empty());
    const HttpServer plain(answer);
    request.address = "https" + plain.address().substr(4);
    expectBegins(outcome(request), "network: ");
    EXPECT_TRUE(plain.received().empty());
}

TEST(ClientTest, whatCannotBeSentIsRefused) {
    for (const auto* address :
         {"", "/", "/Authentication", "x/Authentication", "file:///etc/passwd",
          "action=message_send&to=1", "ftp://127.0.0.1/"}) {
        expectBegins(outcome(get(address)), "network: This is no http address: ");
    }
    for (const auto* address : {"http://", "http:///", "http://127.0.0.1:99999/", "http://[::1/"}) {
        expectBegins(outcome(get(address)), "network: ");
    }
    Request request = get("http://127.0.0.1/");
    request.headers = {{"X", "1\r\nY: 2"}};
    EXPECT_EQ(outcome(request), "other: A header must not hold a line break.");
}

TEST(ClientTest, aConnectionIsKeptAndARequestNeverRepeated) {
    std::atomic<int> cutAt = 0;
    const RawServer server([&](int n) {
        return n == cutAt ? Reply{} : Reply{RawServer::whole("ok"), Reply::Wait};
    });
    EXPECT_EQ(outcome(get(server.address())), "200");
    EXPECT_EQ(outcome(get(server.address())), "200");
    EXPECT_EQ(server.connections(), 1) << "whichever client sends";
    cutAt = 3;
    EXPECT_EQ(outcome({.method = "POST", .address = server.address(), .body = "{}"}),
              "network: The connection was lost before an answer came.");
    EXPECT_EQ(server.requests().size(), 3U) << "it may have been taken";
    EXPECT_EQ(outcome(get(server.address())), "200");
    EXPECT_EQ(server.requests().size(), 4U);
}
