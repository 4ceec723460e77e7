// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace vell::test {

// What tests ask of the system that they run on.

// The environment of this process, and of those that it starts.
void setVariable(const std::string& name, const std::string& value);
void removeVariable(const std::string& name);
// False when somebody may read the file besides its owner and those who may read everything.
[[nodiscard]] bool isPrivate(const std::filesystem::path& file);

}  // namespace vell::test
