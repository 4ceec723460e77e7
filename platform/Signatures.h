// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Tells who has made some bytes, and whether a file is the one that was meant. All texts are bytes.
class Signatures {
  public:
    virtual ~Signatures() = default;

    // Of a file's content, as 64 lower-case hexadecimal digits. Raises RunTimeError when the file cannot be read.
    [[nodiscard]] virtual std::string Sha256OfFile(std::string_view path) const = 0;
    // True when the owner of the key has signed exactly these bytes: ECDSA on the curve P-256 over their SHA-256. The
    // signature is DER, and so is the key (SubjectPublicKeyInfo); false, too, when either is anything else.
    [[nodiscard]] virtual bool IsSigned(std::string_view bytes, std::string_view signature,
                                        std::string_view publicKey) const = 0;
};

}  // namespace vell
