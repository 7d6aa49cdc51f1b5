#include "host/qelcore/FourCC.h"

#include <gtest/gtest.h>

namespace {

using qelcore::utility::FourCCToString;

TEST(FourCC, TheHighestByteIsTheFirstCharacter) {
  EXPECT_EQ(FourCCToString(0x6170636E), u"apcn");
}

TEST(FourCC, TrailingBlanksAndZeroBytesAreLeftOut) {
  EXPECT_EQ(FourCCToString(0x72617720), u"raw");
  EXPECT_EQ(FourCCToString(0x64760000), u"dv");
  EXPECT_EQ(FourCCToString(0x61002000), u"a");
}

TEST(FourCC, UnprintableBytesBecomeQuestionMarks) {
  EXPECT_EQ(FourCCToString(0x00617A7F), u"?az?");
  EXPECT_EQ(FourCCToString(0xFF410A42), u"?A?B");
}

TEST(FourCC, InnerBlanksStay) {
  EXPECT_EQ(FourCCToString(0x41204220), u"A B");
}

TEST(FourCC, ZeroIsEmpty) {
  EXPECT_EQ(FourCCToString(0), u"");
}

}  // namespace
