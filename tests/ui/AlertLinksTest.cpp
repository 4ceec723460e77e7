// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ui/AlertLinks.h"
#include "ui/PictureSize.h"

namespace vell::test {
namespace {

TEST(AlertLinksTest, findsWholeAddressesAndNothingThatOnlyLooksLikeOne) {
    const std::pair<std::string, std::string> table[] = {
        {"see http://a.gr/x?y=1.", "[http://a.gr/x?y=1]"},
        {"(HTTPS://a.gr/(b)), mailto:ann@a.gr!", "[HTTPS://a.gr/(b)][mailto:ann@a.gr]"},
        {"http://a.gr\nhttp://b.gr<br>\"http://c.gr\"", "[http://a.gr][http://b.gr][http://c.gr]"},
        {"http://g\xEF"
         "ogle.gr",
         "[http://g]"},  // a Greek letter that looks like another
        {"http:// https://. mailto: xhttp://a.gr file:///etc www.a.gr javascript:1", ""}};
    for (const auto& [text, expected] : table) {
        std::string found;
        for (const AddressPlace& place : addressesIn(text))
            found += "[" + text.substr(place.Begin, place.Length) + "]";
        EXPECT_EQ(found, expected);
    }
}

TEST(AlertLinksTest, aGifOfManyFramesIsAsLargeAsAllOfThem) {
    using namespace std::string_literals;
    const std::string head = "GIF89a\x00\x10\x00\x01\x80\x00\x00"s + std::string(6, 'c');  // 4096 x 256, two colours
    const std::string frame =
        "!\xF9\x01x\x00,\x00\x00\x00\x00\x00\x10\x00\x01\x81"s + std::string(12, 'c') + "\x08\x02zz\x00"s;
    std::string frames;
    for (int count = 1; count <= 16; ++count) {
        frames += frame;
        EXPECT_EQ(isDecentPicture(head + frames + ";"), count <= 15) << count;
    }
    EXPECT_TRUE(isDecentPicture(head + frame + ";" + frames)) << "what stands behind the end";
    EXPECT_FALSE(isDecentPicture(head + frame + "?;"));
}

}  // namespace
}  // namespace vell::test
