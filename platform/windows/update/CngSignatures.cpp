// SPDX-License-Identifier: MIT
#include "platform/windows/update/CngSignatures.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <bcrypt.h>

#include "base/errors.h"
#include "platform/Files.h"

namespace vell {

namespace {

constexpr std::size_t numberSize = 32;  // bytes of a coordinate, and of each number of a signature

struct AlgorithmEnd {
    void operator()(void* algorithm) const { BCryptCloseAlgorithmProvider(algorithm, 0); }
};
struct HashEnd {
    void operator()(void* hash) const { BCryptDestroyHash(hash); }
};
struct KeyEnd {
    void operator()(void* key) const { BCryptDestroyKey(key); }
};
using Algorithm = std::unique_ptr<void, AlgorithmEnd>;
using Hash = std::unique_ptr<void, HashEnd>;
using Key = std::unique_ptr<void, KeyEnd>;

void mustSucceed(NTSTATUS status) {
    if (!BCRYPT_SUCCESS(status))
        throw RunTimeError(error_number::DeviceError, "The system's cryptography does not work");
}

Algorithm algorithm(const wchar_t* name) {
    void* opened = nullptr;
    mustSucceed(BCryptOpenAlgorithmProvider(&opened, name, nullptr, 0));
    return Algorithm(opened);
}

// The system asks for bytes that it does not change.
unsigned char* bytesOf(std::string_view text) {
    return reinterpret_cast<unsigned char*>(const_cast<char*>(text.data()));
}

class Sha256 {
  public:
    Sha256() {
        void* made = nullptr;
        mustSucceed(BCryptCreateHash(algorithm_.get(), &made, nullptr, 0, nullptr, 0, 0));
        hash_.reset(made);
    }
    void add(std::string_view bytes) {
        mustSucceed(BCryptHashData(hash_.get(), bytesOf(bytes), static_cast<ULONG>(bytes.size()), 0));
    }
    [[nodiscard]] std::string value() {
        std::string digest(numberSize, '\0');
        mustSucceed(BCryptFinishHash(hash_.get(), bytesOf(digest), static_cast<ULONG>(digest.size()), 0));
        return digest;
    }

  private:
    Algorithm algorithm_ = algorithm(BCRYPT_SHA256_ALGORITHM);
    Hash hash_;
};

// The two coordinates: of a key on this curve all but them is the same in every DER form.
std::optional<std::string_view> pointOf(std::string_view der) {
    constexpr std::string_view head(
        "\x30\x59\x30\x13\x06\x07\x2a\x86\x48\xce\x3d\x02\x01\x06\x08\x2a\x86\x48\xce\x3d\x03\x01\x07\x03\x42\x00\x04",
        27);
    if (der.size() != head.size() + 2 * numberSize || !der.starts_with(head)) return std::nullopt;
    return der.substr(head.size());
}

// A number of a DER sequence, as long as the curve's are; takes it off.
std::optional<std::string> takeNumber(std::string_view& der) {
    if (der.size() < 3 || der[0] != '\x02') return std::nullopt;
    const auto size = static_cast<std::size_t>(static_cast<unsigned char>(der[1]));
    if (size == 0 || size > numberSize + 1 || der.size() < 2 + size) return std::nullopt;
    std::string_view digits = der.substr(2, size);
    der.remove_prefix(2 + size);
    const auto isHigh = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    if (isHigh(digits[0])) return std::nullopt;  // a negative one
    if (digits.size() > 1 && digits[0] == '\0') {
        if (!isHigh(digits[1])) return std::nullopt;  // one form for each number
        digits.remove_prefix(1);
    }
    if (digits.size() > numberSize) return std::nullopt;
    return std::string(numberSize - digits.size(), '\0').append(digits);
}

std::optional<std::string> numbersOf(std::string_view der) {
    if (der.size() < 2 || der[0] != '\x30' || static_cast<unsigned char>(der[1]) != der.size() - 2) return std::nullopt;
    der.remove_prefix(2);
    const auto first = takeNumber(der);
    const auto second = first ? takeNumber(der) : std::nullopt;
    if (!second || !der.empty()) return std::nullopt;
    return *first + *second;
}

}  // namespace

std::string CngSignatures::Sha256OfFile(std::string_view path) const {
    constexpr std::size_t step = 1U << 20;
    constexpr std::string_view digits = "0123456789abcdef";
    Sha256 digest;
    for (std::int64_t offset = 0;;) {
        const std::string piece = files_.ReadPart(path, offset, step);
        digest.add(piece);
        offset += static_cast<std::int64_t>(piece.size());
        if (piece.size() < step) break;
    }
    std::string text;
    for (const char c : digest.value()) {
        const auto byte = static_cast<unsigned char>(c);
        text.append({digits[byte / 16], digits[byte % 16]});
    }
    return text;
}

bool CngSignatures::IsSigned(std::string_view bytes, std::string_view signature, std::string_view publicKey) const {
    const auto point = pointOf(publicKey);
    const auto numbers = numbersOf(signature);
    if (!point || !numbers) return false;
    const BCRYPT_ECCKEY_BLOB head{BCRYPT_ECDSA_PUBLIC_P256_MAGIC, static_cast<ULONG>(numberSize)};
    std::string blob(reinterpret_cast<const char*>(&head), sizeof head);
    blob.append(*point);
    const Algorithm ecdsa = algorithm(BCRYPT_ECDSA_P256_ALGORITHM);
    void* imported = nullptr;
    if (!BCRYPT_SUCCESS(BCryptImportKeyPair(ecdsa.get(), nullptr, BCRYPT_ECCPUBLIC_BLOB, &imported, bytesOf(blob),
                                            static_cast<ULONG>(blob.size()), 0)))
        return false;
    const Key key(imported);
    Sha256 digest;
    digest.add(bytes);
    const std::string value = digest.value();
    return BCRYPT_SUCCESS(BCryptVerifySignature(key.get(), nullptr, bytesOf(value), static_cast<ULONG>(value.size()),
                                                bytesOf(*numbers), static_cast<ULONG>(numbers->size()), 0));
}

}  // namespace vell
