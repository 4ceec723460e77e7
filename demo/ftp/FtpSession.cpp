// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpSession.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <map>
#include <set>
#include <utility>

#include <asio/co_spawn.hpp>

#include "base/text.h"
#include "demo/ftp/FtpListing.h"

namespace vell::demo {

namespace {

constexpr std::chrono::seconds idleAllowed{300};

// The name and password that every client of the service logs in with; users.tsv names the people.
constexpr std::string_view clientName = "vell";
constexpr std::string_view clientPassword = "ruxo";

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == 127;
}

bool isForAnyone(const std::string& verb) {
    static const std::set<std::string> verbs{"USER", "PASS", "QUIT", "NOOP", "SYST", "FEAT"};
    return verbs.contains(verb);
}

// What may be said while a transfer is under way; everything else waits for its end.
bool isForTransfers(const std::string& verb) {
    return verb == "ABOR" || verb == "NOOP" || verb == "STAT";
}

// Commands that other servers may know.
bool isKnownButMissing(const std::string& verb) {
    static const std::set<std::string> verbs{"SMNT", "REIN", "STOU", "HELP", "MDTM", "EPSV", "EPRT", "MLSD", "OPTS"};
    return verbs.contains(verb);
}

}  // namespace

FtpSession::FtpSession(asio::ip::tcp::socket socket, const ClippingsTree& users, const FtpTree& tree,
                       const SlowLine& line, const Journal& journal, ListForm form)
    : users_(users),
      tree_(tree),
      journal_(journal),
      idle_(socket.get_executor(), idleAllowed),
      control_(std::move(socket), line, journal),
      data_(idle_.executor(), control_.socket(), line, idle_),
      folders_(tree),
      ended_(idle_.executor()),
      form_(form) {}

asio::awaitable<void> FtpSession::run(std::shared_ptr<FtpSession> self) {
    self->idle_.start(self, [session = self.get()] { session->endAfterSilence(); });
    asio::co_spawn(
        self->idle_.executor(), [self] { return self->control_.writeReplies(); }, Journal::failure);
    self->control_.say(220, "vell-demo-service " VELL_VERSION " ready.");
    while (!self->isLeaving_) {
        const auto line = co_await self->control_.readLine(self->idle_);
        if (!line) break;
        co_await self->obey(*line);
        co_await self->control_.sent();
    }
    self->data_.close();
    co_await self->transferEnded();
    self->control_.finish();
    co_await self->control_.sent();
    self->control_.close();
    self->idle_.stop();
}

FtpSession::Handler FtpSession::handlerOf(const std::string& verb) {
    static const std::map<std::string, Handler> handlers{
        {"USER", &FtpSession::user}, {"PASS", &FtpSession::pass}, {"ACCT", &FtpSession::superfluous},
        {"QUIT", &FtpSession::quit}, {"NOOP", &FtpSession::noop}, {"ALLO", &FtpSession::superfluous},
        {"SYST", &FtpSession::syst}, {"FEAT", &FtpSession::feat}, {"STAT", &FtpSession::stat},
        {"SITE", &FtpSession::site}, {"TYPE", &FtpSession::type}, {"MODE", &FtpSession::mode},
        {"STRU", &FtpSession::stru}, {"PORT", &FtpSession::port}, {"PASV", &FtpSession::pasv},
        {"REST", &FtpSession::rest}, {"RETR", &FtpSession::retr}, {"STOR", &FtpSession::stor},
        {"APPE", &FtpSession::appe}, {"LIST", &FtpSession::list}, {"NLST", &FtpSession::nlst},
        {"ABOR", &FtpSession::abor},
    };
    const auto found = handlers.find(verb);
    return found == handlers.end() ? nullptr : found->second;
}

asio::awaitable<void> FtpSession::obey(const std::string& line) {
    const auto blank = line.find(' ');
    const std::string verb = Upper(line.substr(0, blank));
    const std::string argument = blank == std::string::npos ? std::string{} : line.substr(blank + 1);
    if (!isForTransfers(verb)) co_await transferEnded();
    if (std::any_of(line.begin(), line.end(), isControl))
        control_.say(501, "Control characters have no place in a command.");
    else
        answer(verb, argument);
}

