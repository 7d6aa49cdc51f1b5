#include "standalone/model/TextDocumentFormat.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace standalone {
namespace {

constexpr std::string_view kSignature = "TXD1";
constexpr std::size_t kNumberSize = 4;

void AppendText(std::vector<std::byte>& bytes, std::string_view text) {
  for (const char character : text) bytes.push_back(static_cast<std::byte>(character));
}

void AppendNumber(std::vector<std::byte>& bytes, std::size_t number) {
  for (unsigned i = 0; i < kNumberSize; ++i) bytes.push_back(static_cast<std::byte>(number >> (8 * i)));
}

/// Takes from the front of `rest`; false, and nothing taken, when it is too short.
bool TakeText(std::string_view& rest, std::size_t size, std::string_view& text) {
  if (rest.size() < size) return false;
  text = rest.substr(0, size);
  rest.remove_prefix(size);
  return true;
}

bool TakeNumber(std::string_view& rest, std::size_t& number) {
  std::string_view bytes;
  if (!TakeText(rest, kNumberSize, bytes)) return false;
  number = 0;
  for (unsigned i = 0; i < kNumberSize; ++i) {
    number |= static_cast<std::size_t>(static_cast<std::uint8_t>(bytes[i])) << (8 * i);
  }
  return true;
}

}  // namespace

MF::BinaryData EncodeTextDocument(const std::vector<std::string>& fonts) {
  auto bytes = std::make_shared<std::vector<std::byte>>();
  AppendText(*bytes, kSignature);
  AppendNumber(*bytes, fonts.size());
  for (const std::string& font : fonts) {
    AppendNumber(*bytes, font.size());
    AppendText(*bytes, font);
  }
  return MF::BinaryData(std::move(bytes));
}

std::optional<std::vector<std::string_view>> DecodeTextDocument(const MF::BinaryData& data) {
  if (data.GetSize() == 0) return std::nullopt;
  std::string_view rest(reinterpret_cast<const char*>(data.GetData()), data.GetSize());
  std::string_view signature;
  std::size_t count = 0;
  if (!TakeText(rest, kSignature.size(), signature) || signature != kSignature ||
      !TakeNumber(rest, count)) {
    return std::nullopt;
  }
  // No reserve: the count is not to be believed before the names are there.
  std::vector<std::string_view> fonts;
  for (std::size_t i = 0; i < count; ++i) {
    std::size_t size = 0;
    std::string_view font;
    if (!TakeNumber(rest, size) || !TakeText(rest, size, font)) return std::nullopt;
    fonts.push_back(font);
  }
  if (!rest.empty()) return std::nullopt;
  return fonts;
}

}  // namespace standalone
