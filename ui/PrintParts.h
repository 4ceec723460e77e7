// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Articles;
class ClippingsBrowser;
class EventLog;
class EventLoop;
class MessageBoxes;
class Printers;
class Translations;
class modGlobal;
struct Settings;

// What the printing commands work with.
struct PrintParts {
    ClippingsBrowser& Browser;
    modGlobal& Store;
    Articles& Article;
    EventLoop& Loop;
    MessageBoxes& Boxes;
    Printers& Printer;
    EventLog& Log;
    const Settings& Setup;
    const Translations& Words;
};

// The documents that are printed one after the other, one batch at a time. Whoever asks it to stop is heard before the
// next document.
struct PrintBatch {
    bool IsUnderWay = false;
    bool StopRequested = false;
};

}  // namespace vell
