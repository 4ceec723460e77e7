// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vell::test {

// An empty folder of the test's own; it goes, with all that is in it, when the object goes.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    // As the program writes paths: no backslash at the end.
    [[nodiscard]] std::string text() const { return path_.string(); }

    void put(const std::string& name, std::string_view bytes) const;
    [[nodiscard]] std::string get(const std::string& name) const;
    [[nodiscard]] bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

  private:
    std::filesystem::path path_;
};

}  // namespace vell::test
