#include "adapters/mumble/OwnCertificate.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/rand.h>

#include <cstdint>
#include <string>
#include <system_error>

#include "adapters/shared/PrivateFile.h"

namespace orvelle::mumble {

namespace {

constexpr std::size_t LongestFile = 64 * 1024;
constexpr int DaysGood = 7300;  // whoever is registered by it stays so
constexpr const char* Subject = "Voice room";

struct FreeBio {
    void operator()(BIO* gone) const { BIO_free(gone); }
};
using Bio = std::unique_ptr<BIO, FreeBio>;

// Both as PEM, the key first.
std::string Write(EVP_PKEY* key, X509* certificate) {
    const Bio memory(BIO_new(BIO_s_mem()));
    if (!memory || PEM_write_bio_PrivateKey(memory.get(), key, nullptr, nullptr, 0, nullptr, nullptr) != 1 ||
        PEM_write_bio_X509(memory.get(), certificate) != 1)
        return "";
    char* text = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &text);
    return {text, static_cast<std::size_t>(size)};
}

}  // namespace

OwnCertificate::OwnCertificate(const std::filesystem::path& file) {
    const PrivateText kept = ReadPrivateFile(file, LongestFile);
    if (kept.Text) {
        const Bio memory(BIO_new_mem_buf(kept.Text->data(), static_cast<int>(kept.Text->size())));
        if (memory) {
            key.reset(PEM_read_bio_PrivateKey(memory.get(), nullptr, nullptr, nullptr));
            certificate.reset(PEM_read_bio_X509(memory.get(), nullptr, nullptr, nullptr));
        }
        if (key && certificate && X509_check_private_key(certificate.get(), key.get()) == 1) return;
    }
    if (kept.Text || !kept.Reason.empty()) {
        std::error_code error;
        std::filesystem::rename(file, file.string() + ".damaged", error);
    }
    Make();
    if (key && certificate) WritePrivateFile(file, Write(key.get(), certificate.get()));
}

void OwnCertificate::Make() {
    key.reset(EVP_EC_gen("P-256"));
    certificate.reset(X509_new());
    std::int64_t serial = 0;
    if (!key || !certificate || RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial) != 1)
        return certificate.reset();
    X509* const made = certificate.get();
    X509_set_version(made, X509_VERSION_3);
    ASN1_INTEGER_set_int64(X509_get_serialNumber(made), serial & INT64_MAX);
    X509_gmtime_adj(X509_getm_notBefore(made), 0);
    X509_time_adj_ex(X509_getm_notAfter(made), DaysGood, 0, nullptr);
    X509_NAME* const name = X509_get_subject_name(made);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>(Subject), -1, -1, 0);
    X509_set_issuer_name(made, name);
    X509_set_pubkey(made, key.get());
    if (X509_sign(made, key.get(), EVP_sha256()) == 0) certificate.reset();
}

}  // namespace orvelle::mumble
