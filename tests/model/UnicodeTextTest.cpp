#include "standalone/model/UnicodeText.h"

#include <gtest/gtest.h>

namespace {

using standalone::UTF8To16;

TEST(UnicodeText, EveryLengthOfCharacterIsRead) {
  EXPECT_EQ(UTF8To16(""), u"");
  EXPECT_EQ(UTF8To16("a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"), u"a\x7F\x80\x7FF\x800\xFFFF");
  EXPECT_EQ(UTF8To16("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), u"\U00010000\U0010FFFF");
  EXPECT_EQ(UTF8To16("\xED\x9F\xBF\xEE\x80\x80"), u"\xD7FF\xE000");
}

TEST(UnicodeText, AZeroByteIsOrdinary) {
  EXPECT_EQ(UTF8To16(std::string_view("a\0b", 3)), std::u16string_view(u"a\0b", 3));
}

TEST(UnicodeText, WhatCannotBeginACharacterIsReplacedByteByByte) {
  EXPECT_EQ(UTF8To16("\x80x\xBF"), u"\xFFFDx\xFFFD");
  EXPECT_EQ(UTF8To16("\xC0\xAF"), u"\xFFFD\xFFFD");
  EXPECT_EQ(UTF8To16("\xE0\x9F\xBF"), u"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(UTF8To16("\xED\xA0\x80"), u"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(UTF8To16("\xF0\x8F\xBF\xBF"), u"\xFFFD\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(UTF8To16("\xF4\x90\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(UTF8To16("\xF5\xFF"), u"\xFFFD\xFFFD");
}

TEST(UnicodeText, ACharacterThatBreaksOffIsReplacedOnce) {
  EXPECT_EQ(UTF8To16("\xE2\x82"), u"\xFFFD");
  EXPECT_EQ(UTF8To16("\xE2\x82z"), u"\xFFFDz");
  EXPECT_EQ(UTF8To16("\xF0\x9F\x98\xC3\xA9"), u"\xFFFD\u00E9");
}

}  // namespace
