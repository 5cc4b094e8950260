// The certificate by which a server knows one of our rooms, made at first use and kept with its key in a file of mode
// 0600. A room needs one of its own: a server throws out the first of two connections with one certificate. One that
// can't be kept holds for as long as the program runs. Held by the rooms, used by their connections.
#pragma once

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <filesystem>
#include <memory>

namespace orvelle::mumble {

class OwnCertificate {
public:
    // A file that holds none is kept beside the new one under another name.
    explicit OwnCertificate(const std::filesystem::path& file);

    // Null where the library has no memory.
    X509* Certificate() const { return certificate.get(); }
    EVP_PKEY* Key() const { return key.get(); }

private:
    struct Free {
        void operator()(X509* gone) const { X509_free(gone); }
        void operator()(EVP_PKEY* gone) const { EVP_PKEY_free(gone); }
    };

    void Make();

    std::unique_ptr<EVP_PKEY, Free> key;
    std::unique_ptr<X509, Free> certificate;
};

}  // namespace orvelle::mumble
