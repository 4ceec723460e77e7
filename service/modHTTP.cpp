// SPDX-License-Identifier: MIT
#include "service/modHTTP.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "config/Settings.h"
#include "service/FailureLog.h"
#include "service/RunFeedback.h"

namespace vell {

namespace {

constexpr int httpPort = 80;
constexpr std::size_t readStep = 2048;
constexpr std::size_t longestHeaders = 1024;
constexpr std::size_t longestShortName = 8;
constexpr std::string_view formHeader = "Content-Type: application/x-www-form-urlencoded\r\n";
// A list is some hundred kilobytes on the busiest day; an answer without end must not eat the machine's memory.
constexpr std::size_t longestAnswer = 16U << 20;

// What may stand bare in the path of an address (RFC 3986, 3.3), "/" included.
bool isBareInPath(char c) {
    const bool isAlphanumeric = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    return isAlphanumeric || std::string_view("-._~!$&'()*+,;=:@/").find(c) != std::string_view::npos;
}

std::string pathText(std::string_view path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : path) {
        if (isBareInPath(c)) {
            text += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            text.append({'%', digits[byte / 16], digits[byte % 16]});
        }
    }
    return text;
}

// Without the protocol's name.
std::string_view statusLine(std::string_view headers) {
    headers.remove_prefix(InStr(headers, " "));
    return Trim(headers.substr(0, headers.find_first_of("\r\n")));
}

}  // namespace

std::string GetFileNamePart(std::string_view part, std::string_view fileName) {
    const auto dot = static_cast<std::ptrdiff_t>(InStrRev(fileName, "."));
    const auto piece = [&](std::ptrdiff_t start, std::ptrdiff_t length) {
        const auto from = std::max<std::ptrdiff_t>(start, 1);
        const auto to = std::max(start + length, from);
        return std::string(Mid(fileName, static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)));
    };
    if (part == "ext") return std::string(Right(fileName, fileName.size() - static_cast<std::size_t>(dot) + 1));
    if (part == "y") return piece(dot - 8, 4);
    if (part == "m") return piece(dot - 4, 2);
    if (part == "d") return piece(dot - 2, 2);
    return {};
}

std::string BuildClippingUrl(std::string_view host, std::string_view remoteName) {
    const std::string server = "http://" + std::string(host);
    const std::string name(Mid(remoteName, InStrRev(remoteName, "/") + 1));
    if (name.size() <= longestShortName) return server + "/clippings/" + pathText(remoteName);
    return server + pathText("/archive/" + GetFileNamePart("y", name) + "/" + GetFileNamePart("m", name) + "/" +
                             GetFileNamePart("d", name) + "/" + name);
}

modHTTP::modHTTP(InternetApi& internet, Files& files, MessageBoxes& boxes, RunFeedback& feedback, EventLog& log,
                 const Settings& settings)
    : internet_(internet),
      feedback_(feedback),
      log_(log),
      settings_(settings),
      receiver_(internet, files, boxes, feedback, log) {}

struct modHTTP::Exchange {
    std::string_view Method;
    std::string_view Host;
    std::string_view Script;
    std::string_view PostData;
};

bool modHTTP::OpenUrl(std::string_view method, std::string_view host, std::string_view script,
                      std::string_view postData, std::string& body, std::string& headers) {
    FailureLog log(log_, feedback_);
    return trap(log, "OpenUrl()", false, [&] {
        body.clear();
        headers.clear();
        const bool result = exchange({method, host, script, postData}, body, headers);
        log_.WriteLog(std::string(" OpenUrl Return Status: ").append(BooleanText(result)));
        return result;
    });
}

bool modHTTP::exchange(const Exchange& request, std::string& body, std::string& headers) {
    InternetApi::Handle session;
    InternetApi::Handle connection;
    const InternetApi::Handle http = openRequest(request, session, connection);
    if (!http) {
        feedback_.failed(failureTowards(request.Host));
        return false;
    }

    log_.WriteLog("HttpAddRequestHeaders function");
    log_.WriteLog(std::string("        Headers:").append(formHeader));
    internet_.HttpAddRequestHeaders(*http, formHeader);

    log_.WriteLog("HttpSendRequest function");
    log_.WriteLog(std::string("        PostData:").append(request.PostData));
    const bool sent = internet_.HttpSendRequest(*http, request.PostData);
    if (!sent) logFailure("The service could not be reached", request.Host);

    std::array<char, readStep> buffer{};
    std::size_t read = 0;
    bool whole = false;
    while ((whole = internet_.InternetReadFile(*http, buffer.data(), buffer.size(), read)) && read > 0) {
        if (body.size() + read > longestAnswer) {
            body = {};
            log_.WriteLog("        The answer is longer than 16 MB");
            feedback_.failed({Cause::BadAnswer, std::string(request.Host)});
            return false;
        }
        body.append(buffer.data(), read);
    }
    log_.WriteLog("InternetReadFile function loop");
    log_.WriteLog("        Body:" + body);

    headers = internet_.RawHeaders(*http, longestHeaders);
    log_.WriteLog("        Headers:" + headers);
    if (InStr(headers, " ") == 0) {
        if (sent) feedback_.failed({Cause::ConnectionLost, std::string(request.Host)});
        body.clear();
        headers.clear();
        return false;
    }
    bool result = judge(headers);
    if (result && !whole) {
        logFailure("The answer was cut short", request.Host);
        result = false;
    }
    log_.WriteLog(std::string(" OpenUrl Return Status: ").append(BooleanText(result)));
    return result;
}

