// SPDX-License-Identifier: MIT
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
    int mark(const std::string& pdf, std::string_view change = "") {
        return index.markDownloaded(day.gDayFolder, pdf, change);
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
        EXPECT_EQ(mark("A"), static_cast<int>(Split(after, "A||").size()) - 1 - (after[0] == 'a')) << before;
        EXPECT_EQ(file(), after);
    }
    file("A||-||~B||-||~");
    mark("A");
    mark("B");
    EXPECT_EQ(file(), "A||d||~B||d||~~");
    file("A||N||T||C||Y||1||-||9~B||-||~");  // another version of A has come
    mark("A", "2");
    mark("B");
    EXPECT_EQ(file(), "A||N||T||C||Y||2||d||9~B||d||~~");
    file("C||-||1~D||-||~");  // somebody else has changed it
    EXPECT_EQ(mark("C"), 1);
    EXPECT_EQ(file(), "C||d||1~D||-||~~");
}

TEST_F(IndexTest, forgetsAMarkThatDidNotReachTheFile) {
    file("A||-||~B||-||~");
    // First the whole file cannot be written, then one byte of it.
    for (const auto& [kept, next, after] :
         {std::tuple{"A||-||~B||-||~", "B", "A||-||~B||d||~~"}, {"A||-||~B||d||~~", "A", "A||d||~B||d||~~"}}) {
        files.Trouble = "ALLFILES";
        EXPECT_THROW(mark("A"), RunTimeError);
        EXPECT_EQ(file(), kept);
        files.Trouble.clear();
        mark(next);
        EXPECT_EQ(file(), after);
    }
    files.DeleteFile(day.gDayFolder + "ALLFILES.DIR");
    EXPECT_THROW(mark("A"), RunTimeError);
    EXPECT_FALSE(has("ALLFILES.DIR"));
}

}  // namespace vell::test
