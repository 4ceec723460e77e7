// SPDX-License-Identifier: MIT
#include "ftp/CFtpConnection.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/ScopedFlag.h"
#include "base/errors.h"
#include "ftp/control/FtpArguments.h"
#include "ftp/listing/FtpListing.h"
#include "platform/Clock.h"

namespace vell {

namespace {

constexpr std::uint16_t defaultPort = 21;
constexpr std::size_t codeAlone = 3;

std::uint16_t portNumber(std::int32_t port) {
    if (port < 0 || port > std::numeric_limits<std::uint16_t>::max())
        throw RunTimeError(socket_error::InvalidPropertyValue, "Invalid port number.");
    return port == 0 ? defaultPort : static_cast<std::uint16_t>(port);
}

// Whatever becomes of the transfer, its end leaves nothing open.
class DataScope {
  public:
    explicit DataScope(FtpDataChannel& data) : data_(data) {}
    ~DataScope() { data_.clear(); }
    DataScope(const DataScope&) = delete;
    DataScope& operator=(const DataScope&) = delete;

  private:
    FtpDataChannel& data_;
};

// An operation that ends before the server has answered leaves no session: its late replies would be taken for those of
// the next one.
class SessionScope {
  public:
    explicit SessionScope(FtpControlChannel& control) : control_(control) {}
    ~SessionScope() { control_.abandonUnanswered(); }
    SessionScope(const SessionScope&) = delete;
    SessionScope& operator=(const SessionScope&) = delete;