void FtpSession::answer(const std::string& verb, const std::string& argument) {
    journal_.tell("FTP ", verb == "PASS" ? verb : verb + " " + argument);
    if (verb.empty()) return control_.say(500, "The line is empty or too long.");
    if (!isLoggedIn_ && !isForAnyone(verb)) return control_.say(530, "Log in with USER and PASS first.");
    if (const Handler handler = handlerOf(verb)) return (this->*handler)(argument);
    if (const auto reply = folders_.answer(verb, argument)) return control_.say(reply->Code, reply->Text);
    if (isKnownButMissing(verb)) return control_.say(502, "This command is not offered.");
    control_.say(500, "There is no such command.");
}

void FtpSession::endAfterSilence() {
    if (std::exchange(isLeaving_, true)) return control_.close();
    control_.say(421, "Silent for too long; closing the connection.");
    control_.stopReading();
    data_.close();
}

void FtpSession::user(const std::string& name) {
    isLoggedIn_ = false;
    userName_ = name;
    control_.say(331, "Give the password with PASS.");
}

void FtpSession::pass(const std::string& password) {
    isLoggedIn_ = (userName_ == clientName && password == clientPassword) || users_.isUser(userName_, password);
    isLoggedIn_ ? control_.say(230, "Logged in.") : control_.say(530, "The user name or the password is wrong.");
}

void FtpSession::quit(const std::string&) {
    isLeaving_ = true;
    control_.say(221, "Goodbye.");
}

void FtpSession::noop(const std::string&) {
    control_.say(200, "Still here.");
}

void FtpSession::superfluous(const std::string&) {
    control_.say(202, "Not needed here.");
}

void FtpSession::syst(const std::string&) {
    control_.say(215, form_ == ListForm::Dos ? "Windows_NT" : "UNIX Type: L8");
}

void FtpSession::feat(const std::string&) {
    control_.sayLines("211-Extensions:\r\n SIZE\r\n REST STREAM\r\n211 End.\r\n");
}

void FtpSession::stat(const std::string&) {
    control_.sayLines("211-vell-demo-service " VELL_VERSION "\r\n User: " + userName_ +
                      "\r\n Directory: " + textOf(folders_.current()) + "\r\n" +
                      (isTransferring_ ? " A transfer is under way.\r\n" : "") + "211 End.\r\n");
}

void FtpSession::site(const std::string& argument) {
    if (!equalNoCase(Trim(argument), "DIRSTYLE")) return control_.say(504, "SITE DIRSTYLE is all there is.");
    form_ = form_ == ListForm::Unix ? ListForm::Dos : ListForm::Unix;
    control_.say(200, form_ == ListForm::Dos ? "Listings are in DOS form now." : "Listings are in Unix form now.");
}

// Text files of the tree have CR LF already, so both types send the bytes as they lie.
void FtpSession::type(const std::string& argument) {
    static const std::set<std::string> types{"A", "A N", "I", "L 8"};
    types.contains(Upper(argument)) ? control_.say(200, "Type " + Upper(argument) + " it is.")
                                    : control_.say(504, "The types are A and I.");
}

void FtpSession::mode(const std::string& argument) {
    Upper(argument) == "S" ? control_.say(200, "Stream mode.") : control_.say(504, "The mode is S.");
}

void FtpSession::stru(const std::string& argument) {
    Upper(argument) == "F" ? control_.say(200, "File structure.") : control_.say(504, "The structure is F.");
}

void FtpSession::port(const std::string& argument) {
    data_.prepareActive(argument)
        ? control_.say(200, "Will connect there.")
        : control_.say(501, "Give six numbers with your own address and a port from 1024 on.");
}

void FtpSession::pasv(const std::string&) {
    const auto numbers = data_.preparePassive();
    numbers ? control_.say(227, "Entering Passive Mode (" + *numbers + ").")
            : control_.say(425, "There is no port to listen on.");
}

void FtpSession::rest(const std::string& argument) {
    std::uintmax_t offset = 0;
    const auto* end = argument.data() + argument.size();
    const auto read = std::from_chars(argument.data(), end, offset);
    if (argument.empty() || read.ptr != end || read.ec != std::errc{} || offset > INT64_MAX)
        return control_.say(501, "Give the number of bytes to leave out.");
    restart_ = offset;
    control_.say(350, "The next transfer starts at byte " + std::to_string(restart_) + ".");
}

