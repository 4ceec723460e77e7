// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/text.h"
#include "service/ListMerge.h"

namespace vell::test {
namespace {

std::string joined(const std::vector<std::string>& pieces) {
    std::string text;
    for (const std::string& piece : pieces)
        text += piece + ";";
    return text;
}

TEST(ListMergeTest, makesRecordsOfAnAnswer) {
    const std::pair<std::string, std::string> table[] = {
        {"a.pdf||n<br>b.pdf<BR>c<bR>", "A.PDF||N;B.PDF;C;;"},
        {"  a b  ", "A B;"},
        {"", ""},
        {"   ", ""},
        {"<br>", ";;"},
        {"a<b<br/><br", "A<B<BR/><BR;"},
        {"\xDC\xDD\xDE\xDF\xFC\xFD\xFE\xFA\xFB\xF2", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xD3;"},
        {"\xA2\xB8\xB9\xBA\xBC\xBE\xBF\xDA\xDB\xC0\xE0", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xC0\xE0;"},
        {std::string("a\0b", 3), std::string("A\0B;", 4)},
    };
    for (const auto& [answer, records] : table)
        EXPECT_EQ(joined(answerRecords(answer)), records) << answer;
}

TEST(ListMergeTest, carriesMarksOverAndNamesWhatHasGone) {
    const struct {
        std::string records, old, merged, gone;
    } table[] = {
        {"A||||||||||1||-||9", "A||||||||||1||d||9\r\n\r\n", "A||||||||||1||d||9;", ""},
        {"A||||||||2||-||9", "A||||||||||1||d||9\r\n", "A||||||||2||-||9;", ""},
        {"A||||||||||1||-||9", "A||||||||||1||-||9\r\n", "A||||||||||1||-||9;", ""},
        {"A||||||||||1||-||-||", "A||||||||||1||d", "A||||||||||1||d||-||;", ""},
        {"B||;C||", "A||\r\nB||\r\nBB||\r\nC||\r\nD||", "B||;C||;", "A;BB;D;"},
        {"A||;B||;D||", "B||||||||||x||d\r\nC||", "A||;B||;D||;", "C;"},
        {"", "A||\r\n\r\nB||\r\n", "", "A;B;"},
        {";A||;", "A||\r\nB||", ";A||;", "B;"},
        {"B||;A||", "A||\r\nB||", "B||;A||;", ""},  // out of order: nothing that is still listed goes
        {"C||;A||", "A||\r\nB||", "C||;A||;", "B;"},
        {"\xC1||", "Z||\r\n\xC1||||||||||d", "\xC1||;", "Z;"},  // bytes, not signed characters
        {"A||;A||", "A||", "A||;A||;", ""},
    };
    for (const auto& row : table) {
        const auto pieces = Split(row.records, ";");
        const Merged merged = mergeWithIndex({pieces.begin(), pieces.end()}, row.old);
        EXPECT_EQ(joined(merged.Records), row.merged + (row.records.ends_with(';') ? ";" : "")) << row.old;
        EXPECT_EQ(joined(merged.GoneFiles), row.gone) << row.old;
    }
}

}  // namespace
}  // namespace vell::test
