// SPDX-License-Identifier: MIT
// What the service says of a newer version, or what lies in a folder that others can write to.
#include <string>

#include "base/Date.h"
#include "fuzz/fuzzing.h"
#include "update/UpdateManifest.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using vell::fuzz::must;
    const auto text = vell::fuzz::textOf(data, size);
    const vell::ManifestText read = vell::readManifest(text);
    must((read.What == vell::ManifestText::Kind::Unreadable) == !read.Fault.empty());
    if (read.What != vell::ManifestText::Kind::Manifest) return 0;

    const vell::UpdateManifest& manifest = read.Manifest;
    // What is believed is what was signed: every value stands before the signature, which is the last line.
    must(text.starts_with(manifest.Signed) && text.substr(manifest.Signed.size()).starts_with("signature="));
    must(text.find('\n', manifest.Signed.size()) >= text.size() - 1);
    must(manifest.Signed.find("version=" + manifest.Version.text()) != std::string::npos);
    must(manifest.Signed.find("file=" + manifest.File) != std::string::npos);
    must(!manifest.Signature.empty() && manifest.Text == text);
    // Such a name leads nowhere, and is no device.
    must(manifest.File.starts_with("vell-") && manifest.File.find_first_of("/\\: ") == std::string::npos);
    must(manifest.File.find("..") == std::string::npos);
    must(manifest.Size > 0 && manifest.Sha256.size() == 64);
    must(vell::Date::fromDayName(manifest.Date).has_value());
    must(manifest.Notes.find_first_of("\r\n") == std::string::npos);
    must(vell::fitnessOf(manifest, manifest.Version, manifest.Platform) == vell::Fitness::NotNewer);
    return 0;
}
