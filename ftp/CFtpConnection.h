// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "ftp/CFtpConnectionEvents.h"
#include "ftp/FtpContext.h"
#include "ftp/FtpDataChannel.h"
#include "ftp/FtpServices.h"
#include "ftp/FtpSettings.h"
#include "ftp/control/FtpCommands.h"
#include "ftp/control/FtpControlChannel.h"
#include "ftp/listing/CFtpFiles.h"

namespace vell {

// The program's FTP client (RFC 959). Set the inherited members, then Connect. An operation waits, letting events
// happen, until it has succeeded or failed; what it failed with stays until the next failure. Only one runs at a time:
// meanwhile, from a yield, the owner may call CancelTransfer, BreakeConnection and CloseConnection, and the operation
// ends with the yield. A name with CR, LF or NUL is refused (error 48) before anything is sent.
class CFtpConnection : public FtpSettings {
  public:
    CFtpConnection(FtpServices services, CFtpConnectionEvents& owner);
    ~CFtpConnection();
    CFtpConnection(const CFtpConnection&) = delete;
    CFtpConnection& operator=(const CFtpConnection&) = delete;

    [[nodiscard]] std::int32_t FtpGetLastError() const { return context_.Errors.number(); }
    [[nodiscard]] const std::string& GetFtpErrorDescription() const { return context_.Errors.text(); }
    // The directory that the server reported last.
    [[nodiscard]] const std::string& CurrentDirectory() const { return commands_.CurrentDirectory(); }
    [[nodiscard]] const std::string& GetLastServerResponse() const { return control_.lastServerResponse(); }
    [[nodiscard]] bool Busy() const { return busy_; }
    // Is there a session? A reply 421 or 426, a cut connection, a failed Connect and an operation that ended without
    // the server's answer end it.
    [[nodiscard]] bool IsConnected() const { return control_.isOpen(); }

    // Opens the control connection and logs in.
    [[nodiscard]] bool Connect();
    // Empty on failure, too.
    [[nodiscard]] CFtpFiles EnumFiles() { return EnumFilesCriteria({}); }
    [[nodiscard]] CFtpFiles EnumFilesCriteria(std::string_view criteria);
    bool SetCurrentDirectory(std::string_view directory);
    bool GetCurrentDirectory();
    bool SetParentAsCurrentDirectory();
    [[nodiscard]] bool RenameFile(std::string_view oldName, std::string_view newName);
    [[nodiscard]] bool DeleteFile(std::string_view name);
    [[nodiscard]] bool RemoveDirectory(std::string_view name);
    [[nodiscard]] bool CreateDirectory(std::string_view name);

    // Writes what comes to `file`, which the caller has placed at `startOffset`, and touches nothing else on the disk;
    // the caller closes it. A file whose data came to an orderly end counts even when the server never confirms it, if
    // it has the `expectedLength` then, from its first byte on; nothing: the length is not known. A server that did not
    // heed the offset shows in a file that is longer.
    [[nodiscard]] bool downloadFile(std::string_view remoteName, OutputFile& file, std::int64_t startOffset,
                                    std::optional<std::int64_t> expectedLength = {});
    // With an offset, the local file keeps its first `startOffset` bytes and gets the rest; else it is replaced, once
    // the server has accepted the command. After a failure it holds what had arrived.
    [[nodiscard]] bool downloadFile(std::string_view remoteName, std::string_view localPath, std::int32_t startOffset);
    // The whole file is in memory meanwhile.
    [[nodiscard]] bool UploadFile(std::string_view localPath, std::string_view remoteName);
    // Has the server abort the transfer, and gives up the connection. False when the server did not answer so; the
    // transfer has ended all the same.
    bool CancelTransfer();

    // Closes everything without a word to the server.
    void BreakeConnection();
    // Takes leave and closes. Refused (error 59) during a transfer; during another operation the connection is broken
    // without the leave-taking, whose reply could not be told from the one that is awaited. Without a session there
    // is nothing to do, which is success.
    bool CloseConnection();

  private:
    using Arguments = std::initializer_list<std::string_view>;
    template <class Result, class Body>
    Result operation(std::string_view name, Arguments arguments, Body&& body);
    [[nodiscard]] bool mayBegin(Arguments arguments);

    [[nodiscard]] bool logIn();
    [[nodiscard]] bool greeted();
    [[nodiscard]] bool receive(std::string_view remoteName, const FtpCommands::OpenFile& open, std::int64_t startOffset,
                               std::optional<std::int64_t> expectedLength);
    [[nodiscard]] bool isWholeWithoutReply(std::optional<std::int64_t> expectedLength);
    [[nodiscard]] bool arrived(int code);
    [[nodiscard]] bool transferInProgress() const;
    void endTransfer();

    FtpContext context_;
    FtpDataChannel data_;
    FtpControlChannel control_;
    FtpCommands commands_;
    bool busy_ = false;
    bool running_ = false;  // an operation is on the stack; a break clears busy_ before it has ended
    bool cancelling_ = false;
};

}  // namespace vell
