// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/errors.h"
#include "platform/SystemTypes.h"
#include "tests/support/TempFolder.h"
#include "tests/support/signatureVectors.h"

namespace vell::test {
namespace {

namespace v = vectors;

std::string withBitTurned(std::string bytes, std::size_t at) {
    bytes[at] = static_cast<char>(bytes[at] ^ 1);
    return bytes;
}

class SignaturesTest : public testing::Test {
  protected:
    TempFolder folder_;
    SystemFiles files_;
    SystemSignatures signatures_{files_};
};

TEST_F(SignaturesTest, believesWhatTheKeysOwnerHasSignedAndNothingElse) {
    std::string otherCurve = v::key;
    otherCurve[22] = '\x01';  // an object identifier that is no curve
    const struct {
        const char* Case;
        std::string Bytes, Signature, Key;
        bool IsSigned;
    } cases[] = {
        {"sample", "sample", v::ofSample, v::key, true},
        {"test", "test", v::ofTest, v::key, true},
        {"another's signature", "sample", v::ofTest, v::key, false},
        {"more bytes", "sample ", v::ofSample, v::key, false},
        {"none", "", v::ofSample, v::key, false},
        {"first number changed", "sample", withBitTurned(v::ofSample, 20), v::key, false},
        {"second number changed", "sample", withBitTurned(v::ofSample, 60), v::key, false},
        {"cut", "sample", v::ofSample.substr(0, v::ofSample.size() - 1), v::key, false},
        {"something behind", "sample", v::ofSample + '\0', v::key, false},
        {"no signature", "sample", "", v::key, false},
        {"both numbers 0", "sample", v::fromHex("3006020100020100"), v::key, false},
        {"point off the curve", "sample", v::ofSample, withBitTurned(v::key, 40), false},
        {"key cut", "sample", v::ofSample, v::key.substr(0, 90), false},
        {"something behind the key", "sample", v::ofSample, v::key + 'x', false},
        {"no curve", "sample", v::ofSample, otherCurve, false},
        {"no key", "sample", v::ofSample, "", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(signatures_.IsSigned(c.Bytes, c.Signature, c.Key), c.IsSigned) << c.Case;
}

TEST_F(SignaturesTest, knowsAFileByItsDigest) {
    const auto digestOf = [&](const std::string& bytes) {
        folder_.put("f", bytes);
        return signatures_.Sha256OfFile(folder_.text() + "\\f");
    };
    EXPECT_EQ(digestOf("abc"), v::digestOfAbc);
    EXPECT_EQ(digestOf(""), v::digestOfNothing);
    EXPECT_EQ(digestOf(std::string(1'000'000, 'a')), v::digestOfMillion);
    const std::string step(1U << 20, 'a');
    EXPECT_NE(digestOf(step), digestOf(step + 'a')) << "read in several steps";
    EXPECT_THROW((void)signatures_.Sha256OfFile(folder_.text() + "\\none"), RunTimeError);
}

}  // namespace
}  // namespace vell::test
