#include "platform/http/Client.h"

#include "platform/http/RequestText.h"
#include "platform/http/Waiting.h"

#include <curl/curl.h>

#include <array>
#include <string_view>

namespace velcro::http {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::duration_cast;
using std::chrono::milliseconds;
using Kind = HttpError::Kind;

// Most answers are there before anybody could see that there was a wait.
constexpr milliseconds quiet{40};
constexpr int betweenLooks = 20;  // milliseconds
constexpr int longestAnswer = 10; // times the longest silence
constexpr long mostRedirects = 5;

/// The connections that are open, for all clients.
class Connections
{
public:
    static CURLM* handle() {
        static const Connections connections;
        return connections.multi_;
    }

private:
    Connections() {
        curl_global_init(CURL_GLOBAL_DEFAULT);
        multi_ = curl_multi_init();
    }
    ~Connections() {
        curl_multi_cleanup(multi_);
        curl_global_cleanup();
    }
    Connections(const Connections&) = delete;
    Connections& operator=(const Connections&) = delete;

    CURLM* multi_;
};

struct FreeHandle
{
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

Kind kindOf(CURLcode code) {
    switch (code) {
    case CURLE_UNSUPPORTED_PROTOCOL: // what came has no status line
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_PARTIAL_FILE:
    case CURLE_TOO_MANY_REDIRECTS:
    case CURLE_BAD_CONTENT_ENCODING:
        return Kind::Protocol;
    case CURLE_FAILED_INIT:
    case CURLE_OUT_OF_MEMORY:
    case CURLE_WRITE_ERROR:
    case CURLE_BAD_FUNCTION_ARGUMENT:
        return Kind::Other;
    default:
        return Kind::Network;
    }
}

} // namespace

/// One request on its way, and what has come of its answer.
class Client::Transfer
{
public:
    Transfer()
        : multi_(Connections::handle())
        , easy_(curl_easy_init()) {}

    Answer perform(const Request& request) {
        prepare(request);
        curl_multi_add_handle(multi_, easy_.get());
        const CURLcode code = waitForEnd();
        curl_multi_remove_handle(multi_, easy_.get());
        long status = 0;
        curl_easy_getinfo(easy_.get(), CURLINFO_RESPONSE_CODE, &status);
        answer_.status = int(status);
        if (ownFailure_) {
            throw HttpError(ownFailure_->kind(), ownFailure_->what(), std::move(answer_));
        }
        if (code != CURLE_OK) {
            throw HttpError(kindOf(code),
                            reason_[0] != '\0' ? reason_.data() : curl_easy_strerror(code),
                            std::move(answer_));
        }
        return std::move(answer_);
    }

private:
    template <typename Value>
    void set(CURLoption option, Value value) {
        if (const auto code = curl_easy_setopt(easy_.get(), option, value); code != CURLE_OK) {
            throw HttpError(Kind::Other, curl_easy_strerror(code));
        }
    }

