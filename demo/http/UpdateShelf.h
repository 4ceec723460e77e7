// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vell::demo {

// The newest version of the client for each system, from a folder as a release leaves it: PLATFORM.txt is the signed
// manifest, which names the archive beside it. An empty path is a shelf without anything.
class UpdateShelf {
  public:
    explicit UpdateShelf(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // To a form with the client's version and platform: the manifest, or that there is none.
    [[nodiscard]] std::string answer(std::string_view form) const;
    [[nodiscard]] std::optional<std::filesystem::path> file(std::string_view name) const;

  private:
    std::filesystem::path folder_;
};

}  // namespace vell::demo
