// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "update/ProgramVersion.h"

namespace vell {

// What a version of the program is, in its maker's signed words: lines "key=value", "format=1" first and the signature
// over all bytes before it last. Texts in code page 1253.
struct UpdateManifest {
    ProgramVersion Version;
    std::string Platform;
    std::string File;  // the archive's plain name
    std::int64_t Size = 0;
    std::string Sha256;                     // hexadecimal, lower case
    std::string Date;                       // dd/mm/yyyy
    std::optional<ProgramVersion> Minimum;  // no older program may take it
    std::string Notes;                      // one line
    std::string NextKey;                    // DER; the key that later versions are signed with; empty for no change

    std::string Text;       // all of it, as it came
    std::string Signed;     // what the signature is over
    std::string Signature;  // DER
};

// What the service answers when it is asked for a newer version, or a file holds.
struct ManifestText {
    enum class Kind { NoUpdate, Manifest, Unreadable };
    Kind What = Kind::Unreadable;
    UpdateManifest Manifest;
    std::string Fault;  // of an unreadable one, in words for the log
};
// Longer texts are no manifests.
inline constexpr std::size_t longestManifest = 64U * 1024;
[[nodiscard]] ManifestText readManifest(std::string_view text);

// Whether a program may become what a manifest describes.
enum class Fitness {
    Newer,         // yes
    NotNewer,      // it is this version, or an older one
    ForOthers,     // it is for another system
    StepsMissing,  // this program is too old to become it
};
[[nodiscard]] Fitness fitnessOf(const UpdateManifest& manifest, const ProgramVersion& running,
                                std::string_view platform);

}  // namespace vell
