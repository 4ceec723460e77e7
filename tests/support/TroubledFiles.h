// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/posix/files/PosixFiles.h"

namespace vell::test {

// The real files, but what has `Trouble` in its path can be neither written nor deleted.
class TroubledFiles : public PosixFiles {
  public:
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        PosixFiles::WriteWhole(checked(path), bytes, durability);
    }
    void ReplaceByte(std::string_view path, std::int64_t offset, char byte) override {
        PosixFiles::ReplaceByte(checked(path), offset, byte);
    }
    [[nodiscard]] std::unique_ptr<PartFile> OpenPart(std::string_view path) override {
        return PosixFiles::OpenPart(checked(path));
    }
    void DeleteFile(std::string_view path) override { PosixFiles::DeleteFile(checked(path)); }
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override {
        return Free ? Free() : PosixFiles::FreeBytes(path);
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
