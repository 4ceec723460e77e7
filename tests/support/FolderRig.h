// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/SystemTypes.h"
#include "tests/support/TempFolder.h"

namespace vell::test {

// The system's files in a folder of the test's own.
struct FolderRig {
    [[nodiscard]] std::string at(std::string_view name) const { return folder_.text() + "\\" + std::string(name); }
    [[nodiscard]] std::size_t entriesOnDisk() const {
        using std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(directory_iterator(folder_.path()), directory_iterator()));
    }
    [[nodiscard]] std::vector<std::string> names(std::string_view pattern, Files::Kind kind = Files::Kind::Files) {
        std::vector<std::string> found;
        for (const auto& entry : files_.Enumerate(folder_.text(), pattern, kind))
            found.push_back(entry.Name);
        return found;
    }
    template <class Body>
    static RunTimeError errorOf(Body&& body) {
        try {
            body();
        } catch (const RunTimeError& error) {
            return error;
        }
        ADD_FAILURE() << "no error was raised";
        return {0, ""};
    }

    TempFolder folder_;
    SystemFiles files_;
};

}  // namespace vell::test
