// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/base64.h"

namespace vell::test {
namespace {

TEST(Base64Test, knowsOneTextForEachRowOfBytesAndNoOther) {
    for (const auto& [text, bytes] : {std::pair("", ""),
                                      {"Zg==", "f"},
                                      {"Zm8=", "fo"},
                                      {"Zm9v", "foo"},
                                      {"Zm9vYg==", "foob"},
                                      {"+/8=", "\xFB\xFF"}})
        EXPECT_EQ(bytesFromBase64(text), bytes) << text;
    for (const char* text : {"Z", "Zg", "Zg=", "Zh==", "Zm9=", "Zm9v\n", "Zm 9", "Zg==Zg==", "====", "Z===", "-_8="})
        EXPECT_EQ(bytesFromBase64(text), std::nullopt) << text;
}

}  // namespace
}  // namespace vell::test
