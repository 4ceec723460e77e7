// SPDX-License-Identifier: MIT
#include "demo/http/HttpRequest.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/text.h"
#include "demo/http/FormFields.h"

namespace vell::demo {

namespace {

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == 127;
}

// The path of "/a/b?query" and of "http://host/a/b?query", unescaped.
std::string pathOf(std::string_view target) {
    if (equalNoCase(target.substr(0, 7), "http://")) {
        const auto slash = target.find('/', 7);
        target = slash == std::string_view::npos ? "/" : target.substr(slash);
    }
    std::string path = percentDecoded(target.substr(0, target.find('?')));
    if (!path.starts_with('/')) throw HttpProblem(400, "The address does not begin with a slash.");
    if (std::any_of(path.begin(), path.end(), isControl) || path.find('\\') != std::string::npos ||
        path.find("..") != std::string::npos)
        throw HttpProblem(400, "The address holds what leads outside.");
    return path;
}

std::size_t lengthOf(const std::string& digits) {
    std::size_t length = 0;
    const char* end = digits.data() + digits.size();
    if (const auto read = std::from_chars(digits.data(), end, length); read.ptr != end || read.ec != std::errc{})
        throw HttpProblem(400, "The Content-Length is no number.");
    if (length > HttpRequestReader::BodyLimit) throw HttpProblem(413, "The body is too long.");
    return length;
}

bool hasWord(const std::string& list, std::string_view word) {
    const auto words = Split(list, ",");
    return std::any_of(words.begin(), words.end(), [&](auto item) { return equalNoCase(Trim(item), word); });
}

// Where the empty line begins and ends. Bare LF is taken as an end of line too (RFC 9112, 2.2).
struct HeadEnd {
    std::size_t Head = std::string::npos;
    std::size_t Rest = std::string::npos;
};
HeadEnd headEnd(const std::string& bytes) {
    const auto crlf = bytes.find("\r\n\r\n");
    const auto lf = bytes.find("\n\n");
    if (crlf == std::string::npos && lf == std::string::npos) return {};
    return crlf < lf ? HeadEnd{crlf, crlf + 4} : HeadEnd{lf, lf + 2};
}

}  // namespace

std::optional<HttpRequest> HttpRequestReader::next() {
    if (!request_) {
        // An empty line before a request is to be passed over (RFC 9112, 2.2).
        bytes_.erase(0, std::min(bytes_.find_first_not_of("\r\n"), bytes_.size()));
        const HeadEnd end = headEnd(bytes_);
        if (std::min(end.Head, bytes_.size()) > HeadLimit) throw HttpProblem(431, "The headers are too long.");
        if (end.Head == std::string::npos) return std::nullopt;
        readHead(std::string_view(bytes_).substr(0, end.Head));
        bytes_.erase(0, end.Rest);
    }
    if (bytes_.size() < bodySize_) return std::nullopt;
    request_->Body = bytes_.substr(0, bodySize_);
    bytes_.erase(0, bodySize_);
    wishesContinue_ = false;
    return std::exchange(request_, std::nullopt);
}

bool HttpRequestReader::takeContinueWish() {
    return std::exchange(wishesContinue_, false);
}

void HttpRequestReader::readHead(std::string_view head) {
    const std::string lines = Replace(head, "\r\n", "\n");
    request_.emplace();
    headers_.clear();
    bool isFirst = true;
    for (auto line : Split(lines, "\n")) {
        isFirst ? readRequestLine(line) : readHeader(line);
        isFirst = false;
    }
    judgeHead();
}

void HttpRequestReader::readRequestLine(std::string_view line) {
    const auto words = Split(line, " ");
    if (words.size() != 3 || words[0].empty() || !words[2].starts_with("HTTP/"))
        throw HttpProblem(400, "The request line is malformed.");
    if (words[2] != "HTTP/1.0" && words[2] != "HTTP/1.1") throw HttpProblem(505, "Only HTTP/1.0 and 1.1 are spoken.");
    isHttp11_ = words[2] == "HTTP/1.1";
    request_->Method = words[0];
    request_->Path = pathOf(words[1]);
}

void HttpRequestReader::readHeader(std::string_view line) {
    const auto colon = line.find(':');
    const auto name = line.substr(0, colon);
    if (colon == std::string_view::npos || colon == 0 || name.find_first_of(" \t") != std::string_view::npos)
        throw HttpProblem(400, "A header line is malformed.");
    const std::string value{Trim(Replace(line.substr(colon + 1), "\t", " "))};
    const auto [slot, isNew] = headers_.try_emplace(Upper(name), value);
    if (isNew) return;
    if (slot->first == "CONTENT-LENGTH" && slot->second != value)
        throw HttpProblem(400, "There are two different Content-Lengths.");
    if (slot->first != "CONTENT-LENGTH") slot->second.append(", ").append(value);
}

void HttpRequestReader::judgeHead() {
    if (isHttp11_ && !headers_.contains("HOST")) throw HttpProblem(400, "The Host header is missing.");
    if (headers_.contains("TRANSFER-ENCODING")) throw HttpProblem(411, "Send the body with a Content-Length.");
    bodySize_ = headers_.contains("CONTENT-LENGTH") ? lengthOf(headers_["CONTENT-LENGTH"]) : 0;
    wishesContinue_ = isHttp11_ && bodySize_ > 0 && equalNoCase(header("EXPECT"), "100-continue");
    // Old clients of a proxy say Proxy-Connection where they mean Connection.
    const std::string wish = header("CONNECTION") + "," + header("PROXY-CONNECTION");
    request_->KeepsConnection = isHttp11_ ? !hasWord(wish, "close") : hasWord(wish, "keep-alive");
}

std::string HttpRequestReader::header(const std::string& name) const {
    const auto found = headers_.find(name);
    return found == headers_.end() ? std::string{} : found->second;
}

}  // namespace vell::demo
