#include "data/TextShare.h"

#include <gtest/gtest.h>

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
