// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace vell {

// An unexpected error inside a procedure, with what the log tells of it. Texts are in code page 1253.
class RunTimeError : public std::exception {
  public:
    RunTimeError(std::int32_t number, std::string description, std::string source = "Vell",
                 std::int32_t lastSystemError = 0)
        : Number(number),
          Source(std::move(source)),
          Description(std::move(description)),
          LastSystemError(lastSystemError) {}

    [[nodiscard]] const char* what() const noexcept override { return Description.c_str(); }

    std::int32_t Number;
    std::string Source;
    std::string Description;
    std::string HelpFile;
    std::int32_t HelpContext = 0;
    std::int32_t LastSystemError;  // the operating system's own number (errno, GetLastError), 0 when it has no part
};

// The numbers of the errors that several places raise.
namespace error_number {
inline constexpr std::int32_t InvalidCall = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t SubscriptOutOfRange = 9;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t BadFileName = 52;
inline constexpr std::int32_t FileNotFound = 53;
inline constexpr std::int32_t DeviceError = 57;
inline constexpr std::int32_t FileExists = 58;
inline constexpr std::int32_t DiskFull = 61;
inline constexpr std::int32_t PermissionDenied = 70;
inline constexpr std::int32_t PathAccess = 75;
inline constexpr std::int32_t PathNotFound = 76;
}  // namespace error_number

// Where a trapped error is told. The event log implements it.
class ErrorLog {
  public:
    virtual ~ErrorLog() = default;
    // Never throws. `procedure` is the logged name, such as "GetSetup()".
    virtual void LogError(const RunTimeError& error, std::string_view procedure) noexcept = 0;
};

// Where a procedure says what it does. The event log implements it.
class TextLog {
  public:
    virtual ~TextLog() = default;
    virtual void WriteLog(std::string_view text) noexcept = 0;
};

// The error being handled, as a RunTimeError. To be called inside a catch block only.
[[nodiscard]] RunTimeError currentError();

// Runs `body`; an error that escapes it is logged under the procedure's name and `failure` is returned.
// This is how every public procedure keeps its errors to itself.
template <class Result, class Body>
Result trap(ErrorLog& log, std::string_view procedure, Result failure, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        log.LogError(currentError(), procedure);
        return failure;
    }
}

// The same for a procedure, or one step of it, that has no result.
template <class Body>
void trapStep(ErrorLog& log, std::string_view procedure, Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        log.LogError(currentError(), procedure);
    }
}

}  // namespace vell
