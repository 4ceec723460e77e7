// SPDX-License-Identifier: MIT
#include "platform/posix/update/OpenSslSignatures.h"

#include <array>
#include <cstdint>
#include <memory>

#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include "base/errors.h"
#include "platform/Files.h"

namespace vell {

namespace {

template <auto free>
struct Freed {
    template <class T>
    void operator()(T* object) const {
        free(object);
    }
};
using Digest = std::unique_ptr<EVP_MD_CTX, Freed<EVP_MD_CTX_free>>;
using Key = std::unique_ptr<EVP_PKEY, Freed<EVP_PKEY_free>>;

const unsigned char* bytesOf(std::string_view text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

Digest newDigest() {
    Digest digest(EVP_MD_CTX_new());
    if (!digest) throw RunTimeError(error_number::OutOfMemory, "Out of memory");
    return digest;
}

void mustSucceed(int result) {
    if (result != 1) throw RunTimeError(error_number::DeviceError, "The system's cryptography does not work");
}

// What the last call has left is nobody's business, and would be taken for the next one's.
struct NoErrorsLeft {
    ~NoErrorsLeft() { ERR_clear_error(); }
};

bool isP256(const EVP_PKEY* key) {
    std::array<char, 32> group{};
    std::size_t length = 0;
    return EVP_PKEY_is_a(key, "EC") == 1 && EVP_PKEY_get_group_name(key, group.data(), group.size(), &length) == 1 &&
           std::string_view(group.data(), length) == "prime256v1";
}

Key keyOf(std::string_view der) {
    const unsigned char* at = bytesOf(der);
    Key key(d2i_PUBKEY(nullptr, &at, static_cast<long>(der.size())));
    const bool isAll = at == bytesOf(der) + der.size();
    return key && isAll && isP256(key.get()) ? std::move(key) : nullptr;
}

}  // namespace

std::string OpenSslSignatures::Sha256OfFile(std::string_view path) const {
    constexpr std::size_t step = 1U << 20;
    constexpr std::string_view digits = "0123456789abcdef";
    const Digest digest = newDigest();
    mustSucceed(EVP_DigestInit_ex(digest.get(), EVP_sha256(), nullptr));
    for (std::int64_t offset = 0;;) {
        const std::string piece = files_.ReadPart(path, offset, step);
        mustSucceed(EVP_DigestUpdate(digest.get(), piece.data(), piece.size()));
        offset += static_cast<std::int64_t>(piece.size());
        if (piece.size() < step) break;
    }
    std::array<unsigned char, EVP_MAX_MD_SIZE> value{};
    unsigned int length = 0;
    mustSucceed(EVP_DigestFinal_ex(digest.get(), value.data(), &length));
    std::string text;
    for (unsigned int i = 0; i < length; ++i)
        text.append({digits[value.at(i) / 16], digits[value.at(i) % 16]});
    return text;
}

bool OpenSslSignatures::IsSigned(std::string_view bytes, std::string_view signature, std::string_view publicKey) const {
    const NoErrorsLeft after;
    const Key key = keyOf(publicKey);
    if (!key) return false;
    const Digest digest = newDigest();
    mustSucceed(EVP_DigestVerifyInit(digest.get(), nullptr, EVP_sha256(), nullptr, key.get()));
    return EVP_DigestVerify(digest.get(), bytesOf(signature), signature.size(), bytesOf(bytes), bytes.size()) == 1;
}

}  // namespace vell
