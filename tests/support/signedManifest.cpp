// SPDX-License-Identifier: MIT
#include "tests/support/signedManifest.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include <openssl/evp.h>
#include <openssl/pem.h>

namespace vell::test {

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;

Key demoKey() {
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(VELL_DEMO_KEY, "r"), &std::fclose);
    Key key(file ? PEM_read_PrivateKey(file.get(), nullptr, nullptr, nullptr) : nullptr, &EVP_PKEY_free);
    if (!key) throw std::runtime_error("no key in " VELL_DEMO_KEY);
    return key;
}

std::string base64(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()), reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    text.pop_back();
    return text;
}

}  // namespace

std::string signatureOf(std::string_view bytes, SignedBy who) {
    const Key key = who == SignedBy::Demo ? demoKey() : Key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> digest(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    std::array<unsigned char, 100> signature{};
    std::size_t size = signature.size();
    const auto* const data = reinterpret_cast<const unsigned char*>(bytes.data());
    if (EVP_DigestSignInit(digest.get(), nullptr, EVP_sha256(), nullptr, key.get()) != 1 ||
        EVP_DigestSign(digest.get(), signature.data(), &size, data, bytes.size()) != 1)
        throw std::runtime_error("cannot sign");
    return base64({reinterpret_cast<char*>(signature.data()), size});
}

std::string sha256Of(std::string_view bytes) {
    std::array<unsigned char, 32> digest{};
    EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr);
    std::string text;
    for (const unsigned char byte : digest) {
        std::array<char, 3> digits{};
        std::snprintf(digits.data(), digits.size(), "%02x", byte);
        text += digits.data();
    }
    return text;
}

std::string signedManifest(std::string_view archive, const std::map<std::string, std::string>& other, SignedBy who) {
    std::map<std::string, std::string> values{{"version", "2.1.38"},
                                              {"platform", "linux-x86_64"},
                                              {"file", "vell-2.1.38-linux-x86_64.tar.gz"},
                                              {"size", std::to_string(archive.size())},
                                              {"sha256", sha256Of(archive)},
                                              {"date", "06/03/2004"},
                                              {"minimum", "2.0.0"},
                                              {"notes", "Finds more."}};
    for (const auto& [key, value] : other)
        values[key] = value;
    std::string text = "format=1\n";
    for (const auto& [key, value] : values)
        text.append(key).append("=").append(value).append("\n");
    return text + "signature=" + signatureOf(text, who) + "\n";
}

}  // namespace vell::test
