// SPDX-License-Identifier: MIT
#include "tests/support/system.h"

#include <stdlib.h>

namespace vell::test {

void setVariable(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
}

void removeVariable(const std::string& name) {
    unsetenv(name.c_str());
}

bool isPrivate(const std::filesystem::path& file) {
    return std::filesystem::status(file).permissions() == std::filesystem::perms{0600};
}

}  // namespace vell::test
