#include "support/TdsServer.h"

#include "platform/sqlserver/Utf16.h"
#include "support/Sockets.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace velcro::test {

namespace {

enum PacketType {
    SqlBatch = 0x01,
    Reply = 0x04,
    Attention = 0x06,
    Transaction = 0x0E,
    Login7 = 0x10,
    PreLogin = 0x12
};

constexpr std::size_t headerSize = 8;
constexpr std::size_t packetSize = 4096;

/// The lowest count bytes, the lowest first.
std::string little(std::uint64_t value, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

std::string wide(const std::string& text) {
    std::string bytes;
    for (const char16_t unit : sql::toUtf16(text)) {
        bytes += little(unit, 2);
    }
    return bytes;
}

/// Characters counted in lengthBytes bytes before them.
std::string counted(const std::string& text, int lengthBytes = 1) {
    const auto bytes = wide(text);
    return little(bytes.size() / 2, lengthBytes) + bytes;
}

std::size_t readNumber(const std::string& bytes, std::size_t at, int count) {
    std::size_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    }
    return value;
}

std::string environmentChange(int type, const std::string& values) {
    return "\xE3" + little(values.size() + 1, 2) + little(static_cast<unsigned>(type), 1) + values;
}

bool receive(int socket, std::string& bytes, std::size_t count) {
    bytes.resize(count);
    for (std::size_t got = 0; got < count;) {
        const auto n = recv(socket, bytes.data() + got, count - got, 0);
        if (n <= 0) {
            return false;
        }
        got += static_cast<std::size_t>(n);
    }
    return true;
}

struct Request
{
    int type = 0;
    std::string body;
};

std::optional<Request> readRequest(int socket) {
    Request request;
    std::string header;
    std::string part;
    do {
        if (!receive(socket, header, headerSize)) {
            return std::nullopt;
        }
        const auto length = static_cast<std::size_t>(static_cast<unsigned char>(header[2]) << 8 |
                                                     static_cast<unsigned char>(header[3]));
        if (!receive(socket, part, length - headerSize)) {
            return std::nullopt;
        }
        request.type = header[0];
        request.body += part;
    } while ((header[1] & 1) == 0);
    return request;
}

void send(int socket, const std::string& body, bool whole) {
    for (std::size_t at = 0; at < body.size();) {
        const auto size = std::min(body.size() - at, packetSize - headerSize);
        const bool last = whole && at + size == body.size();
        std::string packet{static_cast<char>(Reply), static_cast<char>(last ? 1 : 0)};
        const auto length = size + headerSize;
        packet += {static_cast<char>(length >> 8), static_cast<char>(length & 0xFF), 0, 1, 1, 0};
        packet.append(body, at, size);
        ::send(socket, packet.data(), packet.size(), sendFlags);
        at += size;
    }
}

/// A request's text or code stands behind a block of headers that tells its own length.
std::string withoutHeaders(const std::string& body) {
    return body.substr(readNumber(body, 0, 4));
}

std::string batchText(const std::string& body) {
    const auto bytes = withoutHeaders(body);
    std::u16string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        text += static_cast<char16_t>(readNumber(bytes, at, 2));
    }
    return sql::toUtf8(text);
}

/// Version 11.0.3128 and no encryption.
const std::string preLoginAnswer("\x00\x00\x0B\x00\x06\x01\x00\x11\x00\x01\xFF"
                                 "\x0B\x00\x0C\x38\x00\x00\x02",
                                 18);

} // namespace

TdsReply& TdsReply::message(int token, int number, const std::string& text, int level, int state,
                            int line) {
    const std::string rest =
        little(static_cast<unsigned>(number), 4) + little(static_cast<unsigned>(state), 1) +
        little(static_cast<unsigned>(level), 1) + counted(text, 2) + counted("LOOPBACK") +
        counted("") + little(static_cast<unsigned>(line), 4);
    bytes_ += little(static_cast<unsigned>(token), 1) + little(rest.size(), 2) + rest;
    return *this;
}

TdsReply& TdsReply::column(const std::string& name) {
    const std::string collation("\x09\x04\xD0\x00\x34", 5);
    bytes_ += "\x81" + little(1, 2) + little(0, 4) + little(9, 2) + "\xE7" + little(100, 2) +
              collation + counted(name);
    return *this;
}

TdsReply& TdsReply::row(const std::string& value) {
    const auto bytes = wide(value);
    bytes_ += "\xD1" + little(bytes.size(), 2) + bytes;
    return *this;
}

TdsReply& TdsReply::decimalColumn(const std::string& name, int digits, int scale) {
    bytes_ += "\x81" + little(1, 2) + little(0, 4) + little(9, 2) + "\x6A" + little(9, 1) +
              little(static_cast<unsigned>(digits), 1) + little(static_cast<unsigned>(scale), 1) +
              counted(name);
    return *this;
}

TdsReply& TdsReply::decimalRow(std::int64_t value) {
    bytes_ += "\xD1" + little(9, 1) + little(value < 0 ? 0 : 1, 1) +
              little(static_cast<std::uint64_t>(value < 0 ? -value : value), 8);
    return *this;
}

TdsReply& TdsReply::done(std::int64_t affected, bool more, bool failed) {
    const unsigned status = (more ? 1U : 0U) | (failed ? 2U : 0U) | (affected >= 0 ? 0x10U : 0U);
    bytes_ += "\xFD" + little(status, 2) + little(0xC1, 2) +
              little(static_cast<std::uint64_t>(std::max<std::int64_t>(affected, 0)), 8);
    return *this;
}

