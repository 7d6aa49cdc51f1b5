#include "data/TextShare.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Vantrel {
namespace {

TEST(TextShare, EqualTextsHaveOneBuffer) {
  TextShare texts;
  const auto first = texts.Share("Blur; ");
  EXPECT_EQ(first, "Blur; ");
  EXPECT_TRUE(texts.Share(std::string("Blur; ")).SharesBufferWith(first));
  EXPECT_EQ(texts.Share("Crop; "), "Crop; ");
}

TEST(TextShare, AnEmptyTextHasNoBuffer) {
  TextShare texts;
  EXPECT_TRUE(texts.Share("").Empty());
}

// More than can be remembered as asked for last, and asked for in turns.
TEST(TextShare, ManyTextsAndNamesStayApart) {
  constexpr int kTexts = 2000;
  TextShare texts;
  std::vector<qelcore::UTF8String> first;
  for (int i = 0; i < kTexts; ++i) first.push_back(texts.Share("Effect " + std::to_string(i)));
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = "Effect " + std::to_string(i);
    ASSERT_EQ(first[static_cast<std::size_t>(i)], text);
    ASSERT_TRUE(texts.Share(text).SharesBufferWith(first[static_cast<std::size_t>(i)]));
    ASSERT_EQ(texts.ToUTF8(std::u16string(text.begin(), text.end())), text);
  }
}

TEST(TextShare, TextsThatDifferInOneLetterStayApart) {
  const std::string text = "Film Dissolve; ";
  TextShare texts;
  const auto first = texts.Share(text);
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::string other = text;
    ++other[i];
    ASSERT_EQ(texts.Share(other), other);
    ASSERT_EQ(texts.ToUTF8(std::u16string(other.begin(), other.end())), other);
    ASSERT_TRUE(texts.Share(text).SharesBufferWith(first));
  }
}

TEST(TextShare, AnEmptyNameIsEmpty) {
  TextShare texts;
  EXPECT_TRUE(texts.ToUTF8(u"").empty());
}

TEST(TextShare, TextsOutliveIt) {
  qelcore::UTF8String kept;
  {
    TextShare texts;
    kept = texts.Share("Blur; ");
  }
  EXPECT_EQ(kept, "Blur; ");
}

TEST(TextShare, ANameIsConvertedOnce) {
  TextShare texts;
  const auto first = texts.ToUTF8(u"Gauß");
  EXPECT_EQ(first, "Gau\xC3\x9F");
  EXPECT_EQ(texts.ToUTF8(u"Gauß").data(), first.data());
  EXPECT_EQ(texts.ToUTF8(u"Crop"), "Crop");
}

}  // namespace
}  // namespace Vantrel
