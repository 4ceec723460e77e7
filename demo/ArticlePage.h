// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "demo/PdfPage.h"

namespace vell::demo {

// What stands on a newspaper clipping. Texts are in code page 1253.
struct Article {
    std::string Newspaper;
    std::string DateLine;
    std::string PageLine;
    std::string Title;  // may be empty: a clipping without a headline
    std::string Lead;
    std::vector<std::string> Paragraphs;
    std::string Caption;
    const Picture* Image = nullptr;  // none: text alone
};

// The clipping as a PDF file, cut to the height of what stands on it.
[[nodiscard]] std::string articlePage(const Article& article);

}  // namespace vell::demo