void FtpSession::retr(const std::string& argument) {
    const auto offset = std::exchange(restart_, 0);
    const auto path = folders_.pathOf(argument);
    const auto file = path ? tree_.file(*path) : std::nullopt;
    if (!file) return control_.say(550, "There is no such file.");
    std::error_code problem;
    const auto size = std::filesystem::file_size(*file, problem);
    if (problem || offset > size) return control_.say(550, "The file ends before that byte.");
    start(path->back() + " (" + std::to_string(size - offset) + " bytes)",
          [this, file = *file, offset] { return data_.sendFile(file, offset); });
}

void FtpSession::stor(const std::string& argument) {
    const auto offset = std::exchange(restart_, 0);
    receive(argument, offset > 0 ? std::ios::in | std::ios::out : std::ios::trunc, offset);
}

void FtpSession::appe(const std::string& argument) {
    restart_ = 0;
    receive(argument, std::ios::app, 0);
}

void FtpSession::receive(const std::string& argument, std::ios::openmode openMode, std::uintmax_t offset) {
    const auto path = folders_.pathOf(argument);
    const auto file = path && !tree_.isDirectory(*path) ? tree_.writable(*path) : std::nullopt;
    std::error_code problem;
    if (!file) return control_.say(553, "Files can be put into the folders of the days and into \"upload\".");
    if (!std::filesystem::is_directory(file->parent_path(), problem))
        return control_.say(550, "There is no such directory.");
    start(path->back(), [this, file = *file, openMode, offset] { return data_.receiveFile(file, openMode, offset); });
}

std::optional<std::vector<FtpEntry>> FtpSession::entries(std::string argument) const {
    if (argument.starts_with('-')) argument.erase(0, argument.find(' '));  // "-la", as people type it
    argument = Trim(argument);
    std::string pattern;
    if (argument.find_first_of("*?") != std::string::npos) {
        const auto slash = argument.rfind('/') + 1;  // 0 when there is none
        pattern = argument.substr(slash);
        argument.erase(slash);
    }
    auto path = folders_.pathOf(argument);
    if (path && pattern.empty() && tree_.file(*path)) {
        pattern = path->back();
        path->pop_back();
    }
    if (!path || !tree_.isDirectory(*path)) return std::nullopt;
    auto found = tree_.list(*path);
    if (!pattern.empty())
        std::erase_if(found, [&](const FtpEntry& entry) { return !matchesPattern(pattern, entry.Name); });
    return found;
}

void FtpSession::list(const std::string& argument) {
    const auto found = entries(argument);
    if (!found) return control_.say(550, "There is no such directory.");
    start("Listing", [this, text = listing(*found, form_, std::time(nullptr))] { return data_.sendText(text); });
}

void FtpSession::nlst(const std::string& argument) {
    const auto found = entries(argument);
    if (!found) return control_.say(550, "There is no such directory.");
    start("Listing", [this, text = nameListing(*found)] { return data_.sendText(text); });
}

void FtpSession::abor(const std::string&) {
    isAborted_ = isTransferring_;
    data_.close();
    if (!isTransferring_) control_.say(226, "There was nothing to abort.");
}

void FtpSession::start(const std::string& what, Move move) {
    if (!data_.isPrepared()) return control_.say(425, "Give PORT or PASV first.");
    control_.say(150, what + " begins.");
    isTransferring_ = true;
    asio::co_spawn(idle_.executor(), transfer(shared_from_this(), std::move(move)), Journal::failure);
}

asio::awaitable<void> FtpSession::transfer(std::shared_ptr<FtpSession> self, Move move) {
    const TransferEnd end = co_await move();
    self->data_.close();
    self->isTransferring_ = false;
    self->tellEnd(end);
    self->ended_.raise();
}

void FtpSession::tellEnd(TransferEnd end) {
    if (std::exchange(isAborted_, false)) {
        control_.say(426, "The transfer was aborted.");
        control_.say(226, "Abort done.");
        return;
    }
    switch (end) {
        case TransferEnd::Whole:
            return control_.say(226, "All was transferred.");
        case TransferEnd::NotOpened:
            return control_.say(425, "The data connection could not be opened.");
        case TransferEnd::Cut:
            return control_.say(426, "The data connection was cut.");
        case TransferEnd::DiskProblem:
            return control_.say(451, "The file could not be read or written.");
    }
}

asio::awaitable<void> FtpSession::transferEnded() {
    while (isTransferring_)
        co_await ended_.wait();
}

}  // namespace vell::demo
