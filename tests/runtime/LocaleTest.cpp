#include "host/qelcore/Locale.h"

#include <gtest/gtest.h>

#include <locale>

namespace {

char AsByte(int value) {
  return static_cast<char>(static_cast<unsigned char>(value));
}

TEST(DefaultLocale, LowersTheLettersFromAToZAndNoOtherByte) {
  const qelcore::Locale& locale = qelcore::Locale::Default();
  for (int byte = 0; byte < 256; ++byte) {
    const bool isUpper = byte >= 'A' && byte <= 'Z';
    EXPECT_EQ(locale.ToLower(AsByte(byte)), AsByte(isUpper ? byte + 'a' - 'A' : byte)) << byte;
  }
}

TEST(DefaultLocale, IsTheSameEachTime) {
  EXPECT_EQ(&qelcore::Locale::Default(), &qelcore::Locale::Default());
}

/// Lowers every byte to "x".
class Crossing final : public std::ctype<char> {
  char do_tolower(char) const override { return 'x'; }
};

TEST(DefaultLocale, IsNotTheUsers) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Crossing));
  EXPECT_EQ(qelcore::Locale::Default().ToLower('A'), 'a');
  EXPECT_EQ(qelcore::Locale::Default().ToLower(AsByte(0xC9)), AsByte(0xC9));
  std::locale::global(before);
}

}  // namespace
