// SPDX-License-Identifier: MIT
#include "demo/http/HttpSite.h"

#include <utility>

#include "base/text.h"
#include "demo/http/ListAnswer.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

constexpr const char* greekHtml = "text/html; charset=windows-1253";
constexpr const char* greekText = "text/plain; charset=windows-1253";

std::string typeOf(const fs::path& file) {
    const std::string ending = Upper(file.extension().string());
    if (ending == ".PDF") return "application/pdf";
    if (ending == ".JPG") return "image/jpeg";
    if (ending == ".GZ" || ending == ".EXE") return "application/octet-stream";
    return greekText;
}

HttpAnswer scriptAnswer(std::optional<std::string> text, const char* type) {
    if (!text) return problemAnswer(400, "The form does not name a day.");
    return {200, type, std::move(*text), std::nullopt};
}

}  // namespace

HttpAnswer problemAnswer(int status, std::string why) {
    HttpAnswer answer;
    answer.Status = status;
    answer.Body = std::move(why) + "\r\n";
    return answer;
}

HttpAnswer HttpSite::answer(const HttpRequest& request) const {
    const bool isRead = request.Method == "GET" || request.Method == "HEAD";
    if (!isRead && request.Method != "POST") return problemAnswer(501, "GET, HEAD and POST are understood.");
    if (auto answered = script(request)) return *answered;
    auto found = file(request.Path);
    if (!found) return problemAnswer(404, "There is nothing at this address.");
    HttpAnswer answer{200, typeOf(*found), {}, found};
    if (isRead) return answer;
    answer = problemAnswer(405, "Files are fetched with GET.");
    answer.Allow = "GET, HEAD";
    return answer;
}

std::optional<HttpAnswer> HttpSite::script(const HttpRequest& request) const {
    const bool isList = equalNoCase(request.Path, "/vell/vellClipsToDownload.asp");
    const bool isAlert = equalNoCase(request.Path, "/sources.asp");
    if (equalNoCase(request.Path, "/vell/vellUpdate.asp"))
        return HttpAnswer{200, greekText, updates_.answer(request.Body), {}};
    if (!isList && !isAlert) return std::nullopt;
    if (request.Method != "POST") {
        HttpAnswer refusal = problemAnswer(405, "This script takes a form, sent with POST.");
        refusal.Allow = "POST";
        return refusal;
    }
    return isList ? scriptAnswer(listAnswer(tree_, request.Body), greekHtml)
                  : scriptAnswer(alertAnswer(tree_, request.Body), greekText);
}

std::optional<fs::path> HttpSite::file(const std::string& path) const {
    const auto parts = Split(path, "/");  // the first one is empty
    if (parts.size() == 4 && equalNoCase(parts[1], "vell") && equalNoCase(parts[2], "update"))
        return updates_.file(parts[3]);
    if (parts.size() == 3 && equalNoCase(parts[1], "clippings")) return tree_.articleFile(parts[2]);
    if (parts.size() != 6 || !equalNoCase(parts[1], "archive")) return std::nullopt;
    // Its name has no date before the ending, so clients ask for it under nonsense parts of a date.
    if (equalNoCase(parts[5], ClippingsTree::AdvertisementName)) return tree_.advertisement();
    const auto day = Date::fromFolderName(std::string(parts[4]).append(parts[3]).append(parts[2]));
    return day ? tree_.articleFile(*day, parts[5]) : std::nullopt;
}

}  // namespace vell::demo
