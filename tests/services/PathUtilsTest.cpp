#include "host/ZSL/PathUtils.h"

#include <gtest/gtest.h>

namespace {

using ZSL::PathUtils::GetDisplayStringFromPath;

TEST(PathUtils, SeparatorsOfEveryPlatformAreShownAsTheyAre) {
  EXPECT_EQ(GetDisplayStringFromPath("/media//a b\\c.mov"), u"/media//a b\\c.mov");
  EXPECT_EQ(GetDisplayStringFromPath("C:\\media\\a.mov"), u"C:\\media\\a.mov");
  EXPECT_EQ(GetDisplayStringFromPath("\\\\server\\share"), u"\\\\server\\share");
  EXPECT_EQ(GetDisplayStringFromPath(""), u"");
}

TEST(PathUtils, NamesInAllScriptsAreShown) {
  EXPECT_EQ(GetDisplayStringFromPath("/\xC3\xA9/\xF0\x9F\x8E\xAC.mov"), u"/\u00E9/\U0001F3AC.mov");
}

TEST(PathUtils, BytesThatAreNoTextAreReplaced) {
  EXPECT_EQ(GetDisplayStringFromPath("/a\xFF.mov"), u"/a\xFFFD.mov");
}

}  // namespace
