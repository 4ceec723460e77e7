// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "log/EventLog.h"
#include "platform/InternetApi.h"
#include "service/Failure.h"
#include "service/FileReceiver.h"

namespace vell {

class Files;
class MessageBoxes;
class PartFile;
class RunFeedback;
struct Settings;

// Where a file of the service lies: "http://host/archive/yyyy/mm/dd/name" for a name that carries its day, as the
// eight characters before its last ".", and "http://host/clippings/name" for a name of up to eight characters. What
// an address cannot hold bare is written as "%" and the byte's two digits.
[[nodiscard]] std::string BuildClippingUrl(std::string_view host, std::string_view remoteName);
// A part of a file name of the service: "ext" (with its dot), "y", "m" or "d". What lies outside the name is left out.
[[nodiscard]] std::string GetFileNamePart(std::string_view part, std::string_view fileName);

// Every exchange with the service over HTTP.
class modHTTP {
  public:
    modHTTP(InternetApi& internet, Files& files, MessageBoxes& boxes, RunFeedback& feedback, EventLog& log,
            const Settings& settings);

    // Sends a form to a script of the service; true only for status 200 and a whole answer. `body` and `headers` (at
    // most 1024 characters) are filled for every answer that has a status and an end within 16 MB. The log gets all of
    // it, the password in the post data included. A failing service is told to the user.
    bool OpenUrl(std::string_view method, std::string_view host, std::string_view script, std::string_view postData,
                 std::string& body, std::string& headers);

    // Fetches a file of the service to `part`, which begins anew and is the caller's to put in place under
    // `localPath`. True for status 200 and a whole answer; what it is worth the caller must see.
    bool HttpDownloadFile(const std::string& remoteName, const std::string& localPath, PartFile& part,
                          std::int32_t& bytesReceived);
    // The same for what lies at a path of the service, which begins with "/".
    bool HttpDownloadAddress(const std::string& path, const std::string& localPath, PartFile& part,
                             std::int32_t& bytesReceived);

  private:
    struct Exchange;

    [[nodiscard]] bool exchange(const Exchange& request, std::string& body, std::string& headers);
    [[nodiscard]] InternetApi::Handle openRequest(const Exchange& request, InternetApi::Handle& session,
                                                  InternetApi::Handle& connection);
    [[nodiscard]] bool logHandle(const InternetApi::Handle& handle);
    [[nodiscard]] bool judge(std::string_view headers);
    [[nodiscard]] Failure failureTowards(std::string_view host) const;
    void logFailure(std::string_view what, std::string_view host);

    [[nodiscard]] bool fetch(const std::string& address, const std::string& localPath, PartFile& part,
                             std::int32_t& bytesReceived);

    InternetApi& internet_;
    RunFeedback& feedback_;
    EventLog& log_;
    const Settings& settings_;
    FileReceiver receiver_;
};

}  // namespace vell
