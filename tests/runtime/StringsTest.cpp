#include "host/qelcore/Strings.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <string>

namespace {

using qelcore::UTF8String;
using namespace qelcore::string;

std::string SingleLine(std::string_view text, std::size_t maximum = 2048) {
  return std::string(ToSingleLine(UTF8String(text), maximum).View());
}

std::string Digits(std::uint64_t value) {
  char buffer[kUInt64BufferSize];
  return std::string(ConvertUInt64ToBufferT(value, buffer));
}

TEST(SingleLine, EachRunOfLineBreaksBecomesOneBlank) {
  EXPECT_EQ(SingleLine("a\nb"), "a b");
  EXPECT_EQ(SingleLine("a\rb"), "a b");
  EXPECT_EQ(SingleLine("a\r\nb"), "a b");
  EXPECT_EQ(SingleLine("a\n\n\r\r\nb\nc"), "a b c");
}

TEST(SingleLine, LineBreaksAtEitherEndVanish) {
  EXPECT_EQ(SingleLine("\r\na\n"), "a");
  EXPECT_EQ(SingleLine("\n\r\n"), "");
}

TEST(SingleLine, BlanksAreLeftAlone) {
  EXPECT_EQ(SingleLine("  a \n b  "), "  a   b  ");
}

TEST(SingleLine, TheLimitCountsCharactersNotBytes) {
  EXPECT_EQ(SingleLine("\u00e9\u4e2d\U0001F3AC", 3), "\u00e9\u4e2d\U0001F3AC");
  EXPECT_EQ(SingleLine("\u00e9\u4e2d\U0001F3AC", 2), "\u00e9\u4e2d");
  EXPECT_EQ(SingleLine("\u00e9\u4e2d\U0001F3AC", 1), "\u00e9");
  EXPECT_EQ(SingleLine("\u00e9", 0), "");
}

TEST(SingleLine, LineBreaksAreFoldedBeforeTheTextIsCut) {
  EXPECT_EQ(SingleLine("\n\n\nab\r\ncd", 4), "ab c");
}

TEST(SingleLine, ANameOfExactly2048CharactersStaysWhole) {
  const std::string name(2048, 'x');
  EXPECT_EQ(SingleLine(name), name);
  EXPECT_EQ(SingleLine(name + "y"), name);
}

TEST(SingleLine, ATextThatNeedsNothingSharesItsBuffer) {
  const UTF8String text("\u00e9t\u00e9");
  EXPECT_TRUE(ToSingleLine(text, 3).SharesBufferWith(text));
  EXPECT_TRUE(ToSingleLine(text, 2048).SharesBufferWith(text));
  EXPECT_FALSE(ToSingleLine(text, 2).SharesBufferWith(text));
}

TEST(UTF16to8, WritesOneToFourBytesACharacter) {
  EXPECT_EQ(UTF16to8(u"a\u00e9\u4e2d\U0001F3AC"), "a\u00e9\u4e2d\U0001F3AC");
  EXPECT_EQ(UTF16to8(u"\x7f\x80\u07ff\u0800\uffff\U00010000\U0010ffff"),
            "\x7f\u0080\u07ff\u0800\uffff\U00010000\U0010ffff");
  EXPECT_TRUE(UTF16to8(u"").Empty());
}

TEST(UTF16to8, ALoneSurrogateBecomesTheReplacementCharacter) {
  const char16_t highAtEnd[] = {u'a', 0xD83C};
  const char16_t highBeforeLetter[] = {0xD83C, u'a'};
  const char16_t lowFirst[] = {0xDFAC, 0xD83C, 0xDFAC};
  const char16_t twoHigh[] = {0xD83C, 0xD83C, 0xDFAC};
  EXPECT_EQ(UTF16to8({highAtEnd, 2}), "a\ufffd");
  EXPECT_EQ(UTF16to8({highBeforeLetter, 2}), "\ufffda");
  EXPECT_EQ(UTF16to8({lowFirst, 3}), "\ufffd\U0001F3AC");
  EXPECT_EQ(UTF16to8({twoHigh, 3}), "\ufffd\U0001F3AC");
}

/// Short texts of ASCII go another way than long ones and others.
TEST(UTF16to8, TextsOfAnyLengthAreWritten) {
  for (const std::size_t length : {1U, 255U, 256U, 257U, 1000U}) {
    const std::u16string text(length, u'x');
    EXPECT_EQ(UTF16to8(text), std::string(length, 'x')) << length;
    EXPECT_EQ(UTF16to8(text + u"\u00e9"), std::string(length, 'x') + "\u00e9") << length;
  }
}

TEST(UTF16to8, ZeroIsAnOrdinaryCharacter) {
  EXPECT_EQ(UTF16to8(std::u16string_view(u"a\0b", 3)), std::string_view("a\0b", 3));
}

TEST(ReplaceInString, ReplacesEveryOccurrenceFromTheLeft) {
  EXPECT_EQ(ReplaceInString("\"a\" \"b\"", "\"", "\"\""), "\"\"a\"\" \"\"b\"\"");
  EXPECT_EQ(ReplaceInString("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceInString("", "a", "b"), "");
  EXPECT_EQ(ReplaceInString("abc", "c", ""), "ab");
}

TEST(ReplaceInString, AReplacementIsNotSearchedAgain) {
  EXPECT_EQ(ReplaceInString("aa", "a", "aa"), "aaaa");
}

TEST(ReplaceInString, AnEmptySearchTextChangesNothing) {
  EXPECT_EQ(ReplaceInString("abc", "", "x"), "abc");
}

std::string Lowered(std::string_view text) {
  return std::string(LowerCase(UTF8String(text), qelcore::Locale::Default()).View());
}

TEST(LowerCase, LowersSingleByteLettersOnly) {
  EXPECT_EQ(Lowered("A-Z, a-z, 0-9 [@`{]"), "a-z, a-z, 0-9 [@`{]");
  EXPECT_EQ(Lowered("\u00c9COLE \u00c4\u0130\u1e9e\u212a \u0416"),
            "\u00c9cole \u00c4\u0130\u1e9e\u212a \u0416");
  EXPECT_EQ(Lowered(""), "");
}

TEST(LowerCase, KeepsLengthAndZeroBytes) {
  const std::string_view text("A\0B", 3);
  EXPECT_EQ(Lowered(text), std::string_view("a\0b", 3));
}

TEST(LowerCase, SharesATextThatIsLoweredAlready) {
  const UTF8String text("already \u00c9 lowered");
  EXPECT_TRUE(LowerCase(text, qelcore::Locale::Default()).SharesBufferWith(text));
}

TEST(Digits, CoverAll64Bits) {
  EXPECT_EQ(Digits(0), "0");
  EXPECT_EQ(Digits(1234567), "1234567");
  EXPECT_EQ(Digits(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
  EXPECT_EQ(Digits(std::numeric_limits<std::uint64_t>::max()).size(), kUInt64BufferSize);
}

class Grouping final : public std::numpunct<char> {
  char do_thousands_sep() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Digits, NeverDependOnTheLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  EXPECT_EQ(Digits(1234567), "1234567");
  std::locale::global(before);
}

}  // namespace
