// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "demo/days/ClippingsTree.h"
#include "demo/http/HttpRequest.h"
#include "demo/http/UpdateShelf.h"

namespace vell::demo {

// What an address holds: a text, or a file that is to be streamed.
struct HttpAnswer {
    int Status = 200;
    std::string Type = "text/plain; charset=us-ascii";
    std::string Body;
    std::optional<std::filesystem::path> File;
    std::string Allow = {};  // with status 405: the methods that would do
};

// The addresses of the service: its scripts, the files of the archive and of the current day, the advertisement,
// newer versions of the client.
class HttpSite {
  public:
    HttpSite(const ClippingsTree& tree, const UpdateShelf& updates) : tree_(tree), updates_(updates) {}

    [[nodiscard]] HttpAnswer answer(const HttpRequest& request) const;

  private:
    [[nodiscard]] std::optional<HttpAnswer> script(const HttpRequest& request) const;
    [[nodiscard]] std::optional<std::filesystem::path> file(const std::string& path) const;

    const ClippingsTree& tree_;
    const UpdateShelf& updates_;
};

// An answer that only tells what went wrong.
[[nodiscard]] HttpAnswer problemAnswer(int status, std::string why);

}  // namespace vell::demo
