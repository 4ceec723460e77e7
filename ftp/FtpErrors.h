// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

// The client's own error numbers that callers tell apart, or that are set outside the tables of FtpErrors.cpp.
namespace ftp_error {
inline constexpr std::int32_t ConnectionAborted = 5;
inline constexpr std::int32_t ConnectionRefused = 6;
inline constexpr std::int32_t ConnectionReset = 7;
inline constexpr std::int32_t HostNotFound = 9;
inline constexpr std::int32_t HostNotFoundTryAgain = 10;
inline constexpr std::int32_t NetworkUnreachable = 19;
inline constexpr std::int32_t NoAddress = 21;
inline constexpr std::int32_t ConnectTimedOut = 33;
inline constexpr std::int32_t ServiceReadyLater = 37;
inline constexpr std::int32_t ServiceNotAvailable = 41;  // as for reply 421
inline constexpr std::int32_t TransferAborted = 43;      // as for reply 426
inline constexpr std::int32_t UnknownCommand = 47;       // as for reply 500
inline constexpr std::int32_t BadArgument = 48;          // as for reply 501
inline constexpr std::int32_t UnknownParameter = 51;     // as for reply 504
inline constexpr std::int32_t FileUnavailable = 54;      // as for reply 550
inline constexpr std::int32_t TimedOut = 58;
inline constexpr std::int32_t TransferInProgress = 59;
}  // namespace ftp_error

// Numbers of the socket component that the client itself reports.
namespace socket_error {
inline constexpr std::int32_t InvalidPropertyValue = 380;
inline constexpr std::int32_t Canceled = 10004;
inline constexpr std::int32_t InvalidArgument = 10014;
inline constexpr std::int32_t InProgress = 10036;
inline constexpr std::int32_t MessageTooBig = 10040;
inline constexpr std::int32_t AddressNotAvailable = 10049;
inline constexpr std::int32_t ConnectionReset = 10054;
inline constexpr std::int32_t NotConnected = 10057;
inline constexpr std::int32_t TimedOut = 10060;
}  // namespace socket_error

// The last failure of a connection: a number that callers compare, and a text. Success does not clear it.
class FtpErrors {
  public:
    // Records what a reply code stands for. False, and nothing touched, for a code that is not known; success codes
    // are known and record nothing.
    bool CheckReplyCode(std::int32_t code);
    // Records a run-time error. False for a number that is not a socket's: the text is replaced all the same.
    bool MapSocketError(std::int32_t socketError, std::string_view description);

    // Some numbers leave the text as it is.
    void set(std::int32_t number) { number_ = number; }
    void set(std::int32_t number, std::string_view text);

    [[nodiscard]] std::int32_t number() const { return number_; }
    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::int32_t number_ = 0;
    std::string text_;
};

}  // namespace vell
