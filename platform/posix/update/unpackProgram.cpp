// SPDX-License-Identifier: MIT
#include "platform/posix/update/unpackProgram.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/files/paths.h"
#include "platform/posix/update/ArchiveLibrary.h"

namespace vell {

namespace {

// Many times what a program takes; a signed archive has no more, and a damaged one shall not fill the disk.
constexpr std::int64_t mostBytes = 1LL << 30;
constexpr std::size_t mostFiles = 10'000;
constexpr std::size_t blockSize = 64UL * 1024;

[[noreturn]] void refuse(const std::string& why) {
    throw RunTimeError(error_number::BadFileName, "The archive is no program: " + why);
}

// An archive, entry after entry.
class ArchiveReader {
  public:
    explicit ArchiveReader(const FilePlace& place) : reader_(library_.ReadNew(), library_.ReadFree) {
        if (!reader_) throw RunTimeError(error_number::OutOfMemory, "Out of memory");
        mustBeOk(library_.ReadSupportFilterGzip(reader_.get()));
        mustBeOk(library_.ReadSupportFormatTar(reader_.get()));
        mustBeOk(library_.ReadOpenFilename(reader_.get(), place.System.c_str(), blockSize));
    }

    // False at the end.
    [[nodiscard]] bool next() {
        const int result = library_.ReadNextHeader(reader_.get(), &entry_);
        if (result == ARCHIVE_EOF) return false;
        mustBeOk(result);
        return true;
    }
    [[nodiscard]] std::string name() const {
        const char* const name = library_.EntryPathname(entry_);
        return name == nullptr ? std::string() : name;
    }
    // A second name of a file is said to be a file, too.
    [[nodiscard]] bool is(mode_t type) const {
        return library_.EntryHardlink(entry_) == nullptr && library_.EntryFiletype(entry_) == type;
    }
    [[nodiscard]] bool isProgram() const { return (library_.EntryPerm(entry_) & S_IXUSR) != 0; }
    // The next bytes of the entry; none at its end.
    [[nodiscard]] std::string_view read() {
        const la_ssize_t size = library_.ReadData(reader_.get(), block_.data(), block_.size());
        if (size < 0) mustBeOk(static_cast<int>(size));
        return {block_.data(), static_cast<std::size_t>(size)};
    }

  private:
    void mustBeOk(int result) const {
        if (result == ARCHIVE_OK) return;
        const char* const why = library_.ErrorString(reader_.get());
        refuse(why == nullptr ? "it is damaged" : why);
    }

    ArchiveLibrary library_;
    std::unique_ptr<archive, decltype(&::archive_read_free)> reader_;
    archive_entry* entry_ = nullptr;
    std::string block_ = std::string(blockSize, '\0');
};

// Without the folder around all; empty for that folder itself.
std::string pathOf(const std::string& name, std::string_view top) {
    std::string_view path = name;
    if (path.ends_with('/')) path.remove_suffix(1);
    if (path == top) return {};
    if (!path.starts_with(std::string(top) + '/')) refuse("'" + std::string(path) + "' lies outside its folder");
    path.remove_prefix(top.size() + 1);
    if (!isPlainPath(path)) refuse("'" + std::string(path) + "' is no usual name");
    return std::string(path);
}

void unpackFile(ArchiveReader& reader, const std::string& target, std::int64_t& room) {
    const FilePlace place{codePageFromUtf8Lossy(target), target};
    FileHandle file(place, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, reader.isProgram() ? 0755 : 0644);
    for (std::string_view bytes = reader.read(); !bytes.empty(); bytes = reader.read()) {
        room -= static_cast<std::int64_t>(bytes.size());
        if (room < 0) refuse("it is too large");
        file.writeAll(bytes, place);
    }
    file.flushToDisk(place);
}

}  // namespace

bool isPlainPath(std::string_view path) {
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view("._-@+").find(c) != std::string_view::npos;
    };
    if (path.empty() || path.ends_with('/')) return false;
    return std::ranges::all_of(Split(path, "/"), [&](std::string_view part) {
        return !part.empty() && part != "." && part != ".." && std::ranges::all_of(part, isPlain);
    });
}

std::vector<std::string> unpackProgram(const FilePlace& archive, std::string_view top, const std::string& folder) {
    ArchiveReader reader(archive);
    std::vector<std::string> files;
    std::int64_t room = mostBytes;
    while (reader.next()) {
        const std::string path = pathOf(reader.name(), top);
        if (reader.is(AE_IFDIR)) continue;
        if (!reader.is(AE_IFREG) || path.empty()) refuse("'" + path + "' is neither file nor folder");
        if (files.size() == mostFiles) refuse("it has too many files");
        std::filesystem::create_directories(std::filesystem::path(joined(folder, path)).parent_path());
        unpackFile(reader, joined(folder, path), room);
        files.push_back(path);
    }
    return files;
}

}  // namespace vell
