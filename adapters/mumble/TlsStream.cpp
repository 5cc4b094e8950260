#include "adapters/mumble/TlsStream.h"

#include <arpa/inet.h>
#include <openssl/bio.h>
#include <openssl/err.h>

namespace orvelle::mumble {

namespace {

bool IsAddress(const std::string& host) {
    in6_addr bytes{};
    return inet_pton(AF_INET, host.c_str(), &bytes) == 1 || inet_pton(AF_INET6, host.c_str(), &bytes) == 1;
}

}  // namespace

TlsStream::TlsStream(const OwnCertificate& certificate, const std::string& host)
    : context(SSL_CTX_new(TLS_client_method())) {
    if (!context) return;
    SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION);
    SSL_CTX_set_mode(context.get(), SSL_MODE_RELEASE_BUFFERS);
    SSL_CTX_set_verify(context.get(), SSL_VERIFY_NONE, nullptr);
    if (certificate.Certificate()) {
        SSL_CTX_use_certificate(context.get(), certificate.Certificate());
        SSL_CTX_use_PrivateKey(context.get(), certificate.Key());
    }
    stream.reset(SSL_new(context.get()));
    BIO* const incoming = BIO_new(BIO_s_mem());
    BIO* const outgoing = BIO_new(BIO_s_mem());
    if (!stream || !incoming || !outgoing) {
        BIO_free(incoming);
        BIO_free(outgoing);
        return;
    }
    SSL_set_bio(stream.get(), incoming, outgoing);
    if (!IsAddress(host)) SSL_set_tlsext_host_name(stream.get(), host.c_str());
    SSL_set_connect_state(stream.get());
    state = State::Greeting;
    Greet();
}

void TlsStream::Feed(std::span<const std::uint8_t> bytes) {
    if (state == State::Failed || state == State::Ended) return;
    BIO_write(SSL_get_rbio(stream.get()), bytes.data(), static_cast<int>(bytes.size()));
    if (state == State::Greeting) Greet();
}

std::span<const std::uint8_t> TlsStream::Take() {
    if (state != State::Open) return {};
    ERR_clear_error();
    const int count = SSL_read(stream.get(), plain.data(), static_cast<int>(plain.size()));
    if (count > 0) return {plain.data(), static_cast<std::size_t>(count)};
    Note(count);
    return {};
}

void TlsStream::Write(std::string_view bytes) {
    if (state != State::Open || bytes.empty()) return;
    ERR_clear_error();
    // Memory takes all of it at once.
    if (const int result = SSL_write(stream.get(), bytes.data(), static_cast<int>(bytes.size())); result <= 0)
        Note(result);
}

void TlsStream::End() {
    if (state == State::Open) SSL_shutdown(stream.get());
}

std::string TlsStream::TakeOutgoing() {
    if (!stream) return "";
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(SSL_get_wbio(stream.get()), &bytes);
    std::string taken(bytes, static_cast<std::size_t>(size));
    BIO_reset(SSL_get_wbio(stream.get()));
    return taken;
}

std::string TlsStream::Fingerprint() const {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
    unsigned size = 0;
    const X509* const certificate = stream ? SSL_get0_peer_certificate(stream.get()) : nullptr;
    if (!certificate || X509_digest(certificate, EVP_sha256(), hash.data(), &size) != 1) return "";
    std::string text;
    for (const unsigned char byte : std::span(hash).first(size)) {
        if (!text.empty()) text += ':';
        text += Digits[byte >> 4];
        text += Digits[byte & 0xF];
    }
    return text;
}

void TlsStream::Greet() {
    ERR_clear_error();
    const int result = SSL_do_handshake(stream.get());
    if (result == 1)
        state = State::Open;
    else
        Note(result);
}

void TlsStream::Note(int result) {
    switch (SSL_get_error(stream.get(), result)) {
        case SSL_ERROR_WANT_READ:
        case SSL_ERROR_WANT_WRITE:
            break;
        case SSL_ERROR_ZERO_RETURN:
            state = State::Ended;
            break;
        default:
            state = State::Failed;
    }
}

}  // namespace orvelle::mumble
