// SPDX-License-Identifier: MIT
#include "platform/posix/files/PosixOutputFile.h"

#include <utility>

namespace vell {

namespace {
constexpr std::size_t collectUpTo = 64U << 10;
}

PosixOutputFile::PosixOutputFile(FileHandle file, FilePlace place) : file_(std::move(file)), place_(std::move(place)) {}

PosixOutputFile::~PosixOutputFile() {
    try {
        Close();
    } catch (const RunTimeError&) {
        // Who did not call Close does not ask how it went; a short file shows by its length.
        return;
    }
}

void PosixOutputFile::Write(std::string_view bytes) {
    collected_ += bytes;
    if (collected_.size() >= collectUpTo) writeCollected();
}

void PosixOutputFile::Close() {
    if (!file_.isOpen()) return;
    auto file = std::move(file_);  // closed also when the write raises
    file.writeAll(std::exchange(collected_, {}), place_);
    file.close(place_);
}

void PosixOutputFile::writeCollected() {
    const auto bytes = std::exchange(collected_, {});
    file_.writeAll(bytes, place_);
}

}  // namespace vell
