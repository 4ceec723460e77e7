// SPDX-License-Identifier: MIT
#include "platform/posix/update/UpdateState.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/files/WholeFile.h"
#include "platform/posix/update/unpackProgram.h"

namespace vell {

namespace {

constexpr std::array<std::pair<std::string_view, UpdateState::Phase>, 5> words{{
    {"moving", UpdateState::Phase::Moving},
    {"installed", UpdateState::Phase::Installed},
    {"trying", UpdateState::Phase::Trying},
    {"undoing", UpdateState::Phase::Undoing},
    {"put back", UpdateState::Phase::PutBack},
}};

FilePlace placeOf(const std::string& file) {
    return {codePageFromUtf8Lossy(file), file};
}

}  // namespace

std::optional<UpdateState> UpdateState::read(const std::string& file) {
    if (access(file.c_str(), F_OK) != 0) return std::nullopt;
    const FilePlace place = placeOf(file);
    const std::string text = FileHandle(place, O_RDONLY).readAll(place);
    const auto lines = Split(text, "\n");
    const auto phase =
        lines.size() < 3 ? words.end() : std::ranges::find(words, lines[0], &decltype(words)::value_type::first);
    UpdateState state;
    if (phase != words.end()) {
        state.At = phase->second;
        state.Version = lines[1];
        state.Files.assign(lines.begin() + 2, lines.end() - 1);  // the last line is ended, too
    }
    if (phase == words.end() || !std::ranges::all_of(state.Files, isPlainPath))
        throw RunTimeError(error_number::InvalidCall, "This file is damaged: " + place.Text);
    return state;
}

void UpdateState::write(const std::string& file) const {
    const auto* const word = std::ranges::find(words, At, &decltype(words)::value_type::second);
    std::string text = std::string(word->first) + '\n' + Version + '\n';
    for (const std::string& path : Files)
        text += path + '\n';
    const FilePlace place = placeOf(file);
    WholeFile whole(place);
    whole.write(text, Durability::Flushed);
    whole.takePlace(Durability::Flushed);
}

}  // namespace vell
