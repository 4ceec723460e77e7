// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"
#include "ui/ClippingsBrowser.h"
#include "ui/days/DayCounts.h"
#include "ui/dialogs/frmFilter.h"
#include "ui/find/FindView.h"
#include "ui/find/Finder.h"

namespace vell::test {

class FinderTest : public testing::Test, protected StoreRig, protected FindView {
  protected:
    FinderTest() {
        for (const char* name : {"A", "B", "C"})
            put(name + std::string(".PDF"), "x");
        put("ALLFILES.DIR", index("A.PDF||THE WAVE||\xD0\xCF\xC4\xCF\xD3\xD6\xC1\xC9\xD1\xCF||Sport") +
                                index("B.PDF||WAVE||NEWS||Sport") + index("C.PDF||LAMP||HARBOUR||Art"));
        put("A.TXT", "\xCF \xF0\xFC\xEB\xE5\xEC\xEF\xF2\r\nthe harbour");  // with a final sigma
        put("B.TXT", std::string(FoldedTexts::pieceSize - 4, '.') + "Harbour " + std::string(9999, '.'));
        folder.put("clips/08032004/D.PDF", "x");
        folder.put("clips/08032004/D.TXT", "the wave");
        browser.PopulateDateCombo();
        browser.chooseDay(march7);
        finder.showIn(this);
    }
    static std::string index(const std::string& fields) { return fields + "||Y\r\n\r\n"; }
    void showFindStatus(std::string_view text) override {
        status = text;
        if (text == refused) throw RunTimeError(5, "refused");
    }
    void showFindChoice(std::string_view typed, bool inAllDays) override {
        choice = std::string(typed) + (inAllDays ? "!" : ".");
    }
    // The file names of what is listed.
    std::string found() {
        finder.finish();
        std::string names;
        for (const ClippingRow& row : browser.rows())
            names += row.File->FileName.front();
        return names;
    }
    std::string find(const std::string& typed) {
        finder.setTyped(typed);
        return found();
    }