InternetApi::Handle modHTTP::openRequest(const Exchange& request, InternetApi::Handle& session,
                                         InternetApi::Handle& connection) {
    log_.WriteLog("Start OpenUrl");
    log_.WriteLog(std::string("      Method:")
                      .append(request.Method)
                      .append(", Host:")
                      .append(request.Host)
                      .append(", Scipt:")
                      .append(request.Script)
                      .append(", PostData:")
                      .append(request.PostData));
    log_.WriteLog("InternetOpen function");
    session = internet_.InternetOpen(settings_.AgentName);
    if (!logHandle(session)) return nullptr;
    log_.WriteLog("InternetConnect function");
    connection =
        internet_.InternetConnect(*session, request.Host, httpPort, settings_.proxyUsername, settings_.proxyPwd);
    if (!logHandle(connection)) return nullptr;
    log_.WriteLog("HttpOpenRequest");
    auto http = internet_.HttpOpenRequest(*connection, request.Method, request.Script, "HTTP/1.0");
    return logHandle(http) ? std::move(http) : nullptr;
}

bool modHTTP::logHandle(const InternetApi::Handle& handle) {
    if (handle) log_.WriteLog("       SUCCESS");
    return handle != nullptr;
}

bool modHTTP::judge(std::string_view headers) {
    const std::string_view status = Mid(headers, InStr(headers, " ") + 1, 3);
    if (status == "200") return true;
    feedback_.failed({Cause::ServiceStatus, std::string(statusLine(headers))});
    if (status == "500")
        feedback_.displayInfoMessageBox("Quillon Service not available. Please try again later.");
    else
        feedback_.displayInfoMessageBox("Quillon Service not accessible.\r\n\r\n" + std::string(headers));
    return false;
}

void modHTTP::logFailure(std::string_view what, std::string_view host) {
    const Failure failure = failureTowards(host);
    const std::string why = failure.Why == Cause::ProxyUnreached
                                ? ", for the proxy at " + failure.Detail + " did not answer"
                                : std::string();
    log_.WriteLog("        " + std::string(what) + why + ". Error " + std::to_string(internet_.LastError()));
    feedback_.failed(failure);
}

Failure modHTTP::failureTowards(std::string_view host) const {
    const std::string proxy = internet_.UnreachedProxy();
    return proxy.empty() ? internetFailure(internet_.LastError(), host) : Failure{Cause::ProxyUnreached, proxy};
}

bool modHTTP::HttpDownloadFile(const std::string& remoteName, const std::string& localPath, PartFile& part,
                               std::int32_t& bytesReceived) {
    bytesReceived = 0;
    FailureLog log(log_, feedback_);
    return trap(log, "HttpDownloadFile()", false,
                [&] { return fetch(BuildClippingUrl(settings_.Host, remoteName), localPath, part, bytesReceived); });
}

bool modHTTP::HttpDownloadAddress(const std::string& path, const std::string& localPath, PartFile& part,
                                  std::int32_t& bytesReceived) {
    bytesReceived = 0;
    FailureLog log(log_, feedback_);
    return trap(log, "HttpDownloadAddress()", false,
                [&] { return fetch("http://" + settings_.Host + pathText(path), localPath, part, bytesReceived); });
}

bool modHTTP::fetch(const std::string& address, const std::string& localPath, PartFile& part,
                    std::int32_t& bytesReceived) {
    const auto session = internet_.InternetOpen(settings_.AgentName);
    const auto file = session ? internet_.InternetOpenUrl(*session, address) : nullptr;
    if (!file) {
        logFailure("The file is not available", settings_.Host);
        feedback_.StatusBar(feedback_.statusText() + " File Not Available");
        return false;
    }
    const std::string status = internet_.StatusCode(*file);
    if (!status.starts_with("200")) {
        log_.WriteLog("        The service answered with status " + status);
        feedback_.failed(status == "404" ? Failure{Cause::NotThere} : Failure{Cause::ServiceStatus, status});
        return false;
    }
    const auto end = receiver_.receive(*file, localPath, part, bytesReceived);
    if (end == FileReceiver::End::Cut) logFailure("The file was cut short", settings_.Host);
    if (end == FileReceiver::End::NoRoom) feedback_.failed({Cause::DiskFull});
    return end == FileReceiver::End::Whole;
}

}  // namespace vell
