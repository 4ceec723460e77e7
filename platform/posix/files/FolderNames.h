// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

namespace vell {

// Finds files by names that differ in case from those on disk. Remembers what the folders hold, so that a run that
// writes thousands of files reads its folder once. Paths are the system's, see paths.h.
class FolderNames {
  public:
    // What is meant by `wanted`: itself when it exists, else what differs from it in case only, else itself in the
    // folder that is meant.
    [[nodiscard]] std::string realPath(const std::string& wanted);

    // Runs an operation after which `path` exists (does not exist), and remembers the folder as that has left it.
    // Nothing is remembered when the operation raises.
    void adding(const std::string& path, const std::function<void()>& operation);
    void removing(const std::string& path, const std::function<void()>& operation);
    // The same for one that renames `from` to `to` in the same folder.
    void moving(const std::string& from, const std::string& to, const std::function<void()>& operation);

  private:
    struct Folder {
        std::int64_t Modified = 0;  // nanoseconds of the system's clock, as the other two
        std::int64_t ScannedAt = 0;
        std::int64_t OwnUntil = 0;  // up to then our own changes are taken for all that happened
        bool HasDoubles = false;    // two names that differ in case only
        std::unordered_map<std::string, std::string> Names;  // by the capitals of the name in code page 1253

        [[nodiscard]] bool isTrusted(std::int64_t modified) const;
        void add(const std::string& name);
        void remove(const std::string& name);
    };

    [[nodiscard]] std::optional<std::string> findName(const std::string& folder, const std::string& name);
    [[nodiscard]] Folder* namesOf(const std::string& folder);
    void changing(const std::string& path, const std::function<void()>& operation,
                  const std::function<void(Folder&, const std::string&)>& note);

    std::unordered_map<std::string, Folder> folders_;
};

}  // namespace vell
