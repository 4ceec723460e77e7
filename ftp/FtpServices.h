// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Clock;
class ErrorLog;
class EventLoop;
class Files;
class MessageBoxes;
class Sockets;
class TextLog;
class TimeoutCounter;

// What a connection needs of the program around it. All of it outlives the connection.
struct FtpServices {
    Sockets& Net;
    EventLoop& Loop;
    Files& Disk;
    MessageBoxes& Boxes;
    const Clock& Time;
    TimeoutCounter& Seconds;  // the program's one counter
    ErrorLog& Errors;
    TextLog& Log;
};

}  // namespace vell
