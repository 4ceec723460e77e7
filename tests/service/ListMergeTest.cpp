// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/text.h"
#include "service/ListMerge.h"

namespace vell::test {

std::string joined(const std::vector<std::string>& pieces) {
    std::string text;
    for (const std::string& piece : pieces)
        text += piece + ";";
    return text;
}

TEST(ListMergeTest, makesRecordsOfAnAnswer) {
    for (const auto& [answer, records] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a.pdf||n<br>b.pdf<BR>c<bR>", "A.PDF||N;B.PDF;C;;"},
             {"  a b  ", "A B;"},
             {"   ", ""},
             {"a<b<br/><br", "A<B<BR/><BR;"},
             {"\xDC\xDD\xDE\xDF\xFC\xFD\xFE\xFA\xFB\xF2", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xD3;"},
             {"\xA2\xB8\xB9\xBA\xBC\xBE\xBF\xDA\xDB\xC0\xE0", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xC0\xE0;"}})
        EXPECT_EQ(joined(answerRecords(answer)), records) << answer;
}

TEST(ListMergeTest, carriesMarksOverAndNamesWhatHasGone) {
    const struct {
        std::string records, old, merged, gone;  // records and lines end at ";"
    } table[] = {
        {"A||N||T||C||Y||1||-||9", "A||n||t||c||y||1||d||8;;", "A||N||T||C||Y||1||d||9;", ""},
        {"A||N||T||C||Y||2||-||9", "A||n||t||c||y||1||d||8;", "A||N||T||C||Y||2||-||9;", ""},
        {"A||N||T||C||Y||1||-||9", "A||n||t||c||y||1||-||8;", "A||N||T||C||Y||1||-||9;", ""},
        {"A||N||T||C||Y||1||-||-||", "A||n||t||c||y||1||d", "A||N||T||C||Y||1||d||-||;", ""},
        {"B||;C||", "A||;B||;BB||;C||;D||", "B||;C||;", "A;BB;D;"},
        {"A||;B||;D||", "B||;C||", "A||;B||;D||;", "C;"},
        {"", "A||;;B||;", "", "A;B;"},
        {"C||;A||", "A||;B||", "C||;A||;", "B;"},   // out of order: nothing goes that is still listed
        {"\xC1||", "Z||;\xC1||", "\xC1||;", "Z;"},  // by byte, and bytes have no sign
        {"A||;A||", "A||", "A||;A||;", ""},
    };
    for (const auto& row : table) {
        const auto pieces = Split(row.records, ";");
        const Merged merged = mergeWithIndex({pieces.begin(), pieces.end()}, Replace(row.old, ";", "\r\n"));
        EXPECT_EQ(joined(merged.Records), row.merged) << row.old;
        EXPECT_EQ(joined(merged.GoneFiles), row.gone) << row.old;
    }
}

}  // namespace vell::test
