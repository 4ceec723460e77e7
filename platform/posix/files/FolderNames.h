// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace vell {

// Finds files by names that differ in case from those on disk. Remembers what the folders hold, so that a run that
// writes thousands of files neither reads its folder nor asks for it every time. Paths are the system's, see paths.h.
class FolderNames {
  public:
    // What is meant by `wanted`: itself when it exists, else what differs from it in case only, else itself in the
    // folder that is meant.
    [[nodiscard]] std::string realPath(const std::string& wanted);
    // The same for a name that is known not to exist as it stands.
    [[nodiscard]] std::string otherCaseOf(const std::string& wanted);

    // Our own changes, told after they were made.
    void added(const std::string& path);
    void removed(const std::string& path);
    void moved(const std::string& from, const std::string& to);  // in the same folder

  private:
    struct Folder {
        std::int64_t Modified = 0;  // nanoseconds of the system's clock, as the other
        std::int64_t ReadAt = 0;
        bool IsOurWork = false;   // a change of ours has given it another time than the one it was read with
        bool HasDoubles = false;  // two names that differ in case only
        std::unordered_map<std::string, std::string> Names;  // by the capitals of the name in code page 1253

        [[nodiscard]] bool isOurs(std::int64_t now) const;
        [[nodiscard]] bool isUnchanged(std::int64_t modified) const;
        [[nodiscard]] const std::string* find(const std::string& name) const;
        void add(const std::string& name);
        void remove(const std::string& name);
    };

    // Null when it cannot be taken as it was read without a look at it.
    [[nodiscard]] const Folder* ourFolder(const std::string& folder) const;
    [[nodiscard]] const Folder* namesOf(const std::string& folder);
    template <class Note>
    void changed(const std::string& path, Note&& note);

    std::unordered_map<std::string, Folder> folders_;
};

}  // namespace vell
