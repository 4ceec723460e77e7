// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "base/Date.h"
#include "log/EventLog.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "ui/find/DayListings.h"
#include "ui/find/FindPass.h"
#include "ui/find/FoldedTexts.h"

namespace vell {

class ClippingsBrowser;
class FindView;
class Translations;

// Narrows the list to the clippings that have the words which somebody types, in newspaper, title, category, type and,
// where that is wanted, in their texts; those of the chosen day, or of every day. Works in short steps in the event
// loop, so that the window stays awake, and lists what it has found so far. The texts stay in memory for the session.
class Finder {
  public:
    static constexpr std::size_t textMemory = std::size_t{54} << 20;  // bytes; with the listings 64 MB
    static constexpr std::size_t listingMemory = 20'000;              // clippings, of some 500 bytes each
    static constexpr std::size_t mostInAllDays = 1000;                // the newest of them
    // The window may draw and hear its user between two steps.
    static constexpr std::chrono::milliseconds longestStep{10};

    struct Parts {
        ClippingsBrowser& Browser;
        modGlobal& Store;
        const Files& Disk;
        EventLoop& Loop;
        const Clock& Time;
        const Translations& Words;
        EventLog& Log;
    };
    explicit Finder(const Parts& parts);
    ~Finder();
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;

    // Null for none.
    void showIn(FindView* view) { view_ = view; }

    // Each begins the search anew. Without a word everything is listed.
    void setTyped(std::string_view typed);
    void setInTexts(bool inTexts);
    void setInAllDays(bool inAllDays);
    // As if nothing had been typed; its box is told.
    void clear();
    [[nodiscard]] bool isSet() const { return !query_.isEmpty(); }
    [[nodiscard]] const FindQuery& query() const { return query_; }

    [[nodiscard]] bool isSearching() const { return pass_.has_value(); }
    // Ends the search before anything else happens.
    void finish();

  private:
    enum class Shows : std::uint8_t { AsItGoes, AtTheEnd };
    void dayWasRead();
    void search(Shows shows);
    void stop();
    // A step of the search. One that fails is its end, or it would fail at every tick.
    template <class Step>
    void attempt(Step&& step);
    void giveUp();
    void work();
    [[nodiscard]] bool searchUntil(SteadyTime deadline);
    [[nodiscard]] bool isEnough() const;
    void list(bool isComplete);
    void end();
    void tellStatus();
    [[nodiscard]] std::string progress() const;
    [[nodiscard]] std::string outcome() const;

    Parts p_;
    FindView* view_ = nullptr;
    FoldedTexts texts_;
    DayListings listings_;

    std::string typed_;
    FindQuery query_;
    bool inTexts_ = true;
    bool inAllDays_ = false;
    std::optional<Date> day_;  // that was chosen when the list was read last

    // Of the search under way.
    std::optional<FindPass> pass_;
    std::deque<Date> daysLeft_;
    std::size_t dayCount_ = 0;
    Shows shows_ = Shows::AsItGoes;
    bool isOver_ = false;  // all is found, but not yet listed
    SteadyTime nextList_{};
    bool readAgain_ = false;  // the day has been read again meanwhile
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell
