// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "ui/StatusText.h"

namespace vell {

class ClippingsBrowser;
class Files;
class TextReader;

// What can be taken elsewhere of rows of the list.
class ClippingCopies {
  public:
    // `message` says what somebody has to know beyond the status line.
    ClippingCopies(const ClippingsBrowser& browser, const TextReader& texts, const Files& disk, StatusText message)
        : browser_(browser), texts_(texts), disk_(disk), message_(std::move(message)) {}

    // The titles, a line each; the file's name where there is none. In code page 1253, as are the texts.
    [[nodiscard]] std::string titles(std::span<const std::size_t> rows) const;
    // The text forms, an empty line between two. Why there is none is told.
    [[nodiscard]] std::string texts(std::span<const std::size_t> rows) const;
    // The files in the system's own form, UTF-8.
    [[nodiscard]] std::vector<std::string> paths(std::span<const std::size_t> rows) const;

  private:
    const ClippingsBrowser& browser_;
    const TextReader& texts_;
    const Files& disk_;
    StatusText message_;
};

}  // namespace vell
