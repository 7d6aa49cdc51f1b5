#include "standalone/app/DisplayText.h"

#include <gtest/gtest.h>

#include <random>

namespace standalone {
namespace {

std::string Show(std::string_view text) {
  std::string buffer;
  return std::string(MakeShowable(text, buffer));
}

TEST(DisplayText, PlainTextIsShownAsItIsWithoutACopy) {
  const std::string_view text = "Interview Ada, wide ~";
  std::string buffer;
  EXPECT_EQ(MakeShowable(text, buffer).data(), text.data());
  EXPECT_EQ(CountColumns(text), 21U);
}

TEST(DisplayText, ControlCharactersAreShownAsTheirPictures) {
  EXPECT_EQ(Show("a\nb\r\tc\033[31m\x7F"), "a␊b␍␉c␛[31m␡");
  EXPECT_EQ(Show(std::string_view("\0", 1)), "␀");
}

TEST(DisplayText, WhatWouldDriveATerminalOrTurnTheLineIsReplaced) {
  EXPECT_EQ(Show("\u009B31m"), "�31m");                 // a C1 control
  EXPECT_EQ(Show("\u202A\u202E\u2066\u2069"), "����");  // bidi embedding and isolation
  EXPECT_EQ(Show("\u200E\u200F\u061C"), "���");         // bidi marks
  EXPECT_EQ(Show("\u2028\u2029"), "��");                // separators
  EXPECT_EQ(Show("\u2029\u202A\u202F\u2065\u206A"), "��\u202F\u2065\u206A");  // neighbours
}

TEST(DisplayText, BytesThatAreNoTextAreReplacedOneByOne) {
  EXPECT_EQ(Show("a\xFF\xC3z"), "a��z");
  EXPECT_EQ(Show("\xED\xA0\x80"), "���");  // half of a surrogate pair
}

TEST(DisplayText, OtherWritingIsKept) {
  for (const char* text : {"Größe", "渡し船", "שלום", "é", "👩‍🚀", "�"}) {
    EXPECT_EQ(Show(text), text);
  }
}

TEST(DisplayText, EastAsianCharactersTakeTwoColumns) {
  EXPECT_EQ(CountColumns("渡し船の夜明け"), 14U);
  EXPECT_EQ(CountColumns("한국"), 4U);
  EXPECT_EQ(CountColumns("\u1112\u1161\u11AB"), 2U);  // one syllable in three parts
  EXPECT_EQ(CountColumns("Ａ"), 2U);                  // full width
  EXPECT_EQ(CountColumns("ﾊﾞﾅﾅ"), 4U);                // half width, the sound mark beside its letter
}

TEST(DisplayText, CombiningMarksTakeNone) {
  EXPECT_EQ(CountColumns("e\u0301"), 1U);
  EXPECT_EQ(CountColumns("Cafe\u0301 de\u0301ja\u0300"), 9U);
  EXPECT_EQ(CountColumns("o\u0308\u0304\u0331"), 1U);
  EXPECT_EQ(CountColumns("a\u200Bb"), 2U);
}

TEST(DisplayText, AnEmojiTakesTwoWhateverItIsMadeOf) {
  for (const char* emoji : {"😀", "👍🏽", "👩‍🚀", "👨‍👩‍👧‍👦", "🇩🇪", "❤️",
                            "1️⃣", "🏴‍☠️"}) {
    EXPECT_EQ(CountColumns(emoji), 2U) << emoji;
  }
  EXPECT_EQ(CountColumns("❤"), 1U);  // as text
  EXPECT_EQ(CountColumns("🇩🇪🇫🇷"), 4U);
}

TEST(DisplayText, AVariationSelectorWidensNothingButEmoji) {
  EXPECT_EQ(CountColumns("a\uFE0F"), 1U);
}

TEST(DisplayText, OneCharacterThatIsNotPlainIsFoundWhereverItStands) {
  std::string buffer;
  for (std::size_t length = 1; length <= 20; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      for (unsigned byte = 0; byte < 256; ++byte) {
        std::string text(length, byte % 2 == 0 ? ' ' : '~');
        text[place] = static_cast<char>(byte);
        const bool isPlain = byte >= ' ' && byte <= '~';
        EXPECT_EQ(MakeShowable(text, buffer) == text, isPlain) << length << ' ' << place << ' ' << byte;
      }
    }
  }
}

TEST(DisplayText, AsMuchFitsAsThereIsRoomFor) {
  EXPECT_EQ(FitIntoColumns("Ferry", 3).bytes, 3U);
  EXPECT_EQ(FitIntoColumns("Ferry", 3).columns, 3U);
  EXPECT_EQ(FitIntoColumns("Ferry", 9).bytes, 5U);
  EXPECT_EQ(FitIntoColumns("", 9).bytes, 0U);
  EXPECT_EQ(FitIntoColumns("Ferry", 0).bytes, 0U);
}

TEST(DisplayText, ADoubleWidthCharacterIsNeverHalved) {
  const TextBeginning beginning = FitIntoColumns("渡し船", 5);
  EXPECT_EQ(beginning.bytes, 6U);
  EXPECT_EQ(beginning.columns, 4U);
}

TEST(DisplayText, ACutNeverPartsWhatIsOneCharacterToPeople) {
  EXPECT_EQ(FitIntoColumns("e\u0301e\u0301", 1).bytes, 3U);
  EXPECT_EQ(FitIntoColumns("👩‍🚀👩‍🚀", 3).bytes, std::string_view("👩‍🚀").size());
  EXPECT_EQ(FitIntoColumns("🇩🇪🇫🇷", 3).bytes, std::string_view("🇩🇪").size());
}

TEST(DisplayText, AnyBytesAreShowableAndWhatFitsIsAsWideAsItSays) {
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 24, ' ');
    for (char& byte : bytes) byte = static_cast<char>(random() % 256);
    const std::string text = Show(bytes);
    EXPECT_EQ(Show(text), text);
    const std::size_t room = random() % 12;
    const TextBeginning beginning = FitIntoColumns(text, room);
    EXPECT_LE(beginning.columns, room);
    EXPECT_EQ(CountColumns(text.substr(0, beginning.bytes)), beginning.columns);
  }
}

TEST(MeasureShowable, IsTheSameAsBothStepsOneByOne) {
  std::string buffer;
  std::string other;
  for (const char* text : {"", "Ferry", "two\nlines", "渡し船", "Cafe\u0301", "\xFF"}) {
    const MeasuredText measured = MeasureShowable(text, buffer);
    EXPECT_EQ(measured.text, MakeShowable(text, other));
    EXPECT_EQ(measured.columns, CountColumns(measured.text));
  }
}

}  // namespace
}  // namespace standalone
