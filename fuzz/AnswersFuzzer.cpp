// Fuzzes what reads the answers of message providers: no answer may crash it, and what it says of
// one must agree with a reader of the whole tree.
#include "messaging/ServiceAnswers.h"
#include "messaging/SysJSONParser.h"
#include "platform/http/RequestText.h"

#include "data/Errors.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

using Json = nlohmann::json;

void expect(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// The gateway's parser reads letters beyond ASCII as "?".
void readGateway(const std::string& bytes) {
    const QString text = QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    std::string ascii = bytes;
    std::ranges::replace_if(
        ascii, [](char c) { return (c & 0x80) != 0; }, '?');
    const Json whole = Json::parse(ascii, nullptr, false);
    const QString none = QStringLiteral("\u00A0none");
    try {
        const QString status = sj_Parse_Tag(text, QStringLiteral("status"), none);
        expect(whole.is_object());
        expect((status == none) == !whole.contains("status"));
    } catch (const VelmaraError&) {
        expect(!whole.is_object());
    }
}

void readService(const std::string& bytes) {
    const Json whole = Json::parse(bytes, nullptr, false);
    expect(isObject(bytes) == whole.is_object());
    QString token;
    const bool hasToken = TryGetValue(bytes, QStringLiteral("token"), QString(), token);
    expect(hasToken ==
           (whole.is_object() && whole.contains("token") && whole["token"].is_string()));
    bool authenticated = false;
    expect(TryGetValue(bytes, QStringLiteral("authenticated"), false, authenticated) ||
           !authenticated);
    double balance = 1;
    const bool hasBalance = readBalance(bytes, balance);
    expect(std::isfinite(balance) && (hasBalance || balance == 0));
}

void writeAddress(const std::string& bytes) {
    const std::string address = velcro::http::addressOnTheWire("http://x/" + bytes);
    expect(std::ranges::all_of(address, [](char c) { return c > ' ' && c < '\x7F' && c != '#'; }));
    expect(velcro::http::reasonOf(bytes).size() <= bytes.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    readGateway(bytes);
    readService(bytes);
    writeAddress(bytes);
    return 0;
}
