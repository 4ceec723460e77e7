// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "tests/support/FaultyFiles.h"

namespace vell::test {

// Files that can fail as FaultyFiles do, and what has `Trouble` in its path can be neither written nor deleted.
class TroubledFiles : public FaultyFiles {
  public:
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        FaultyFiles::WriteWhole(checked(path), bytes, durability);
    }
    [[nodiscard]] std::unique_ptr<PartFile> OpenPart(std::string_view path) override {
        return FaultyFiles::OpenPart(checked(path));
    }
    void DeleteFile(std::string_view path) override { FaultyFiles::DeleteFile(checked(path)); }
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override {
        return Free ? Free() : FaultyFiles::FreeBytes(path);
    }

    std::string Trouble;  // empty for none
    std::function<std::optional<std::uint64_t>()> Free;

  private:
    [[nodiscard]] std::string_view checked(std::string_view path) const {
        if (Trouble.empty() || path.find(Trouble) == std::string_view::npos) return path;
        throw RunTimeError(error_number::PermissionDenied, "Permission denied");
    }
};

}  // namespace vell::test
