// SPDX-License-Identifier: MIT
#include "ftp/control/FtpCommands.h"

#include "base/text.h"
#include "ftp/FtpContext.h"
#include "ftp/FtpDataChannel.h"
#include "ftp/control/FtpControlChannel.h"
#include "ftp/control/PassiveReply.h"

namespace vell {

namespace {

constexpr std::string_view anonymousUser = "anonymous";
constexpr std::string_view anonymousPassword = "guest@vell.invalid";

// The login replies are judged by so many characters.
constexpr std::size_t codeAndMark = 4;
// What TYPE and PORT are answered with.
constexpr int commandOkay = 200;

bool isPreliminary(int code) {
    return code == 125 || code == 150;
}

std::string line(std::string_view word, std::string_view argument) {
    return std::string(word) + " " + std::string(argument);
}

}  // namespace

int FtpCommands::SendUser() {
    FtpSettings& settings = context_.Settings;
    if (settings.UserName.empty()) settings.UserName = anonymousUser;
    if (settings.Password.empty()) {
        if (settings.UserName != anonymousUser) return 0;
        settings.Password = anonymousPassword;
    }
    context_.Events.StateChanged(FtpState::LoggingIn);
    return control_.command(line("USER", settings.UserName), {230, 331}, {.Enough = codeAndMark});
}

int FtpCommands::SendPass() {
    if (!control_.send(line("PASS", context_.Settings.Password), "PASS **********")) return 0;
    const int code = control_.reply({230}, {.Enough = codeAndMark});
    return code != 230 || control_.awaitEndOfReply() ? code : 0;
}

int FtpCommands::SendPwd() {
    const int code = control_.command("PWD", {257});
    if (code != 257) return code;
    const std::string& reply = control_.replyText();
    const std::size_t open = InStr(reply, "\"");
    const std::size_t close = InStr(reply, "\"", open + 1);
    if (open != 0 && close != 0) currentDirectory_ = Mid(reply, open + 1, close - open - 1);
    return code;
}

int FtpCommands::SendCwd(std::string_view directory) {
    return control_.command(line("CWD", directory), {250});
}

int FtpCommands::SendCdup() {
    return control_.command("CDUP", {250});
}

int FtpCommands::SendType() {
    return control_.command(line("TYPE", context_.Settings.TransferMode == ftpAscii ? "A" : "I"), {200});
}

bool FtpCommands::openDataConnection() {
    context_.Events.StateChanged(FtpState::OpeningData);
    const bool opened = context_.Settings.PassiveMode ? SendPasv() == 227 : SendPort() == 200;
    if (opened) context_.Events.StateChanged(FtpState::DataReady);
    return opened;
}

int FtpCommands::SendPasv() {
    const int code = control_.command("PASV", {227}, {.Late = commandOkay});
    if (code != 227) return code;
    const auto address = parsePassiveReply(control_.replyText());
    if (!address) {
        context_.Errors.MapSocketError(socket_error::InvalidArgument, "The reply to PASV names no address.");
        return 0;
    }
    if (address->Host != control_.peerIP()) {  // or the server could have us connect to anybody
        context_.Errors.MapSocketError(socket_error::InvalidArgument, "The reply to PASV names another machine.");
        return 0;
    }
    return data_.connect(address->Host, address->Port) ? code : 0;
}

int FtpCommands::SendPort() {
    data_.listen(control_.localIP(), control_.peerIP());
    const std::uint16_t port = data_.localPort();
    return control_.command(line("PORT", Replace(control_.localIP(), ".", ",")) + "," + std::to_string(port / 256) +
                                "," + std::to_string(port % 256),
                            {200});
}

int FtpCommands::SendList(std::string_view criteria) {
    data_.begin(FtpDataChannel::Transfer::Listing);
    context_.Events.StateChanged(FtpState::ListingRequested);
    const int code = openingReply(criteria.empty() ? "LIST" : line("LIST", criteria));
    if (!isPreliminary(code)) return code;
    if (isUnderWay()) data_.receiveListing();
    return finalReply();
}

int FtpCommands::SendRetr(std::string_view remoteName, const OpenFile& open, std::int64_t startOffset) {
    data_.begin(FtpDataChannel::Transfer::Download);
    const int code = openingReply(line("RETR", remoteName));
    if (!isPreliminary(code)) return code;
    context_.Events.StateChanged(FtpState::TransferAccepted);
    if (isUnderWay()) data_.receiveFile(open(), startOffset);
    return finalReply();
}

int FtpCommands::SendStor(std::string_view localPath, std::string_view remoteName) {
    std::string bytes = context_.Services.Disk.ReadFile(localPath);
    data_.begin(FtpDataChannel::Transfer::Upload);
    const int code = openingReply(line("STOR", remoteName));
    if (!isPreliminary(code)) return code;
    context_.Events.StateChanged(FtpState::TransferAccepted);
    if (isUnderWay()) data_.sendBytes(std::move(bytes));
    return finalReply();
}

int FtpCommands::openingReply(std::string_view command) {
    return control_.command(command, {125, 150}, {.Late = commandOkay});
}

// Not one that was stopped, or that the server gave up, while its acceptance was told.
bool FtpCommands::isUnderWay() const {
    return data_.transfer() != FtpDataChannel::Transfer::None;
}

// Once all bytes have come nobody is asked to keep waiting for a server that has nothing more to give.
int FtpCommands::finalReply() {
    const int code = control_.reply({226, 250}, {.Gone = [this] { return !data_.flows() || data_.received(); }});
    if (code != 0 || !data_.received()) return code;
    return control_.reply({226, 250}, {.Gone = [this] { return !data_.flows(); }, .Limit = FtpWait::Limit::Silent});
}

int FtpCommands::SendRest(std::int64_t offset) {
    return control_.command(line("REST", std::to_string(offset)), {350}, {.Late = commandOkay});
}

int FtpCommands::SendDele(std::string_view name) {
    return control_.command(line("DELE", name), {250});
}

int FtpCommands::SendMkd(std::string_view name) {
    return control_.command(line("MKD", name), {257});
}

int FtpCommands::SendRmd(std::string_view name) {
    return control_.command(line("RMD", name), {250});
}

int FtpCommands::SendRnfr(std::string_view name) {
    return control_.command(line("RNFR", name), {350});
}

int FtpCommands::SendRnto(std::string_view name) {
    return control_.command(line("RNTO", name), {250});
}

// The data connection is closed with it: a server that heeds the control connection only between two transfers would
// not see the command otherwise. The user has chosen to stop and is not asked to go on waiting.
int FtpCommands::SendAbor() {
    if (!control_.send("ABOR", "ABOR")) return 0;
    data_.clear();
    return control_.reply({226, 426}, {.Limit = FtpWait::Limit::Silent});
}

int FtpCommands::SendQuit() {
    return control_.command("QUIT", {221});
}

}  // namespace vell
