// SPDX-License-Identifier: MIT
#include "update/UpdateKeys.h"

#include <utility>

#include "base/errors.h"
#include "platform/Files.h"
#include "platform/Signatures.h"

namespace vell {

UpdateKeys::UpdateKeys(std::string key, std::string folder, Files& files, const Signatures& signatures)
    : key_(std::move(key)), kept_(std::move(folder) + "vell.nextkey"), files_(files), signatures_(signatures) {}

bool UpdateKeys::hasSigned(const UpdateManifest& manifest, const std::string& key) const {
    return !key.empty() && signatures_.IsSigned(manifest.Signed, manifest.Signature, key);
}

bool UpdateKeys::hasSigned(const UpdateManifest& manifest) const {
    return hasSigned(manifest, key_) || hasSigned(manifest, nextKey());
}

std::string UpdateKeys::nextKey() const {
    const auto size = files_.FileSize(kept_);
    if (isNone() || !size || std::cmp_greater(*size, longestManifest)) return {};
    const ManifestText kept = readManifest(files_.ReadFile(kept_));
    const bool isBelieved = kept.What == ManifestText::Kind::Manifest && hasSigned(kept.Manifest, key_);
    return isBelieved ? kept.Manifest.NextKey : std::string();
}

void UpdateKeys::learn(const UpdateManifest& manifest) {
    if (manifest.NextKey.empty() || manifest.NextKey == key_ || !hasSigned(manifest, key_)) return;
    if (nextKey() != manifest.NextKey) files_.WriteWhole(kept_, manifest.Text, Durability::Flushed);
}

}  // namespace vell
