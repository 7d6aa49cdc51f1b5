#include "standalone/model/SharedText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "standalone/model/TextPool.h"

namespace standalone {
namespace {

TEST(SharedText, IsUsedLikeAString) {
  SharedText text;
  EXPECT_TRUE(text.empty());
  text = "/media/a.mov";
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(text, "/media/a.mov");
  EXPECT_EQ(text, std::string("/media/a.mov"));
  EXPECT_EQ(text, SharedText(std::string_view("/media/a.mov")));
  EXPECT_NE(text, "/media/b.mov");
  EXPECT_EQ(std::string(text), "/media/a.mov");
}

TEST(SharedText, CopiesShareTheBytes) {
  const SharedText text("/media/a.mov");
  SharedText copy = text;
  EXPECT_TRUE(copy.Get().SharesBufferWith(text.Get()));
  copy = "/media/b.mov";
  EXPECT_EQ(text, "/media/a.mov");
}

TEST(TextPool, KeepsTheBufferOfATextThatIsNew) {
  TextPool pool;
  const SharedText first("/media/a.mov");
  const SharedText equal("/media/a.mov");
  const auto shared = pool.Share(first.Get());
  EXPECT_TRUE(shared.SharesBufferWith(first.Get()));
  EXPECT_TRUE(pool.Share(equal.Get()).SharesBufferWith(shared));
  EXPECT_TRUE(pool.Share(std::string_view("/media/a.mov")).SharesBufferWith(shared));
  EXPECT_TRUE(pool.Share(SharedText().Get()).Empty());
}

}  // namespace
}  // namespace standalone
