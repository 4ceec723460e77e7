// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Date.h"
#include "config/SettingsTable.h"

namespace vell {

// What can help with what a message tells.
enum class MessageAction { TryAgain, ShowFailedFiles, Setup };

// Something that people are told and that stays until they have seen it. Texts in code page 1253.
struct Message {
    enum class Kind { Note, Failure };
    // What it is about. Of the last run there is one at most.
    enum class Topic { General, Run };

    Kind Weight = Kind::Note;
    Topic About = Topic::General;
    std::string Text{};                     // one or more lines
    std::vector<std::string> Details{};     // a line each, for a front-end that has no list of its own for them
    std::vector<MessageAction> Actions{};   // the most helpful one first
    std::optional<SettingField> Setting{};  // where Setup is to begin, for what it is that it can help with
    LocalTime When{};
};

}  // namespace vell
