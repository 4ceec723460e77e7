// SPDX-License-Identifier: MIT
#include "platform/Arguments.h"

namespace vell {

std::vector<std::string> programArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

std::filesystem::path programPath() {
    return std::filesystem::read_symlink("/proc/self/exe");
}

}  // namespace vell