    RecordingView view;
    DayCounts counts{{store, loop, clock, log}};
    ClippingsBrowser browser{{store, files, view, clock, log, setup, day, english, counts}};
    Finder finder{{browser, store, files, loop, clock, english, log}};
    std::string status = "-", choice, refused = "-";
};

TEST_F(FinderTest, findsWordsInAnyOrderWhateverTheirCaseAndAccents) {
    for (const auto& [typed, names] : std::initializer_list<std::pair<const char*, const char*>>{
             {"wave", "AB"},
             {"WAV the", "A"},
             {"wavenews", ""},
             {"harbour", "ABC"},
             {"\xF0\xEF\xE4\xFC\xF3\xF6\xE1\xE9\xF1\xEF", "A"},
             {"\xD0\xDC\xEB\xE5\xEC\xEF\xF3", ""},
             {"\xF0\xEF\xEB\xE5\xEC\xEF\xF3 sport", "A"},  // with another sigma
             {"harbour. wave", ""},
             {"harbour wave", "AB"},
             {"  ", "ABC"}}) {
        EXPECT_EQ(find(typed), names) << typed;
        EXPECT_EQ(std::exchange(view.Hint, ""), *names ? "" : "Nothing found|No clipping has all these words.");
    }
    finder.setInTexts(false);
    EXPECT_EQ(find("harbour"), "C");
    browser.setFilter({{"Art"}, {}});
    EXPECT_EQ(find("sport"), "");
    browser.setFilter({});
    EXPECT_EQ(find("sport"), "AB");
    EXPECT_EQ(view.Count, "2 of 3, 2 unread");
    finder.clear();
    EXPECT_EQ(found() + choice, "ABC.");
}

TEST_F(FinderTest, tellsWhereTheWordsStandInAText) {
    const auto places = [](std::string_view text, const char* typed) {
        std::string marked(text);
        const auto found = foundPlaces(text, FindQuery(typed), 2);
        for (auto place = found.rbegin(); place != found.rend(); ++place)
            marked.insert(place->From + place->Length, ">").insert(place->From, "<");
        return marked;
    };
    EXPECT_EQ(places("a wAve, a harbour wave", "WAVE harb our"), "a <wAve>, a <harbour> <wave>");
    EXPECT_EQ(places("aaaaaa", "aa"), "<aaaa>aa");
    EXPECT_EQ(places("banana", "nan ban"), "<banan>a");
    EXPECT_EQ(places("an", "anan"), "an");
}

TEST_F(FinderTest, goesThroughAllDaysUntilAnotherOneIsChosen) {
    EXPECT_EQ(find("wave"), "AB");
    finder.setInAllDays(true);
    EXPECT_EQ(found() + status, "DAB3 found in 2 days");
    store.MarkFileOpened(browser.rows().front().path());
    browser.refresh();
    EXPECT_EQ(found() + (browser.rows().front().Opened ? "!" : "") + choice, "DAB!");
    const auto newspapers = [this] {
        const frmFilter dialog(browser);
        std::string names;
        for (std::size_t entry = 0; entry < dialog.lstNewspapers.size(); ++entry)
            names += dialog.lstNewspapers.text(entry, english) + ";";
        return names + std::to_string(dialog.passing());
    };
    EXPECT_EQ(newspapers(), "Any (3);THE WAVE (1);WAVE (1);None (1);3") << "of what was found";
    browser.setFilter({{}, {}, {"LAMP"}});
    EXPECT_EQ(found() + view.Hint, "Nothing passes the filter|3 clippings that were found are hidden.");
    browser.setFilter({});
    browser.chooseDay(march8);
    EXPECT_EQ(found() + status + choice, "Dwave.");
    finder.setInAllDays(true);
    EXPECT_EQ(find("") + status, "D");
}

TEST_F(FinderTest, searchesAgainWhatHasCome) {
    EXPECT_EQ(find("tower"), "");
    put("B.TXT", "towers");
    put("E.PDF", "x");
    put("E.TXT", "a tower");
    std::filesystem::create_directory(folder.path() / "clips/07032004/C.TXT");
    browser.refresh();
    EXPECT_EQ(found() + status, "BE1 text could not be read");
}

TEST_F(FinderTest, aSearchThatFailsEndsIsLoggedOnceAndLeavesTheNextOneAlone) {
    finder.setTyped("wave");
    refused = "";  // what is told in the end
    logged();
    EXPECT_EQ(found() + status, "ABThe search broke off");
    EXPECT_EQ(Split(logged(), "Find()").size() - 1, 1U);
    finder.setTyped("lamp");
    for (int i = 0; i < 9; ++i) {
        clock.advance(std::chrono::milliseconds{1});
        loop.DoEvents();
    }
    EXPECT_FALSE(finder.isSearching());
    EXPECT_EQ(Split(logged(), "Find()").size() - 1, 1U);
    refused = "-";
    EXPECT_EQ(find("harbour") + status, "ABC");
}

TEST_F(FinderTest, whatIsPastedBeyondAllLengthIsCut) {
    EXPECT_EQ(FindQuery(std::string(100'000, 'x')), FindQuery(std::string(200, 'x')));
    EXPECT_EQ(find("wave " + std::string(195, ' ') + "nowhere"), "AB");
}

// Texts that do not fit stay out, and what an earlier search has used gives way.
TEST(TextCacheTest, keepsWhatFitsAndIsUsed) {
    TextCache cache(3000);
    const auto keep = [&](const char* path) { cache.keep(path, {std::string(1000, 'x'), {}, 0}); };
    const auto kept = [&] {
        std::string paths;
        for (const char* path : {"a", "b", "c"})
            if (cache.find(path)) paths += path;
        return paths;
    };
    cache.beginSearch();
    keep("a");
    keep("b");
    keep("c");
    EXPECT_EQ(kept(), "ab");
    cache.beginSearch();
    EXPECT_NE(cache.find("a"), nullptr);
    EXPECT_TRUE(cache.hasRoom("c", 1000));
    keep("c");
    EXPECT_EQ(kept(), "ac");
    keep("b");
    EXPECT_EQ(kept(), "ac");
    EXPECT_LE(cache.bytes(), 3000U);
}

}  // namespace vell::test
