// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vell {

// How far the replacement of a program's files has come: the file that whoever starts next goes on with. Without one
// nothing is under way.
struct UpdateState {
    enum class Phase {
        Moving,     // the old files are kept; the new ones are being moved in
        Installed,  // all new ones are in place, and none has come up yet
        Trying,     // a first one has been started
        Undoing,    // the old ones are being put back
        PutBack,    // they are; nobody has been told
    };
    Phase At = Phase::Moving;
    std::string Version;             // of the new ones
    std::vector<std::string> Files;  // of the new ones, in the order in which they are moved

    // Nothing when there is none. One that cannot be understood raises RunTimeError.
    [[nodiscard]] static std::optional<UpdateState> read(const std::string& file);
    // Replaces it, on the disk when this returns.
    void write(const std::string& file) const;
};

}  // namespace vell
