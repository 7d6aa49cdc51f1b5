#include "export/NeedsQuotes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace Vantrel {
namespace {

/// Longer than several of the steps in which a text is looked at.
constexpr std::size_t kLongest = 70;

TEST(NeedsQuotes, FindsASpecialByteAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 1; length <= kLongest; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      for (const char special : {',', '"', '\n'}) {
        std::string text(length, 'a');
        text[place] = special;
        EXPECT_TRUE(NeedsQuotes(text)) << length << ' ' << place;
      }
    }
  }
}

TEST(NeedsQuotes, NoOtherByteIsSpecial) {
  for (int value = 0; value < 256; ++value) {
    const char byte = static_cast<char>(value);
    const bool isSpecial = byte == ',' || byte == '"' || byte == '\n';
    for (std::size_t length = 1; length <= kLongest; ++length) {
      EXPECT_EQ(NeedsQuotes(std::string(length, byte)), isSpecial) << value << ' ' << length;
    }
  }
  EXPECT_FALSE(NeedsQuotes({}));
}

TEST(NeedsQuotes, WhatStandsAroundATextIsNotLookedAt) {
  const std::string text = ",\"\n" + std::string(kLongest, 'a') + ",\"\n";
  for (std::size_t length = 0; length <= kLongest; ++length) {
    EXPECT_FALSE(NeedsQuotes(std::string_view(text).substr(3, length))) << length;
  }
}

TEST(CopyUnlessSpecial, CopiesATextOfAnyLengthAndNothingElse) {
  for (std::size_t length = 0; length <= kLongest; ++length) {
    std::string text(length, 'a');
    for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<char>('A' + i % 32);
    std::string to(kLongest + 2, '.');
    EXPECT_TRUE(CopyUnlessSpecial(text, to.data() + 1)) << length;
    EXPECT_EQ(to, "." + text + std::string(kLongest + 1 - length, '.')) << length;
  }
}

TEST(CopyUnlessSpecial, TellsOfASpecialByteAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 1; length <= kLongest; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      for (const char special : {',', '"', '\n'}) {
        std::string text(length, 'a');
        text[place] = special;
        std::string to(length + 1, '.');
        EXPECT_FALSE(CopyUnlessSpecial(text, to.data())) << length << ' ' << place;
        EXPECT_EQ(to.back(), '.') << length << ' ' << place;
      }
    }
  }
}

}  // namespace
}  // namespace Vantrel
