// SPDX-License-Identifier: MIT
#include "tests/support/TempFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace vell::test {

TempFolder::TempFolder() {
    std::random_device random;
    do
        path_ = std::filesystem::temp_directory_path() / ("vell-test-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void TempFolder::put(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string TempFolder::get(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) throw std::runtime_error("no file: " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace vell::test