  private:
    FtpControlChannel& control_;
};

}  // namespace

CFtpConnection::CFtpConnection(FtpServices services, CFtpConnectionEvents& owner)
    : context_(services, *this, owner),
      data_(context_),
      control_(context_, [this] { endTransfer(); }),
      commands_(context_, control_, data_) {}

CFtpConnection::~CFtpConnection() = default;

bool CFtpConnection::mayBegin(Arguments arguments) {
    if (running_) {
        context_.Errors.MapSocketError(socket_error::InProgress, "Another operation is in progress.");
        return false;
    }
    if (!std::ranges::all_of(arguments, fitForCommand)) {
        context_.Errors.set(ftp_error::BadArgument, "A name with a line end or a NUL cannot be sent to the server.");
        return false;
    }
    return true;
}

// Result{} stands for failure.
template <class Result, class Body>
Result CFtpConnection::operation(std::string_view name, Arguments arguments, Body&& body) {
    if (!mayBegin(arguments)) return {};
    const ScopedFlag running(running_);
    const ScopedFlag busy(busy_);
    const SessionScope session(control_);
    return trap(context_.Services.Errors, name, Result{}, [&] {
        try {
            if (IsConnected()) context_.Services.Loop.DoEvents();  // what the server says unasked is heard first
            return body();
        } catch (const RunTimeError& error) {
            context_.Errors.MapSocketError(error.Number, error.Description);
            throw;
        }
    });
}

bool CFtpConnection::Connect() {
    return operation<bool>("Connect()", {UserName, Password}, [this] {
        if (FtpServer.empty()) return false;
        const bool connected = control_.open(FtpServer, portNumber(Port)) && greeted() && logIn();
        if (!connected) control_.close();
        return connected;
    });
}

bool CFtpConnection::greeted() {
    const int code = control_.reply({220}, {.Enough = codeAlone});
    if (code == 120) context_.Errors.set(ftp_error::ServiceReadyLater);
    return code == 220;
}

bool CFtpConnection::logIn() {
    int code = commands_.SendUser();
    if (code == 331) code = commands_.SendPass();
    if (code != 230) return false;
    commands_.SendPwd();
    return !control_.isUnanswered();
}

CFtpFiles CFtpConnection::EnumFilesCriteria(std::string_view criteria) {
    return operation<CFtpFiles>("EnumFilesCriteria()", {criteria}, [&] {
        const DataScope data(data_);
        if (!commands_.openDataConnection()) return CFtpFiles{};
        const int code = commands_.SendList(criteria);
        // The end of the data alone is a whole listing, too, where the server leaves out its final reply.
        const bool listed = code == 0 ? data_.ended() : (code == 226 || code == 250) && data_.awaitEnd();
        if (!listed) return CFtpFiles{};
        CFtpFiles files = ParseListing(data_.listing(), context_.Services.Time.Now().Day.Year);
        context_.Events.StateChanged(FtpState::ListingReceived);
        return files;
    });
}

bool CFtpConnection::SetCurrentDirectory(std::string_view directory) {
    return operation<bool>("SetCurrentDirectory()", {directory}, [&] { return commands_.SendCwd(directory) == 250; });
}

bool CFtpConnection::GetCurrentDirectory() {
    return operation<bool>("GetCurrentDirectory()", {}, [&] { return commands_.SendPwd() == 257; });
}

bool CFtpConnection::SetParentAsCurrentDirectory() {
    return operation<bool>("SetParentAsCurrentDirectory()", {}, [&] { return commands_.SendCdup() == 250; });
}

bool CFtpConnection::RenameFile(std::string_view oldName, std::string_view newName) {
    return operation<bool>("RenameFile()", {oldName, newName},
                           [&] { return commands_.SendRnfr(oldName) == 350 && commands_.SendRnto(newName) == 250; });
}

bool CFtpConnection::DeleteFile(std::string_view name) {
    return operation<bool>("DeleteFile()", {name}, [&] { return commands_.SendDele(name) == 250; });
}

bool CFtpConnection::RemoveDirectory(std::string_view name) {
    return operation<bool>("RemoveDirectory()", {name}, [&] { return commands_.SendRmd(name) == 250; });
}

bool CFtpConnection::CreateDirectory(std::string_view name) {
    return operation<bool>("CreateDirectory()", {name}, [&] { return commands_.SendMkd(name) == 257; });
}

bool CFtpConnection::downloadFile(std::string_view remoteName, std::string_view localPath, std::int32_t startOffset) {
    return operation<bool>("downloadFile()", {remoteName}, [&] {
        Files& disk = context_.Services.Disk;
        std::unique_ptr<PartFile> file;
        // Only when the server has accepted: a file that it refuses to send leaves the old one as it is.
        const auto open = [&]() -> OutputFile& {
            if (startOffset == 0 && disk.PathExists(localPath)) disk.DeleteFile(localPath);
            file = disk.OpenPart(localPath);
            if (!file) throw RunTimeError(error_number::PermissionDenied, "Permission denied: a file in use");
            file->StartAt(startOffset);
            return *file;
        };
        const bool received = receive(remoteName, open, startOffset, {});
        if (file) file->Close();  // which keeps an empty one, too
        if (!received) return false;
        context_.Events.StateChanged(FtpState::TransferFinished);
        return true;
    });
}

bool CFtpConnection::downloadFile(std::string_view remoteName, OutputFile& file, std::int64_t startOffset,
                                  std::optional<std::int64_t> expectedLength) {
    return operation<bool>("downloadFile()", {remoteName}, [&] {
        const auto open = [&]() -> OutputFile& { return file; };
        if (!receive(remoteName, open, startOffset, expectedLength)) return false;
        context_.Events.StateChanged(FtpState::TransferFinished);
        return true;
    });
}

bool CFtpConnection::receive(std::string_view remoteName, const FtpCommands::OpenFile& open, std::int64_t startOffset,
                             std::optional<std::int64_t> expectedLength) {
    const DataScope data(data_);
    if (commands_.SendType() != 200 || !commands_.openDataConnection()) return false;
    if (startOffset > 0 && commands_.SendRest(startOffset) != 350) return false;
    const int code = commands_.SendRetr(remoteName, open, startOffset);
    return code == 0 ? isWholeWithoutReply(expectedLength) : arrived(code);
}

bool CFtpConnection::UploadFile(std::string_view localPath, std::string_view remoteName) {
    return operation<bool>("UploadFile()", {remoteName}, [&] {
        const DataScope data(data_);
        if (commands_.SendType() != 200 || !commands_.openDataConnection()) return false;
        if (!arrived(commands_.SendStor(localPath, remoteName))) return false;
        context_.Events.StateChanged(FtpState::TransferFinished);
        return true;
    });
}

// The final reply may come before the data is here: only both together are the end.
bool CFtpConnection::arrived(int code) {
    return (code == 226 || code == 250) && data_.awaitEnd();
}

// The data's orderly end is the file's, where the server then falls silent or the length says so. A server that breaks
// off altogether ends both connections in good order, in the middle of a file.
bool CFtpConnection::isWholeWithoutReply(std::optional<std::int64_t> expectedLength) {
    if (!data_.received()) return false;
    const bool whole = expectedLength ? data_.count() >= *expectedLength : IsConnected();
    if (whole) context_.Services.Log.WriteLog("The server did not confirm the end of a file, which came whole.");
    return whole;
}

bool CFtpConnection::CancelTransfer() {
    if (cancelling_) return false;
    const ScopedFlag cancelling(cancelling_);
    return trap(context_.Services.Errors, "CancelTransfer()", false, [this] {
        const int code = commands_.SendAbor();
        BreakeConnection();
        return code == 226 || code == 426;
    });
}

void CFtpConnection::BreakeConnection() {
    endTransfer();
    control_.close();
    context_.Wait.stop();
}

bool CFtpConnection::CloseConnection() {
    if (transferInProgress()) {
        context_.Errors.set(ftp_error::TransferInProgress, "Can't close control connection. Transfer in progress.");
        return false;
    }
    if (running_ || !IsConnected()) {
        BreakeConnection();
        return true;
    }
    const bool closed =
        operation<bool>("CloseConnection()", {}, [this] { return !IsConnected() || commands_.SendQuit() == 221; });
    BreakeConnection();
    return closed;
}

bool CFtpConnection::transferInProgress() const {
    const auto transfer = data_.transfer();
    return transfer == FtpDataChannel::Transfer::Download || transfer == FtpDataChannel::Transfer::Upload;
}

void CFtpConnection::endTransfer() {
    data_.clear();
    busy_ = false;
}

}  // namespace vell
