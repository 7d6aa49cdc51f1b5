#include "host/qelcore/Strings.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace qelcore::string {

namespace {

constexpr std::string_view kLineBreaks = "\r\n";
constexpr char32_t kReplacementCharacter = 0xFFFD;

// Two scans for one byte each are several times faster than one for a set.
bool HasLineBreak(std::string_view text) {
  return text.find('\n') != std::string_view::npos || text.find('\r') != std::string_view::npos;
}

bool BeginsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

std::string FoldLineBreaks(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t start = text.find_first_not_of(kLineBreaks); start != std::string_view::npos;) {
    const std::size_t end = text.find_first_of(kLineBreaks, start);
    if (!folded.empty()) folded.push_back(' ');
    folded.append(text.substr(start, end == std::string_view::npos ? end : end - start));
    start = text.find_first_not_of(kLineBreaks, end);
  }
  return folded;
}

std::string_view CutToCharacters(std::string_view text, std::size_t maximumCharacters) {
  if (text.size() <= maximumCharacters) return text;
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (BeginsCharacter(text[i]) && ++characters > maximumCharacters) return text.substr(0, i);
  }
  return text;
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// False for a text that is not all ASCII. Many units at once, as nothing is decided between them.
bool NarrowASCII(std::u16string_view text, char* to) {
  char16_t bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bits |= text[i];
    to[i] = static_cast<char>(text[i]);
  }
  return bits < 0x80;
}

/// The character at `position`, which moves behind it.
char32_t NextCharacter(std::u16string_view text, std::size_t& position) {
  const char16_t unit = text[position++];
  if (IsLowSurrogate(unit)) return kReplacementCharacter;
  if (!IsHighSurrogate(unit)) return unit;
  if (position == text.size() || !IsLowSurrogate(text[position])) return kReplacementCharacter;
  const char16_t low = text[position++];
  return 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) + (low - 0xDC00);
}

void AppendUTF8(std::string& text, char32_t character) {
  const auto append = [&text](char32_t bits) { text.push_back(static_cast<char>(bits)); };
  const auto appendTail = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | (character >> 6));
    appendTail(0);
  } else if (character < 0x10000) {
    append(0xE0 | (character >> 12));
    appendTail(6);
    appendTail(0);
  } else {
    append(0xF0 | (character >> 18));
    appendTail(12);
    appendTail(6);
    appendTail(0);
  }
}

}  // namespace

UTF8String ToSingleLine(const UTF8String& text, std::size_t maximumCharacters) {
  const std::string_view given = text.View();
  if (HasLineBreak(given)) {
    return UTF8String(CutToCharacters(FoldLineBreaks(given), maximumCharacters));
  }
  const std::string_view kept = CutToCharacters(given, maximumCharacters);
  return kept.size() == given.size() ? text : UTF8String(kept);
}

UTF8String UTF16to8(std::u16string_view text) {
  // Most texts are short, and ASCII from one end to the other.
  std::array<char, 256> narrow;
  if (text.size() <= narrow.size() && NarrowASCII(text, narrow.data())) {
    return UTF8String(std::string_view(narrow.data(), text.size()));
  }
  std::string result;
  result.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    AppendUTF8(result, NextCharacter(text, position));
  }
  return UTF8String(result);
}

std::string ReplaceInString(std::string_view text, std::string_view find,
                            std::string_view replacement) {
  if (find.empty()) return std::string(text);
  std::string result;
  result.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t hit = text.find(find); hit != std::string_view::npos; hit = text.find(find, start)) {
    result.append(text.substr(start, hit - start)).append(replacement);
    start = hit + find.size();
  }
  return result.append(text.substr(start));
}

UTF8String LowerCase(const UTF8String& text, const Locale& locale) {
  const std::string_view given = text.View();
  const auto isLowered = [&locale](char byte) { return locale.ToLower(byte) == byte; };
  if (std::ranges::all_of(given, isLowered)) return text;
  std::string lowered(given);
  for (char& byte : lowered) byte = locale.ToLower(byte);
  return UTF8String(lowered);
}

std::string_view ConvertUInt64ToBufferT(std::uint64_t value, char* buffer) noexcept {
  const std::to_chars_result written = std::to_chars(buffer, buffer + kUInt64BufferSize, value);
  return {buffer, static_cast<std::size_t>(written.ptr - buffer)};
}

}  // namespace qelcore::string
