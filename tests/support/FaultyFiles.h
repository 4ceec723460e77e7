// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/SystemTypes.h"

namespace vell::test {

// The real files, of which one operation fails, or from one on every one that needs room; the operations of an open
// part count, too, those on the log do not. To try every place of a procedure at which the disk can fail, let n rise
// until nothing fails any more.
class FaultyFiles : public SystemFiles {
  public:
    enum class Fault { Once, FullFromThenOn };
    // 1 is the next operation; 0 for no failure any more.
    void failAt(int n, Fault fault = Fault::Once) { *disk_ = {n == 0 ? never : n, fault}; }
    // True when the failure has come.
    [[nodiscard]] bool hasFailed() const { return disk_->Left <= 0; }

    std::optional<std::int64_t> FileSize(std::string_view path) const override {
        disk_->count(Needs::Nothing);
        return SystemFiles::FileSize(path);
    }
    std::optional<FileStamp> Stamp(std::string_view path) const override {
        disk_->count(Needs::Nothing);
        return SystemFiles::Stamp(path);
    }
    std::vector<Entry> Enumerate(std::string_view folder, std::string_view pattern, Kind kind) const override {
        disk_->count(Needs::Nothing);
        return SystemFiles::Enumerate(folder, pattern, kind);
    }
    std::string ReadFile(std::string_view path) const override {
        disk_->count(Needs::Nothing);
        return SystemFiles::ReadFile(path);
    }
    std::string ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const override {
        disk_->count(Needs::Nothing);
        return SystemFiles::ReadPart(path, offset, most);
    }
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        disk_->count(Needs::Room);
        SystemFiles::WriteWhole(path, bytes, durability);
    }
    std::unique_ptr<PartFile> OpenPart(std::string_view path) override {
        disk_->count(Needs::Room);
        auto real = SystemFiles::OpenPart(path);
        return real ? std::make_unique<Part>(std::move(real), disk_) : nullptr;
    }
    void Flush(std::string_view folder) override {
        disk_->count(Needs::Room);
        SystemFiles::Flush(folder);
    }
    void MakePrivateFile(std::string_view path) override {
        if (!path.ends_with(".log")) disk_->count(Needs::Room);
        SystemFiles::MakePrivateFile(path);
    }
    void DeleteFile(std::string_view path) override {
        disk_->count(Needs::Nothing);
        SystemFiles::DeleteFile(path);
    }
    void MakeFolder(std::string_view path) override {
        disk_->count(Needs::Room);
        SystemFiles::MakeFolder(path);
    }
    void RemoveFolder(std::string_view path) override {
        disk_->count(Needs::Nothing);
        SystemFiles::RemoveFolder(path);
    }

  private:
    static constexpr int never = 1'000'000'000;
    enum class Needs { Room, Nothing };
    struct Disk {
        int Left = never;
        Fault Kind = Fault::Once;

        void count(Needs needs) {
            if (Kind == Fault::FullFromThenOn && needs == Needs::Nothing) return;
            --Left;
            if (Left == 0 || (Left < 0 && Kind == Fault::FullFromThenOn))
                throw RunTimeError(error_number::DiskFull, "Disk full");
        }
    };

    class Part : public PartFile {
      public:
        Part(std::unique_ptr<PartFile> real, std::shared_ptr<Disk> disk)
            : real_(std::move(real)), disk_(std::move(disk)) {}
        std::int64_t Length() const override { return real_->Length(); }
        std::string Beginning(std::size_t most) const override { return after(Needs::Nothing).Beginning(most); }
        void StartAt(std::int64_t offset) override { after(Needs::Nothing).StartAt(offset); }
        void Write(std::string_view bytes) override { after(Needs::Room).Write(bytes); }
        void Close() override { after(Needs::Room).Close(); }
        void Adopt(std::string_view path) override { after(Needs::Nothing).Adopt(path); }
        void MoveTo(std::string_view path) override { after(Needs::Room).MoveTo(path); }
        void Discard() override { after(Needs::Nothing).Discard(); }

      private:
        [[nodiscard]] PartFile& after(Needs needs) const {
            disk_->count(needs);
            return *real_;
        }

        std::unique_ptr<PartFile> real_;
        std::shared_ptr<Disk> disk_;
    };

    std::shared_ptr<Disk> disk_ = std::make_shared<Disk>();
};

}  // namespace vell::test