    void prepare(const Request& request) {
        request_ = &request;
        answer_ = {};
        received_ = 0;
        attempts_ = 0;
        ownFailure_.reset();
        reason_[0] = '\0';
        curl_easy_reset(easy_.get());
        set(CURLOPT_ERRORBUFFER, reason_.data());
        set(CURLOPT_NOSIGNAL, 1L);
        set(CURLOPT_PROXY, "");
        prepareLine(request);
        prepareHeaders(request);
        prepareTls(request.peer);
        set(CURLOPT_CONNECTTIMEOUT_MS, long(request.connectTimeOut.count()));
        set(CURLOPT_PREREQFUNCTION, &Transfer::beforeRequest);
        set(CURLOPT_PREREQDATA, this);
        set(CURLOPT_HEADERFUNCTION, &Transfer::takeHeader);
        set(CURLOPT_HEADERDATA, this);
        set(CURLOPT_WRITEFUNCTION, &Transfer::takeBody);
        set(CURLOPT_WRITEDATA, this);
    }
    void prepareLine(const Request& request) {
        set(CURLOPT_URL, addressOnTheWire(request.address).c_str());
        set(CURLOPT_PATH_AS_IS, 1L);
        set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
        if (request.method != "GET" || !request.body.empty()) {
            set(CURLOPT_POST, 1L);
            set(CURLOPT_POSTFIELDS, request.body.data());
            set(CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(request.body.size()));
        }
        set(CURLOPT_CUSTOMREQUEST, request.method.c_str());
        set(CURLOPT_FOLLOWLOCATION, request.followsRedirects ? 1L : 0L);
        set(CURLOPT_MAXREDIRS, mostRedirects);
    }
    void prepareHeaders(const Request& request) {
        headers_.reset();
        for (const auto& line : headerLines(request.headers)) {
            auto* longer = curl_slist_append(headers_.get(), line.c_str());
            headers_.release();
            headers_.reset(longer);
        }
        set(CURLOPT_HTTPHEADER, headers_.get());
        if (request.basic) {
            set(CURLOPT_HTTPAUTH, long(CURLAUTH_BASIC));
            set(CURLOPT_USERNAME, request.basic->user.c_str());
            set(CURLOPT_PASSWORD, request.basic->password.c_str());
        }
    }
    void prepareTls(Peer peer) {
        set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2) | long(CURL_SSLVERSION_MAX_TLSv1_2));
        set(CURLOPT_SSL_VERIFYPEER, peer == Peer::Verified ? 1L : 0L);
        set(CURLOPT_SSL_VERIFYHOST, peer == Peer::Verified ? 2L : 0L);
        set(CURLOPT_SSL_OPTIONS, long(CURLSSLOPT_NATIVE_CA));
    }

    CURLcode waitForEnd() {
        const WaitHook hook = waitHook();
        const auto began = Clock::now();
        bool told = false;
        int running = 1;
        while (curl_multi_perform(multi_, &running) == CURLM_OK && running > 0) {
            const auto waited = duration_cast<milliseconds>(Clock::now() - began);
            if (hook.goOn && waited >= quiet) {
                told = true;
                if (!hook.goOn(waited)) {
                    fail(Kind::Other, "Waiting for the answer was given up.");
                }
            }
            lookAtTheClock(waited);
            if (ownFailure_) {
                break;
            }
            curl_multi_poll(multi_, nullptr, 0, betweenLooks, nullptr);
        }
        if (told && hook.over) {
            hook.over();
        }
        int left = 0;
        const auto* message = curl_multi_info_read(multi_, &left);
        return message != nullptr ? message->data.result : CURLE_RECV_ERROR;
    }
    void lookAtTheClock(milliseconds waited) {
        const milliseconds longest = request_->readTimeOut;
        if (attempts_ > 0 && Clock::now() - lastSign_ > longest) {
            fail(Kind::Network,
                 "The server was silent for " + std::to_string(longest.count()) + " ms.");
        } else if (waited > request_->connectTimeOut + longest * longestAnswer) {
            fail(Kind::Network, "The answer did not come to its end.");
        }
    }
    void fail(Kind kind, const std::string& text) {
        if (!ownFailure_) {
            ownFailure_.emplace(kind, text);
        }
    }

    /// Whether the answer is still small enough.
    bool grows(std::size_t bytes) {
        lastSign_ = Clock::now();
        received_ += bytes;
        if (received_ > request_->largestAnswer) {
            fail(Kind::Other, "The answer is larger than " +
                                  std::to_string(request_->largestAnswer) + " bytes.");
        }
        return !ownFailure_;
    }

    /// An open connection may turn out to be lost, and libcurl would then send the request again:
    /// but it may have come to the server, and a message must not be sent twice.
    static int beforeRequest(void* self, char* /*remote*/, char* /*local*/, int /*remotePort*/,
                             int /*localPort*/) {
        auto& transfer = *static_cast<Transfer*>(self);
        long redirects = 0;
        curl_easy_getinfo(transfer.easy_.get(), CURLINFO_REDIRECT_COUNT, &redirects);
        transfer.lastSign_ = Clock::now();
        if (transfer.attempts_++ > redirects) {
            transfer.fail(Kind::Network, "The connection was lost before an answer came.");
            return CURL_PREREQFUNC_ABORT;
        }
        return CURL_PREREQFUNC_OK;
    }
    static std::size_t takeHeader(const char* bytes, std::size_t size, std::size_t count,
                                  void* self) {
        auto& transfer = *static_cast<Transfer*>(self);
        const std::string_view line(bytes, size * count);
        if (line.starts_with("HTTP/")) { // also of each redirect on the way
            transfer.answer_ = Answer{0, reasonOf(line), {}};
        }
        return transfer.grows(line.size()) ? line.size() : 0;
    }
    static std::size_t takeBody(const char* bytes, std::size_t size, std::size_t count,
                                void* self) {
        auto& transfer = *static_cast<Transfer*>(self);
        const std::string_view part(bytes, size * count);
        if (!transfer.grows(part.size())) {
            return 0;
        }
        transfer.answer_.body += part;
        return part.size();
    }

    CURLM* multi_;
    std::unique_ptr<CURL, FreeHandle> easy_;
    std::unique_ptr<curl_slist, FreeHandle> headers_;
    std::array<char, CURL_ERROR_SIZE> reason_{};
    const Request* request_ = nullptr;
    Answer answer_;
    std::size_t received_ = 0;
    long attempts_ = 0;
    Clock::time_point lastSign_; // of the server, from the request on
    std::optional<HttpError> ownFailure_;
};

Client::Client()
    : transfer_(std::make_unique<Transfer>()) {}

Client::~Client() = default;

Answer Client::send(const Request& request) {
    return transfer_->perform(request);
}

} // namespace velcro::http
