// SPDX-License-Identifier: MIT
#include <thread>

#include <gtest/gtest.h>

#include "store/ClippingName.h"
#include "store/DayIndex.h"
#include "store/IndexFile.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

class IndexTest : public testing::Test, protected StoreRig {
  protected:
    using Table = std::initializer_list<std::pair<const char*, const char*>>;
    // Lines end at "~".
    void file(const std::string& text) { put("ALLFILES.DIR", Replace(text, "~", "\r\n")); }
    [[nodiscard]] std::string file() const { return Replace(get("ALLFILES.DIR"), "\r\n", "~"); }
    void mark(const std::string& pdf, const std::string& change = "") {
        index.markDownloaded(day.gDayFolder, std::vector{ArrivedClipping{pdf, change}});
    }

    DayIndex index{files};
};

TEST_F(IndexTest, readsEveryRecordThatAnotherLineFollows) {
    for (const auto& [text, records] : Table{{"", ""},
                                             {"A||N||T||C||Y", ""},
                                             {"A||N||T||C||Y~", ""},
                                             {"A||N||T||C||Y~~", "<A><N><T><C><Y>"},
                                             {"A||N||T||C||Y~B", "<A><N><T><C><Y>"},
                                             {"A||N~B||M~C||L~", "<A><N><><>< ><B><M><><>< >"},
                                             {"A||.||.||.||.~~", "<A><><><>< >"},
                                             {"A||N||T||C|||.||1~~", "<A><N><T><C>< >"},
                                             {"A||N||T||C1|C2|C3||Y1|Y2||1~~", "<A><N><T><C1,C2,C3><Y1,Y2>"},
                                             {"A||..|| .||.x||.|~~", "<A><..>< .><.x><.,>"},
                                             {"HTML~~A~", "<HTML><><><>< ><><><><>< >"}}) {
        std::string read;
        for (const auto& r : readIndex(Replace(text, "~", "\r\n")))
            for (const auto* field : {&r.FileName, &r.NewspaperName, &r.Description, &r.Category, &r.ArticleType})
                read += "<" + *field + ">";
        EXPECT_EQ(read, records) << text;
    }
}

TEST_F(IndexTest, letsNoNameLeadOutOfTheDayFolder) {
    const std::string good =
        "A.PDF|\xC1\xC2 1.PDF|A.B.PDF|CONX.PDF|COM.PDF|COM10.PDF|A=B;[1].PDF|.PDF|" + std::string(98, '\xC1') + ".PDF";
    for (const auto name : Split(good, "|"))
        EXPECT_TRUE(isClippingName(name)) << name;
    const std::string bad = Replace(
        "@.@..@..\\A.PDF@../A.PDF@A/B.PDF@A\\B.PDF@\\A.PDF@C:A.PDF@A:B.PDF@A..PDF@A.PDF.@A.PDF @ A.PDF@A\tB.PDF@"
        "A\x7F.PDF@A*.PDF@A?.PDF@A<.PDF@A>.PDF@A|B.PDF@A\".PDF@CON.PDF@con.PDF@NUL.X.PDF@AUX "
        ".PDF@PRN.PDF@COM1.PDF@lpt9.PDF@"
        "CONIN$.PDF@ALLFILES.DIR@A.pdf@A.TXT@A%.PDF@" +
            std::string(197, 'A') + ".PDF@" + std::string(99, '\xC1') + ".PDF",
        "%", std::string(1, '\0'));
    for (const auto name : Split(bad, "@"))
        EXPECT_FALSE(isClippingName(name)) << name;
}

TEST_F(IndexTest, marksAClippingAndEndsTheFileWithAnEmptyLine) {
    for (const auto& [before, after] : Table{{"A||N||-||1", "A||N||d||1~~"},
                                             {"B||N||-||1~A||-||~", "B||N||-||1~A||d||~~"},
                                             {"A||-||-||-||~", "A||d||-||d||~~"},
                                             {"A||d||~~", "A||d||~~"},
                                             {"no field~~A||-||~A||x||-||~junk", "A||d||~A||x||d||~~"},
                                             {"a||-||~XA||-||~", "a||-||~XA||-||~~"},
                                             {"", "~"}}) {
        file(before);
        mark("A");
        EXPECT_EQ(file(), after) << before;
    }
    file("A||N||T||C||Y||1||-||9~B||-||~C||-||~");  // another version of A has come
    index.markDownloaded(day.gDayFolder, std::vector<ArrivedClipping>{{"A", "2"}, {"B", ""}});
    EXPECT_EQ(file(), "A||N||T||C||Y||2||d||9~B||d||~C||-||~~");
}

TEST_F(IndexTest, leavesAnIndexAsItIsThatCannotBeReplaced) {
    file("A||-||~");
    files.Trouble = "ALLFILES";
    EXPECT_THROW(mark("A"), RunTimeError);
    EXPECT_EQ(file(), "A||-||~");
    files.Trouble.clear();
    files.DeleteFile(day.gDayFolder + "ALLFILES.DIR");
    EXPECT_THROW(mark("A"), RunTimeError);
    EXPECT_FALSE(has("ALLFILES.DIR"));
}

TEST_F(IndexTest, ofTwoProgramsNoneLosesTheMarksOfTheOther) {
    std::string open, marked;
    for (const char name : std::string("abcdefghijklmnopqrstABCDEFGHIJKLMNOPQRST")) {
        open += name + std::string("||-||~");
        marked += name + std::string("||d||~");
    }
    file(open);
    {
        const auto program = [&](char first) {  // locks are of objects, so that two threads stand for it
            SystemFiles disk;
            DayIndex own(disk);
            for (char name = first; name < first + 20; ++name)
                own.markDownloaded(day.gDayFolder, std::vector{ArrivedClipping{std::string(1, name), ""}});
        };
        const std::jthread one(program, 'a'), another(program, 'A');
    }
    EXPECT_EQ(file(), marked + "~");
}

}  // namespace vell::test
