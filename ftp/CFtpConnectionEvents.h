// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace vell {

// What a connection tells its owner. It does so while an operation of the owner's waits or works; a handler may let
// events happen, and may call CancelTransfer, BreakeConnection and CloseConnection.
class CFtpConnectionEvents {
  public:
    virtual ~CFtpConnectionEvents() = default;

    // 0 resolving the name, 1 connecting, 2 waiting for the greeting, 3 logging in, 5 opening a data connection,
    // 6 data connection ready, 7 listing requested, 8 listing received, 9 transfer accepted, 10 transfer finished.
    virtual void StateChanged(std::int32_t state) = 0;
    // Bytes of the file that are here, those from before a resumed download included.
    virtual void DownloadProgress(std::int32_t bytes) = 0;
    virtual void UploadProgress(std::int32_t bytes) = 0;
    // A command that was sent (the password masked), a reply, or the address of a data connection. Ends with CR LF.
    virtual void ReplyMessage(std::string_view text) = 0;
};

}  // namespace vell
