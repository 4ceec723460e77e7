// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace vell {

// The files of an installed program under its root, and in a folder of ours on the same disk those of a new one
// (STAGING) and the old ones (PREVIOUS). Every step may be done again when it was broken off. All raise RunTimeError or
// std::system_error.
class ProgramSet {
  public:
    ProgramSet(std::string root, const std::string& work);

    // An empty folder for the new files.
    [[nodiscard]] const std::string& makeStaging();
    [[nodiscard]] const std::string& staging() const { return staging_; }
    // Keeps what lies in the place of these files, which are staged, and has the disk take both.
    void keepOld(const std::vector<std::string>& files);
    // Moves those in that are still staged.
    void moveIn(const std::vector<std::string>& files);
    // Everything is as it was before moveIn.
    void putBack(const std::vector<std::string>& files);
    // What is staged or kept is not needed any more.
    void clear();
    [[nodiscard]] bool isClear() const;

  private:
    [[nodiscard]] std::string placeOf(const std::string& file) const;

    std::string root_;
    std::string staging_;
    std::string previous_;
};

}  // namespace vell
