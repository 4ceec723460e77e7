// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpFolderCommands.h"

#include <utility>

#include "base/text.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

// A quotation mark inside is doubled (RFC 959, appendix II); plain names hold none.
std::string quoted(const FtpPath& path) {
    return std::string(1, '"').append(textOf(path)).append(1, '"');
}

const FtpReply noSuchFile{550, "There is no such file."};
const FtpReply readOnly{550, "Only the folders of the days and \"upload\" can be changed."};

FtpReply outcome(const std::error_code& problem, int code, std::string text) {
    return problem ? FtpReply{550, problem.message() + "."} : FtpReply{code, std::move(text)};
}

}  // namespace

std::optional<FtpReply> FtpFolderCommands::answer(const std::string& verb, const std::string& argument) {
    if (verb == "PWD" || verb == "XPWD") return FtpReply{257, quoted(current_) + " is the current directory."};
    if (verb == "CDUP" || verb == "XCUP") return enter("..");
    if (verb == "CWD" || verb == "XCWD") return enter(argument);
    if (verb == "MKD" || verb == "XMKD") return makeDirectory(argument);
    if (verb == "RMD" || verb == "XRMD") return remove(argument, true);
    if (verb == "DELE") return remove(argument, false);
    if (verb == "RNFR") return renameFrom(argument);
    if (verb == "RNTO") return renameTo(argument);
    if (verb == "SIZE") return size(argument);
    return std::nullopt;
}

std::optional<FtpPath> FtpFolderCommands::pathOf(const std::string& argument) const {
    return FtpTree::resolve(current_, argument);
}

std::optional<fs::path> FtpFolderCommands::writable(const std::string& argument) const {
    const auto path = pathOf(argument);
    return path && !argument.empty() ? tree_.writable(*path) : std::nullopt;
}

FtpReply FtpFolderCommands::enter(const std::string& argument) {
    const auto path = pathOf(argument);
    if (!path || !tree_.isDirectory(*path)) return {550, "There is no such directory."};
    current_ = *path;
    return {250, quoted(current_) + " is the current directory."};
}

FtpReply FtpFolderCommands::makeDirectory(const std::string& argument) {
    const auto place = writable(argument);
    if (!place) return readOnly;
    std::error_code problem;
    if (!fs::create_directory(*place, problem) && !problem) return {550, "The name is taken."};
    return outcome(problem, 257, quoted(*pathOf(argument)) + " was made.");
}

FtpReply FtpFolderCommands::remove(const std::string& argument, bool directory) {
    const auto place = writable(argument);
    if (!place) return readOnly;
    std::error_code problem;
    if (!fs::exists(*place, problem) || fs::is_directory(*place, problem) != directory) return noSuchFile;
    fs::remove(*place, problem);
    return outcome(problem, 250, "Deleted.");
}

FtpReply FtpFolderCommands::renameFrom(const std::string& argument) {
    renamed_ = writable(argument);
    std::error_code problem;
    if (!renamed_) return readOnly;
    if (fs::exists(*renamed_, problem)) return {350, "Give the new name with RNTO."};
    renamed_.reset();
    return noSuchFile;
}

FtpReply FtpFolderCommands::renameTo(const std::string& argument) {
    const auto from = std::exchange(renamed_, std::nullopt);
    if (!from) return {503, "Give the old name with RNFR first."};
    const auto to = writable(argument);
    if (!to) return readOnly;
    std::error_code problem;
    fs::rename(*from, *to, problem);
    return outcome(problem, 250, "Renamed.");
}

FtpReply FtpFolderCommands::size(const std::string& argument) {
    const auto path = pathOf(argument);
    const auto file = path ? tree_.file(*path) : std::nullopt;
    if (!file) return noSuchFile;
    std::error_code problem;
    const auto bytes = fs::file_size(*file, problem);
    return outcome(problem, 213, std::to_string(bytes));
}

}  // namespace vell::demo
