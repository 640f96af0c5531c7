// A birthday run of many employees against a message service on loopback, from the first read to the
// last marker, and bare libcurl doing the same requests over a connection that it keeps.
//   MessagesBench [employees]
#include "Stopwatch.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "security/SysLogIn.h"
#include "support/Desk.h"
#include "support/MessageSite.h"
#include "support/RawServer.h"

#include <QCoreApplication>

#include <curl/curl.h>

#include <cstdlib>
#include <string>

using bench::Rounds;
using velcro::test::Desk;
using velcro::test::RawServer;

namespace {

constexpr int rounds = 5;

std::string request(int n) {
    return n % 2 == 1 ? R"({"username":"mobile","password":"secret"})"
                      : R"({"messages":[{"destination":"082-555-0105","content":"Birthday today:  )"
                        R"(E1000  Sent  2026/11/23  by  COUNTER1","messageId":"single-id-)"
                        R"(20261123090507042"}]})";
}

RawServer::Reply answer(int n) {
    return {RawServer::whole(n % 2 == 1 ? "{\"token\":\"KEY\"}" : "{}"), RawServer::Reply::Wait};
}

std::size_t take(const char* /*bytes*/, std::size_t size, std::size_t count, void* /*nowhere*/) {
    return size * count;
}

void bareRun(const std::string& address, int employees) {
    CURL* easy = curl_easy_init();
    curl_slist* headers = curl_slist_append(nullptr, "Content-Type: application/json");
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, take);
    for (int n = 1; n <= 2 * employees; ++n) {
        const bool logIn = n % 2 == 1;
        const std::string body = request(n);
        const std::string url = address + (logIn ? "Authentication" : "v3/bulkmessages");
        curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
        curl_easy_setopt(easy, CURLOPT_USERPWD, logIn ? "mobile:secret" : "KEY:");
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE, long(body.size()));
        curl_easy_setopt(easy, CURLOPT_COPYPOSTFIELDS, body.c_str());
        if (curl_easy_perform(easy) != CURLE_OK) {
            std::abort();
        }
    }
    curl_slist_free_all(headers);
    curl_easy_cleanup(easy);
}

void addEmployees(int count) {
    Desk::onSuite("DELETE FROM EMPMaster");
    QString rows = "INSERT INTO EMPMaster ([CO], [Branch], [EmplNo], [EmplName], [BirthDate], "
                   "[IDNo], [CellPhone], [Status]) VALUES ";
    for (int i = 0; i < count; ++i) {
        rows += QStringLiteral("%1('01', '100', '%2', 'E%2', '1990%3', '', '', 'A')")
                    .arg(i == 0 ? "" : ", ")
                    .arg(1000 + i)
                    .arg(sfg_Date(0).mid(4));
    }
    Desk::onSuite(rows);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int employees = argc > 1 ? std::atoi(argv[1]) : 1000;
    const Desk desk(Desk::Start::SignedIn);
    addEmployees(employees);
    const RawServer ours(answer), theirs(answer);
    velcro::test::pointMessagesAt({}, ours.address());
    sli_LoadVelmaraSettings();
    Rounds run, withoutSending, bare;
    for (int i = 0; i < rounds; ++i) {
        Desk::onSuite("DELETE FROM EMPTxans");
        run.run(sli_Process_Employee_Birthday_SMS);
        bare.run([&] { bareRun(theirs.address(), employees); });
    }
    velcro::test::pointMessagesAt({}, "nowhere");
    sli_LoadVelmaraSettings();
    for (int i = 0; i < rounds; ++i) {
        Desk::onSuite("DELETE FROM EMPTxans");
        withoutSending.run(sli_Process_Employee_Birthday_SMS);
    }
    std::printf("%d messages, %zu requests came\n", employees, ours.requests().size() / rounds);
    bench::printHead();
    bench::print("a birthday run", run);
    bench::print("the same with nowhere to send to", withoutSending);
    std::printf("per message: sending %.3f ms, bare libcurl %.3f ms, ratio %.2f (aim 1.50)\n",
                (run.best() - withoutSending.best()) / employees, bare.best() / employees,
                (run.best() - withoutSending.best()) / bare.best());
    return 0;
}
