// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Signatures.h"

namespace vell {

class Files;

class OpenSslSignatures : public Signatures {
  public:
    explicit OpenSslSignatures(const Files& files) : files_(files) {}

    [[nodiscard]] std::string Sha256OfFile(std::string_view path) const override;
    [[nodiscard]] bool IsSigned(std::string_view bytes, std::string_view signature,
                                std::string_view publicKey) const override;

  private:
    const Files& files_;
};

}  // namespace vell
