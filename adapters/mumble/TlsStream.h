// Our end of a TLS connection as bytes in and bytes out; nothing here waits or knows a socket. The other end's
// certificate is vouched for by nobody: whoever uses the stream compares its fingerprint. Held by a server's
// connection.
#pragma once

#include <openssl/ssl.h>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "adapters/mumble/OwnCertificate.h"

namespace orvelle::mumble {

class TlsStream {
public:
    enum class State { Greeting, Open, Ended, Failed };

    // `host` is told to the server where it is a name.
    TlsStream(const OwnCertificate& certificate, const std::string& host);

    State Where() const { return state; }
    // What came from the other end, and what it means; empty for nothing more, good until the next call.
    void Feed(std::span<const std::uint8_t> bytes);
    std::span<const std::uint8_t> Take();
    // While open.
    void Write(std::string_view plain);
    // Says goodbye.
    void End();
    // What is to be sent to the other end by now; it is taken out.
    std::string TakeOutgoing();
    // SHA-256 of the other end's certificate, in hexadecimal digits; once open.
    std::string Fingerprint() const;

private:
    struct Free {
        void operator()(SSL_CTX* gone) const { SSL_CTX_free(gone); }
        void operator()(SSL* gone) const { SSL_free(gone); }
    };

    // What a call of the library came to.
    void Note(int result);
    void Greet();

    std::unique_ptr<SSL_CTX, Free> context;
    std::unique_ptr<SSL, Free> stream;
    State state = State::Failed;
    std::array<std::uint8_t, 16 * 1024> plain{};
};

}  // namespace orvelle::mumble
