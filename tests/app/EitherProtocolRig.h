// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "tests/ftp/FtpServerProcess.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

// The program with a service that has the same files for both protocols, and one retry without a pause.
struct EitherProtocolRig : ProgramRig {
    // Lets the settings lead there; false where the FTP server is not installed.
    bool serveOver(const std::string& protocol, int clippings) {
        service.serve(clippings);
        for (const auto& [path, answer] : service.Answers)
            if (const auto name = path.substr(path.rfind('/') + 1); name.find(".asp") == std::string::npos)
                root.put("torvoarchive/" + name, answer.Bytes.substr(answer.Bytes.find("\r\n\r\n") + 4));
        std::string host = "Host=service.example\r\n";
        if (protocol == "FTP") {
            server.emplace("pyftpdlib", root);
            if (server->port() == 0) return false;
            host = "Protocol=FTP\r\nHost=127.0.0.1\r\nTimeOut=20\r\nPort=" + std::to_string(server->port()) + "\r\n";
        }
        settings = "[Host]\r\n" + host + "RetryOnFailure=1\r\nRetryDelay=0\r\n[General]\r\nDebug=1\r\n[Download]\r\n" +
                   "AutoUpdateCheck=0\r\nLocalDir=" + folder.text() + "/clips\r\n";
        folder.put("vell.ini", settings);
        return true;
    }

    TempFolder root;
    std::optional<FtpServerProcess> server;
    std::string settings;  // the text of vell.ini
};

}  // namespace vell::test
