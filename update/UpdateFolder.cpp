// SPDX-License-Identifier: MIT
#include "update/UpdateFolder.h"

#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "platform/Files.h"
#include "platform/Signatures.h"

namespace vell {

UpdateFolder::UpdateFolder(std::string folder, std::string_view platform, Files& files, const Signatures& signatures)
    : folder_(std::move(folder)),
      manifest_(pathOf(std::string(platform) + ".txt")),
      files_(files),
      signatures_(signatures) {}

std::optional<UpdateManifest> UpdateFolder::manifest() const try {
    const auto size = files_.FileSize(manifest_);
    if (!size || std::cmp_greater(*size, longestManifest)) return std::nullopt;
    ManifestText read = readManifest(files_.ReadFile(manifest_));
    if (read.What != ManifestText::Kind::Manifest) return std::nullopt;
    return std::move(read.Manifest);
} catch (const RunTimeError&) {
    return std::nullopt;
}

bool UpdateFolder::hasFile(const UpdateManifest& manifest) const try {
    return files_.FileSize(pathOf(manifest.File)) == manifest.Size;
} catch (const RunTimeError&) {
    return false;
}

bool UpdateFolder::isArchive(const std::string& path, const UpdateManifest& manifest) const {
    return files_.FileSize(path) == manifest.Size && signatures_.Sha256OfFile(path) == manifest.Sha256;
}

std::string UpdateFolder::partPath(const UpdateManifest& manifest) const {
    return pathOf('.' + manifest.File + ".part");
}

std::unique_ptr<PartFile> UpdateFolder::openPart(const UpdateManifest& manifest) {
    if (!files_.PathExists(folder_)) files_.MakeFolder(folder_);
    return files_.OpenPart(partPath(manifest));
}

void UpdateFolder::take(PartFile& part, const UpdateManifest& manifest) {
    const auto before = this->manifest();
    part.MoveTo(pathOf(manifest.File));
    files_.Flush(folder_);
    files_.WriteWhole(manifest_, manifest.Text, Durability::Flushed);
    if (before && !equalNoCase(before->File, manifest.File) && files_.PathExists(pathOf(before->File)))
        files_.DeleteFile(pathOf(before->File));
}

void UpdateFolder::clear() try {
    for (const Files::Entry& entry : files_.Enumerate(folder_, "*.*", Files::Kind::Files))
        files_.DeleteFile(pathOf(entry.Name));
    tidy();
} catch (const RunTimeError&) {
    return;  // what stays is checked before it is used
}

void UpdateFolder::tidy() try {
    if (files_.PathExists(folder_) && files_.Enumerate(folder_, "*.*", Files::Kind::Files).empty())
        files_.RemoveFolder(folder_);
} catch (const RunTimeError&) {
    return;  // an empty folder harms nobody
}

}  // namespace vell
