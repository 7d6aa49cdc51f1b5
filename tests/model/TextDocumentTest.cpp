#include "host/BE/TextDocument.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "standalone/model/TextDocumentFormat.h"

namespace {

using Fonts = std::vector<std::string>;

Fonts FontsOf(const MF::BinaryData& data) {
  Fonts fonts;
  const auto document = BE::TextDocument::Create(data);
  for (const auto& font : document->GetUsedFonts()) fonts.emplace_back(font.View());
  return fonts;
}

std::vector<std::byte> BytesOf(const MF::BinaryData& data) {
  return {data.GetData(), data.GetData() + data.GetSize()};
}

MF::BinaryData DataOf(std::vector<std::byte> bytes) {
  return MF::BinaryData(std::make_shared<const std::vector<std::byte>>(std::move(bytes)));
}

const Fonts kFonts{"Arial", "", "\xE6\x98\x8E\xE6\x9C\x9D", "Arial"};

TEST(TextDocument, KeepsTheFontsInOrderWithThoseThatComeAgain) {
  EXPECT_EQ(FontsOf(standalone::EncodeTextDocument(kFonts)), kFonts);
  EXPECT_EQ(FontsOf(standalone::EncodeTextDocument({})), Fonts());
  EXPECT_EQ(FontsOf(standalone::EncodeTextDocument({std::string(70000, 'x')})),
            Fonts{std::string(70000, 'x')});
}

TEST(TextDocument, LiesInMemoryAsItIsDescribed) {
  const auto bytes = BytesOf(standalone::EncodeTextDocument({"Ab"}));
  const std::string expected("TXD1\x01\0\0\0\x02\0\0\0Ab", 14);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()), expected);
}

TEST(TextDocument, NoBytesGiveAnEmptyDocument) {
  EXPECT_EQ(FontsOf(MF::BinaryData()), Fonts());
}

TEST(TextDocument, ADocumentThatEndsTooEarlyIsEmpty) {
  const auto bytes = BytesOf(standalone::EncodeTextDocument(kFonts));
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(size);
    EXPECT_EQ(FontsOf(DataOf({bytes.begin(), end})), Fonts()) << size;
  }
}

TEST(TextDocument, ADocumentWithMoreBehindItIsEmpty) {
  auto bytes = BytesOf(standalone::EncodeTextDocument(kFonts));
  bytes.push_back(std::byte{0});
  EXPECT_EQ(FontsOf(DataOf(bytes)), Fonts());
}

TEST(TextDocument, ADamagedSizeOrSignatureGivesAnEmptyDocument) {
  const auto good = BytesOf(standalone::EncodeTextDocument(kFonts));
  for (std::size_t at = 0; at < 12; ++at) {
    auto bytes = good;
    bytes[at] = std::byte{0xFF};
    EXPECT_EQ(FontsOf(DataOf(bytes)), Fonts()) << at;
  }
}

}  // namespace
