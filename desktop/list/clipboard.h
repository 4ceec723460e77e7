// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class wxFileDataObject;

namespace vell {

// Text in code page 1253.
void copyText(std::string_view text);
// UTF-8, a line each.
void copyLines(const std::vector<std::string>& lines);
// The files themselves, for file managers and mail programs; who takes text only gets `text` (code page 1253). Paths
// are the system's own, UTF-8.
void copyFiles(const std::vector<std::string>& paths, std::string_view text);

// The files alone, for who takes them as they are drawn out of a window.
[[nodiscard]] std::unique_ptr<wxFileDataObject> filesToDraw(const std::vector<std::string>& paths);

}  // namespace vell