TdsReply& TdsReply::acknowledgeCancel() {
    bytes_ += "\xFD" + little(0x20, 2) + little(0, 2) + little(0, 8);
    return *this;
}

TdsReply& TdsReply::acceptLogin() {
    const std::string acknowledgement = little(1, 1) + std::string("\x74\x00\x00\x04", 4) +
                                        counted("Microsoft SQL Server") +
                                        std::string("\x0B\x00\x0C\x38", 4);
    bytes_ += environmentChange(1, counted("suite") + counted("master"));
    bytes_ += "\xAD" + little(acknowledgement.size(), 2) + acknowledgement;
    bytes_ += environmentChange(4, counted("4096") + counted("4096"));
    return done();
}

TdsReply& TdsReply::transactionChange(int type, bool begins) {
    const std::string id = little(8, 1) + little(77, 8);
    const std::string none = little(0, 1);
    bytes_ += environmentChange(type, begins ? id + none : none + id);
    return *this;
}

TdsReply& TdsReply::endTransaction() {
    endsTransaction_ = true;
    return transactionChange(10, false);
}

TdsServer::TdsServer(Answer answer, Login login)
    : answer_(std::move(answer))
    , login_(login) {
    const auto [socket, port] = listenOnLoopback();
    listener_ = socket;
    port_ = port;
    thread_ = std::thread([this] { serve(); });
}

TdsServer::~TdsServer() {
    bell_.end();
    thread_.join();
    closeSocket(listener_);
}

std::string TdsServer::address() const {
    return "127.0.0.1," + std::to_string(port_);
}

void TdsServer::serve() {
    while (readable(listener_, bell_)) {
        const int client = static_cast<int>(accept(listener_, nullptr, nullptr));
        if (client >= 0) {
            serveClient(client);
            endTransaction(false);
            closeSocket(client);
        }
    }
}

TdsReply TdsServer::begun() {
    inTransaction_ = true;
    return TdsReply().transactionChange(8, true).done();
}

void TdsServer::endTransaction(bool keep) {
    const std::lock_guard lock(mutex_);
    if (keep) {
        kept_.insert(kept_.end(), waiting_.begin(), waiting_.end());
    }
    waiting_.clear();
    inTransaction_ = false;
}

TdsReply TdsServer::answerTransaction(const std::string& body) {
    enum { Begin = 5, Commit = 7, Rollback = 8 };
    const auto request = withoutHeaders(body);
    const auto code = readNumber(request, 0, 2);
    TdsReply reply;
    if (code == Begin) {
        return begun();
    }
    if (cutAtTransactionEnd) {
        return reply.cut();
    }
    if (!inTransaction_) {
        const std::string name = code == Commit ? "COMMIT" : "ROLLBACK";
        return reply
            .error(code == Commit ? 3902 : 3903,
                   "The " + name + " TRANSACTION request has no corresponding BEGIN TRANSACTION.")
            .done(-1, false, true);
    }
    endTransaction(code == Commit);
    reply.transactionChange(code == Commit ? 9 : 10, false);
    const std::size_t flags = 3; // behind the code and the length of a name, which is blank
    const bool another = request.size() > flags && (request[flags] & 1) != 0;
    inTransaction_ = another;
    return (another ? reply.transactionChange(8, true) : reply).done();
}

void TdsServer::noteWork(const std::string& batch) {
    if (batch.starts_with("INSERT")) {
        const std::lock_guard lock(mutex_);
        (inTransaction_ ? waiting_ : kept_).push_back(batch);
    }
}

TdsReply TdsServer::answerBatch(const std::string& batch) {
    if (batch == "BEGIN TRANSACTION") {
        return begun();
    }
    if (batch == "SELECT @@TRANCOUNT AS N") {
        return TdsReply().column("N").row(inTransaction_ ? "1" : "0").done(1);
    }
    TdsReply reply = answer_(batch);
    noteWork(batch);
    if (reply.endsTransaction_) {
        endTransaction(false);
    }
    return reply;
}

TdsReply TdsServer::answerRequest(int type, const std::string& body) {
    TdsReply reply;
    switch (type) {
    case PreLogin:
        reply.bytes_ = preLoginAnswer;
        return reply;
    case Login7:
        return login_ == Login::Accept ? reply.acceptLogin()
                                       : reply.error(18456, "Login failed for user 'till'.", 14)
                                             .done(-1, false, true)
                                             .cut();
    case Transaction:
        return answerTransaction(body);
    case SqlBatch:
        return answerBatch(batchText(body));
    case Attention:
        return reply.acknowledgeCancel();
    default: {
        const std::lock_guard lock(mutex_);
        lastCall_ = body;
        return reply.done();
    }
    }
}

void TdsServer::serveClient(int client) {
    while (login_ != Login::CutAtOnce) {
        const auto request = readable(client, bell_) ? readRequest(client) : std::nullopt;
        if (!request) {
            return;
        }
        if (login_ == Login::NeverAnswer) {
            continue;
        }
        const TdsReply reply = answerRequest(request->type, request->body);
        const bool whole = !reply.cut_ && !reply.stalls_;
        send(client, reply.bytes_, whole || login_ == Login::Refuse);
        if (reply.cut_) {
            return;
        }
    }
}

} // namespace velcro::test
