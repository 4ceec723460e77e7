// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Clock;
class ConnectionApi;
class EventLoop;
class Files;
class IniFile;
class Installation;
class InternetApi;
class MessageBoxes;
class Printers;
class Process;
class RasApi;
class Shell;
class Signatures;
class Sockets;
class Translations;

// Everything that the program has of the operating system, handed down by constructors. Owned by the program's main.
struct Platform {
    Clock& Time;
    EventLoop& Loop;
    Files& Disk;
    IniFile& Ini;
    InternetApi& Internet;
    Sockets& Net;
    ConnectionApi& Connection;
    RasApi& Ras;
    MessageBoxes& Boxes;
    Process& Program;
    Shell& DesktopShell;
    Printers& Printer;
    Signatures& Signing;
    Installation& Own;
    Translations& Words;

    // The same in another language.
    [[nodiscard]] Platform with(Translations& words) const {
        return {Time,  Loop,    Disk,         Ini,     Internet, Net, Connection, Ras,
                Boxes, Program, DesktopShell, Printer, Signing,  Own, words};
    }
    // The same with other message boxes.
    [[nodiscard]] Platform with(MessageBoxes& boxes) const {
        return {Time,  Loop,    Disk,         Ini,     Internet, Net, Connection, Ras,
                boxes, Program, DesktopShell, Printer, Signing,  Own, Words};
    }
};

}  // namespace vell
