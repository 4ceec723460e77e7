// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "update/UpdateManifest.h"

namespace vell {

class Files;
class PartFile;
class Signatures;

// A folder that holds one version for each system: its manifest and its archive, of which the manifest comes last. The
// program's own, and the one that several computers share. What is not said to raise gives nothing instead of failing.
class UpdateFolder {
  public:
    UpdateFolder(std::string folder, std::string_view platform, Files& files, const Signatures& signatures);

    [[nodiscard]] const std::string& path() const { return folder_; }
    [[nodiscard]] std::string pathOf(const std::string& file) const { return folder_ + '\\' + file; }

    // The manifest that lies there, believed by nobody yet.
    [[nodiscard]] std::optional<UpdateManifest> manifest() const;
    // Is the archive there with the length that the manifest names?
    [[nodiscard]] bool hasFile(const UpdateManifest& manifest) const;
    // Is a file the archive that the manifest names, to the last byte? Raises when it cannot be read.
    [[nodiscard]] bool isArchive(const std::string& path, const UpdateManifest& manifest) const;

    // Where the archive arrives; null when another program brings one just now. Makes the folder. Raises.
    [[nodiscard]] std::unique_ptr<PartFile> openPart(const UpdateManifest& manifest);
    [[nodiscard]] std::string partPath(const UpdateManifest& manifest) const;
    // Puts an archive that has been checked in its place, its manifest beside it, and removes the one before. Raises.
    void take(PartFile& part, const UpdateManifest& manifest);
    // Removes all that lies there, of the program's own one.
    void clear();
    // Removes the folder itself where it is empty.
    void tidy();

  private:
    std::string folder_;
    std::string manifest_;  // its path
    Files& files_;
    const Signatures& signatures_;
};

}  // namespace vell
