#include "host/qelcore/UTF8String.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "host/qelcore/ImmutableString.h"
#include "host/qelcore/UTF8StringStream.h"

namespace {

using qelcore::UTF8String;

TEST(UTF8String, IsOnePointer) {
  EXPECT_EQ(sizeof(UTF8String), sizeof(void*));
}

TEST(UTF8String, AnEmptyTextNeedsNoBuffer) {
  EXPECT_TRUE(UTF8String().Empty());
  EXPECT_TRUE(UTF8String("").Empty());
  EXPECT_TRUE(UTF8String("").SharesBufferWith(UTF8String()));
  EXPECT_EQ(UTF8String().View(), "");
}

TEST(UTF8String, KeepsZeroBytes) {
  const UTF8String text(std::string_view("a\0b", 3));
  EXPECT_EQ(text.Size(), 3U);
  EXPECT_EQ(text.View(), std::string_view("a\0b", 3));
}

TEST(UTF8String, ACopySharesTheBuffer) {
  const UTF8String text("reel");
  const UTF8String copy = text;
  EXPECT_TRUE(copy.SharesBufferWith(text));
  EXPECT_FALSE(UTF8String("reel").SharesBufferWith(text));
  EXPECT_EQ(UTF8String("reel"), text);
}

TEST(UTF8String, AssignmentToItselfKeepsTheText) {
  UTF8String text("reel");
  const UTF8String& same = text;
  text = same;
  EXPECT_EQ(text, "reel");
  text = std::move(const_cast<UTF8String&>(same));
  EXPECT_EQ(text, "reel");
}

TEST(UTF8String, AMoveLeavesNothingBehindWhenConstructing) {
  UTF8String text("reel");
  const UTF8String moved = std::move(text);
  EXPECT_EQ(moved, "reel");
  EXPECT_TRUE(text.Empty());
}

TEST(UTF8String, IsOrderedByUnsignedBytes) {
  EXPECT_LT(UTF8String("z"), UTF8String("\u00e9"));
  EXPECT_LT(UTF8String("ab"), UTF8String("abc"));
  EXPECT_LT(UTF8String(), UTF8String("a"));
  EXPECT_GT(UTF8String("b"), UTF8String("abc"));
}

TEST(UTF8String, KeepsTextsOfEverySize) {
  for (std::size_t size : {1U, 7U, 8U, 9U, 100U, 503U, 504U, 505U, 4096U, 100000U}) {
    const std::string bytes(size, 'x');
    EXPECT_EQ(UTF8String(bytes).View(), bytes);
  }
}

TEST(UTF8String, ThreadsMayCopyAndDropTheSameText) {
  const UTF8String shared("shared between threads");
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([mine = shared] {
      for (int turn = 0; turn < 2000; ++turn) {
        const UTF8String copy = mine;
        ASSERT_EQ(copy, "shared between threads");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(ImmutableString, EqualNamesHaveEqualHashes) {
  const qelcore::utility::ImmutableString one("station");
  const qelcore::utility::ImmutableString two("station");
  EXPECT_EQ(one, two);
  EXPECT_EQ(std::hash<qelcore::utility::ImmutableString>()(one),
            std::hash<qelcore::utility::ImmutableString>()(two));
  EXPECT_NE(one, qelcore::utility::ImmutableString("Station"));
}

TEST(UTF8StringStream, CollectsBytesInOrder) {
  qelcore::oUTF8StringStream stream;
  stream << "Name" << ',' << std::string_view("a\0b", 3) << '\n';
  EXPECT_EQ(stream.str(), std::string("Name,a\0b\n", 9));
}

TEST(UTF8StringStream, AnEmptyOneHasNoBytes) {
  qelcore::oUTF8StringStream stream;
  EXPECT_EQ(stream.str(), "");
  stream << "" << std::string_view();
  EXPECT_EQ(stream.str(), "");
}

TEST(UTF8StringStream, KeepsAllBytesWhileItGrows) {
  qelcore::oUTF8StringStream stream;
  std::string wanted;
  // From a few bytes to several times what is moved at once.
  for (std::size_t length = 1; wanted.size() < (std::size_t{40} << 20U); length = length * 3 + 1) {
    const std::string text(length, static_cast<char>('a' + length % 26));
    stream << text << '\n';
    wanted.append(text).push_back('\n');
    ASSERT_TRUE(stream.str() == wanted) << wanted.size();
  }
}

TEST(UTF8StringStream, KeepsWhatItHasWhenRoomIsReserved) {
  qelcore::oUTF8StringStream stream;
  stream << "Name,";
  for (const std::size_t bytes : {0U, 3U, 100U, 10U << 20U}) {
    stream.Reserve(bytes);
    ASSERT_EQ(stream.str(), "Name,");
  }
  const char* const place = stream.str().data();
  const std::string text(9U << 20U, 'x');
  stream << text;
  EXPECT_EQ(stream.str().data(), place);
  EXPECT_TRUE(stream.str() == "Name," + text);
}

}  // namespace
