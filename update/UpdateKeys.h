// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "update/UpdateManifest.h"

namespace vell {

class Files;
class Signatures;

// The keys whose manifests are believed: the one that the program was built with, and the one that this names in a
// manifest as the next. Nothing else is trusted: the manifest with the next key is kept as it came, and its signature
// is looked at each time.
class UpdateKeys {
  public:
    // `key` is DER, empty for a build without one; `folder` keeps the manifest, backslash at its end.
    UpdateKeys(std::string key, std::string folder, Files& files, const Signatures& signatures);

    [[nodiscard]] bool isNone() const { return key_.empty(); }
    [[nodiscard]] bool hasSigned(const UpdateManifest& manifest) const;
    // Remembers the next key that a signed manifest names. Raises RunTimeError when it cannot be kept.
    void learn(const UpdateManifest& manifest);

  private:
    [[nodiscard]] bool hasSigned(const UpdateManifest& manifest, const std::string& key) const;
    [[nodiscard]] std::string nextKey() const;

    std::string key_;
    std::string kept_;  // the path of the manifest
    Files& files_;
    const Signatures& signatures_;
};

}  // namespace vell
