#include "standalone/model/UnicodeText.h"

#include <cstddef>
#include <cstdint>

namespace standalone {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// What a lead byte announces: how many bytes follow, and the range of the first of them. The range is
/// what keeps overlong forms, surrogates and values above U+10FFFF out.
struct Lead {
  unsigned following = 0;
  std::uint8_t lowest = 0x80;
  std::uint8_t highest = 0xBF;
  char32_t bits = 0;
};

bool ReadLead(std::uint8_t byte, Lead& lead) {
  if (byte >= 0xC2 && byte <= 0xDF) {
    lead.following = 1;
    lead.bits = byte & 0x1FU;
  } else if (byte >= 0xE0 && byte <= 0xEF) {
    lead.following = 2;
    lead.bits = byte & 0x0FU;
    if (byte == 0xE0) lead.lowest = 0xA0;
    if (byte == 0xED) lead.highest = 0x9F;
  } else if (byte >= 0xF0 && byte <= 0xF4) {
    lead.following = 3;
    lead.bits = byte & 0x07U;
    if (byte == 0xF0) lead.lowest = 0x90;
    if (byte == 0xF4) lead.highest = 0x8F;
  } else {
    return false;
  }
  return true;
}

/// Reads one character that is not ASCII, or the bytes that one U+FFFD stands for.
char32_t ReadCharacter(std::string_view text, std::size_t& position) {
  Lead lead;
  if (!ReadLead(static_cast<std::uint8_t>(text[position++]), lead)) return kReplacement;
  char32_t character = lead.bits;
  for (unsigned i = 0; i < lead.following; ++i) {
    if (position == text.size()) return kReplacement;
    const auto byte = static_cast<std::uint8_t>(text[position]);
    if (byte < lead.lowest || byte > lead.highest) return kReplacement;
    character = character << 6U | (byte & 0x3FU);
    lead.lowest = 0x80;
    lead.highest = 0xBF;
    ++position;
  }
  return character;
}

void Append(std::u16string& text, char32_t character) {
  if (character < 0x10000) {
    text.push_back(static_cast<char16_t>(character));
    return;
  }
  const char32_t offset = character - 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10U)));
  text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FFU)));
}

/// False for a text that is not all ASCII. Many bytes at once, as nothing is decided between them.
bool WidenASCII(std::string_view text, char16_t* to) {
  std::uint8_t bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<std::uint8_t>(text[i]);
    bits |= byte;
    to[i] = byte;
  }
  return bits < 0x80;
}

}  // namespace

std::u16string UTF8To16(std::string_view text) {
  // Most texts are ASCII from one end to the other.
  std::u16string result(text.size(), u'\0');
  if (WidenASCII(text, result.data())) return result;
  result.clear();
  std::size_t position = 0;
  while (position < text.size()) {
    const auto byte = static_cast<std::uint8_t>(text[position]);
    if (byte < 0x80) {
      result.push_back(byte);
      ++position;
    } else {
      Append(result, ReadCharacter(text, position));
    }
  }
  return result;
}

}  // namespace standalone
