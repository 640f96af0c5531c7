#include "support/HttpServer.h"

#include <httplib.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <stdexcept>

namespace velcro::test {

namespace {

struct Free
{
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
    void operator()(X509* certificate) const { X509_free(certificate); }
};

/// A key and a certificate of its own making, valid for an hour.
bool makeCertificate(SSL_CTX& context) {
    const std::unique_ptr<EVP_PKEY, Free> key(EVP_EC_gen("P-256"));
    const std::unique_ptr<X509, Free> certificate(X509_new());
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -60);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_set_pubkey(certificate.get(), key.get());
    auto* name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>("127.0.0.1"), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    return X509_sign(certificate.get(), key.get(), EVP_sha256()) > 0 &&
           SSL_CTX_use_certificate(&context, certificate.get()) == 1 &&
           SSL_CTX_use_PrivateKey(&context, key.get()) == 1;
}

std::unique_ptr<httplib::Server> makeServer(HttpServer::Security security) {
    if (security == HttpServer::Security::Plain) {
        return std::make_unique<httplib::Server>();
    }
    return std::make_unique<httplib::SSLServer>([security](SSL_CTX& context) {
        if (security == HttpServer::Security::Tls10) {
            SSL_CTX_set_security_level(&context, 0); // else it would not even start
            SSL_CTX_set_min_proto_version(&context, TLS1_VERSION);
            SSL_CTX_set_max_proto_version(&context, TLS1_VERSION);
        }
        return makeCertificate(context);
    });
}

HttpServer::Received takeRequest(const httplib::Request& request) {
    HttpServer::Received received{request.method, request.target, request.body, {}};
    for (const auto& [name, value] : request.headers) {
        const bool ofTheServer = name.starts_with("REMOTE_") || name.starts_with("LOCAL_");
        if (!ofTheServer) {
            received.headers[name] = value;
        }
    }
    return received;
}

} // namespace

HttpServer::HttpServer(Answer answer, Security security)
    : scheme_(security == Security::Plain ? "http" : "https")
    , server_(makeServer(security)) {
    const auto serve = [this, answer = std::move(answer)](const httplib::Request& request,
                                                          httplib::Response& response) {
        const auto taken = takeRequest(request);
        {
            const std::lock_guard lock(mutex_);
            received_.push_back(taken);
        }
        const Reply reply = answer(taken);
        response.status = reply.status;
        response.set_content(reply.body, "application/json");
        if (!reply.location.empty()) {
            response.set_header("Location", reply.location);
        }
    };
    constexpr auto anything = R"([\s\S]*)";
    server_->Get(anything, serve);
    server_->Post(anything, serve);
    server_->set_keep_alive_max_count(1); // a stop waits for connections that are kept
    server_->set_tcp_nodelay(true);
    port_ = server_->bind_to_any_port("127.0.0.1");
    if (port_ < 0) {
        throw std::runtime_error("no server on loopback");
    }
    thread_ = std::thread([this] { server_->listen_after_bind(); });
}

HttpServer::~HttpServer() {
    while (!server_->is_running()) { // a stop before the start would be lost
        std::this_thread::yield();
    }
    server_->stop();
    thread_.join();
}

std::string HttpServer::address() const {
    return scheme_ + "://127.0.0.1:" + std::to_string(port_) + "/";
}

std::vector<HttpServer::Received> HttpServer::received() const {
    const std::lock_guard lock(mutex_);
    return received_;
}

std::vector<std::string> HttpServer::lines() const {
    std::vector<std::string> lines;
    for (const auto& request : received()) {
        lines.push_back(request.method + ' ' + request.target + ' ' + request.body);
    }
    return lines;
}

} // namespace velcro::test
