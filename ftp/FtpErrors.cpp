// SPDX-License-Identifier: MIT
#include "ftp/FtpErrors.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vell {

namespace {

// Ordered by the names of the component's constants; the index is the client's number.
constexpr std::array<std::int32_t, 37> socketErrors{
    10048,  // sckAddressInUse
    10049,  // sckAddressNotAvailable
    10037,  // sckAlreadyComplete
    10056,  // sckAlreadyConnected
    40006,  // sckBadState
    10053,  // sckConnectAborted
    10061,  // sckConnectionRefused
    10054,  // sckConnectionReset
    394,    // sckGetNotSupported
    11001,  // sckHostNotFound
    11002,  // sckHostNotFoundTryAgain
    10036,  // sckInProgress
    40014,  // sckInvalidArg
    10014,  // sckInvalidArgument
    40020,  // sckInvalidOp
    380,    // sckInvalidPropertyValue
    10040,  // sckMsgTooBig
    10052,  // sckNetReset
    10050,  // sckNetworkSubsystemFailed
    10051,  // sckNetworkUnreachable
    10055,  // sckNoBufferSpace
    11004,  // sckNoData
    11003,  // sckNonRecoverableError
    10057,  // sckNotConnected
    10093,  // sckNotInitialized
    10038,  // sckNotSocket
    10004,  // sckOpCanceled
    7,      // sckOutOfMemory
    40021,  // sckOutOfRange
    10043,  // sckPortNotSupported
    383,    // sckSetNotSupported
    10058,  // sckSocketShutdown
    40017,  // sckSuccess
    10060,  // sckTimedout
    40018,  // sckUnsupported
    10035,  // sckWouldBlock
    40026,  // sckWrongProtocol
};

constexpr std::array<std::int32_t, 19> successCodes{110, 120, 125, 150, 200, 202, 211, 212, 213, 214,
                                                    215, 220, 221, 225, 226, 227, 230, 250, 257};

struct ReplyError {
    std::int32_t Code;
    std::int32_t Number;
    std::string_view Text;  // empty: the text stays
};
constexpr std::array<ReplyError, 20> replyErrors{{
    {331, 38, ""},
    {332, 39, ""},
    {350, 40, ""},
    {421, 41, "Service not available, closing control connection."},
    {425, 42, "Can't open data connection."},
    {426, 43, "Connection closed; transfer aborted."},
    {450, 46, "Requested file action not taken."},
    {451, 45, "Requested action aborted: local error in processing."},
    {452, 46, "Requested action not taken. Insufficient storage space in system."},
    {500, 47, "Syntax error, command unrecognized."},
    {501, 48, "Syntax error in parameters or arguments."},
    {502, 49, "Command not implemented."},
    {503, 50, "Bad sequence of commands."},
    {504, 51, "Command not implemented for that parameter."},
    {530, 52, "Not logged in."},
    {532, 53, "Need account for storing files."},
    {550, 54, "Requested action not taken. File unavailable (e.g., file not found, no access)."},
    {551, 55, "Requested action aborted: page type unknown."},
    {552, 56, "Requested file action aborted. Exceeded storage allocation (for current directory or dataset)."},
    {553, 57, "Requested action not taken. File name not allowed."},
}};

}  // namespace

bool FtpErrors::CheckReplyCode(std::int32_t code) {
    if (std::ranges::binary_search(successCodes, code)) return true;
    const auto* const found = std::ranges::find(replyErrors, code, &ReplyError::Code);
    if (found == replyErrors.end()) return false;
    number_ = found->Number;
    if (!found->Text.empty()) text_ = found->Text;
    return true;
}

bool FtpErrors::MapSocketError(std::int32_t socketError, std::string_view description) {
    text_ = description;
    const auto* const found = std::ranges::find(socketErrors, socketError);
    if (found == socketErrors.end()) return false;
    number_ = static_cast<std::int32_t>(found - socketErrors.begin());
    return true;
}

void FtpErrors::set(std::int32_t number, std::string_view text) {
    number_ = number;
    text_ = text;
}

}  // namespace vell
