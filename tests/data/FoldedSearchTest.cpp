#include "data/FoldedSearch.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace Vantrel {
namespace {

bool IsWithin(std::string_view wanted, std::string_view text) {
  return FoldedSearch(qelcore::UTF8String(wanted)).IsWithin(text);
}

TEST(FoldedSearch, FindsAtTheBeginningInTheMiddleAndAtTheVeryEnd) {
  for (const char* const text : {"reel 7", "a reel 7 b", "the reel 7", "REEL 7", "reereel 7"}) {
    EXPECT_TRUE(IsWithin("reel 7", text)) << text;
  }
}

TEST(FoldedSearch, FindsNothingInAShorterTextOrInPartOfWhatIsWanted) {
  for (const char* const text : {"", "reel ", "eel 7", "reel", "ree reel reel"}) {
    EXPECT_FALSE(IsWithin("reel 7", text)) << text;
  }
}

TEST(FoldedSearch, AnEmptyTextIsWithinEveryText) {
  EXPECT_TRUE(IsWithin("", ""));
  EXPECT_TRUE(IsWithin("", "a"));
}

TEST(FoldedSearch, AByteIsFoundWhereverItStands) {
  EXPECT_TRUE(IsWithin("x", "x"));
  EXPECT_TRUE(IsWithin("x", "aX"));
  EXPECT_FALSE(IsWithin("x", "ab"));
}

TEST(FoldedSearch, SkipsNothingBehindAByteThatStandsTwiceInWhatIsWanted) {
  EXPECT_TRUE(IsWithin("abab", "aabab"));
  EXPECT_TRUE(IsWithin("aab", "aaaab"));
  EXPECT_TRUE(IsWithin("baa", "bbbaa"));
}

TEST(FoldedSearch, FindsWhatIsLongerThanAStepCanBe) {
  const std::string wanted(1000, 'a');
  EXPECT_TRUE(IsWithin(wanted + "b", wanted + wanted + "b"));
  EXPECT_FALSE(IsWithin(wanted + "b", wanted + wanted + "c"));
  EXPECT_TRUE(IsWithin("c" + wanted, std::string(700, 'x') + "c" + wanted));
}

TEST(FoldedSearch, ZeroBytesAndBytesBeyondASCIIAreBytesLikeOthers) {
  using namespace std::string_view_literals;
  EXPECT_TRUE(IsWithin("\0b"sv, "a\0B"sv));
  EXPECT_TRUE(IsWithin("\xC3\xA4", "B\xC3\xA4"));
  EXPECT_FALSE(IsWithin("\xC3\xA4", "B\xC3\x84"));
}

/// Each place tried, byte by byte.
bool IsWithinPlainly(std::string_view wanted, std::string_view text) {
  const auto lower = [](char byte) { return qelcore::Locale::Default().ToLower(byte); };
  for (std::size_t start = 0; start + wanted.size() <= text.size(); ++start) {
    std::size_t same = 0;
    while (same < wanted.size() && lower(text[start + same]) == lower(wanted[same])) ++same;
    if (same == wanted.size()) return true;
  }
  return false;
}

TEST(FoldedSearch, AgreesWithTryingEachPlace) {
  std::mt19937 random(26);
  const auto make = [&random](std::size_t size) {
    std::string text;
    while (text.size() < size) text.push_back("aAbBc"[random() % 5]);
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string wanted = make(random() % 6);
    const std::string text = make(random() % 24);
    ASSERT_EQ(IsWithin(wanted, text), IsWithinPlainly(wanted, text)) << wanted << " in " << text;
  }
}

}  // namespace
}  // namespace Vantrel
