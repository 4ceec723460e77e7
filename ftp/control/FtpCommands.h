// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace vell {

class FtpControlChannel;
class FtpDataChannel;
class OutputFile;
struct FtpContext;

// The FTP commands. Each routine gives the code of the last reply it received, and 0 on a time-out or an error; what
// is not the success of the command is recorded in the connection's errors.
class FtpCommands {
  public:
    // Gives the file that the data goes to; called once the server has accepted the command.
    using OpenFile = std::function<OutputFile&()>;

    FtpCommands(FtpContext& context, FtpControlChannel& control, FtpDataChannel& data)
        : context_(context), control_(control), data_(data) {}

    [[nodiscard]] int SendUser();
    [[nodiscard]] int SendPass();
    int SendPwd();
    [[nodiscard]] int SendCwd(std::string_view directory);
    [[nodiscard]] int SendCdup();
    [[nodiscard]] int SendType();
    // Both open a data connection, and have succeeded with 227 and 200.
    [[nodiscard]] int SendPasv();
    [[nodiscard]] int SendPort();
    // The three give the final reply's code, or the first one's when that is a refusal.
    [[nodiscard]] int SendList(std::string_view criteria);
    [[nodiscard]] int SendRetr(std::string_view remoteName, const OpenFile& open, std::int64_t startOffset);
    [[nodiscard]] int SendStor(std::string_view localPath, std::string_view remoteName);
    [[nodiscard]] int SendRest(std::int64_t offset);
    [[nodiscard]] int SendDele(std::string_view name);
    [[nodiscard]] int SendMkd(std::string_view name);
    [[nodiscard]] int SendRmd(std::string_view name);
    [[nodiscard]] int SendRnfr(std::string_view name);
    [[nodiscard]] int SendRnto(std::string_view name);
    [[nodiscard]] int SendAbor();
    [[nodiscard]] int SendQuit();

    // By the settings, passive or active.
    [[nodiscard]] bool openDataConnection();

    [[nodiscard]] const std::string& CurrentDirectory() const { return currentDirectory_; }

  private:
    [[nodiscard]] int openingReply(std::string_view command);
    [[nodiscard]] bool isUnderWay() const;
    [[nodiscard]] int finalReply();

    FtpContext& context_;
    FtpControlChannel& control_;
    FtpDataChannel& data_;
    std::string currentDirectory_;
};

}  // namespace vell
