#include "standalone/app/DisplayText.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace standalone {

namespace {

constexpr utf8proc_int32_t kDelete = 0x7F;
constexpr utf8proc_int32_t kFirstControlPicture = 0x2400;
constexpr utf8proc_int32_t kPictureOfDelete = 0x2421;
constexpr utf8proc_int32_t kReplacement = 0xFFFD;
/// Asks for the coloured, wide form of the character before it.
constexpr utf8proc_int32_t kVariationSelector16 = 0xFE0F;
constexpr std::size_t kEmojiColumns = 2;

struct CodePoint {
  utf8proc_int32_t value = kReplacement;
  std::size_t bytes = 1;
};

/// The first code point of a text that is not empty; a byte that begins none counts as "�".
CodePoint ReadCodePoint(std::string_view text) {
  CodePoint read;
  const utf8proc_ssize_t bytes =
      utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                       static_cast<utf8proc_ssize_t>(text.size()), &read.value);
  if (bytes <= 0) return {};
  read.bytes = static_cast<std::size_t>(bytes);
  return read;
}

void AppendCodePoint(std::string& text, utf8proc_int32_t value) {
  std::array<utf8proc_uint8_t, 4> bytes;
  const auto size = static_cast<std::size_t>(utf8proc_encode_char(value, bytes.data()));
  text.append(reinterpret_cast<const char*>(bytes.data()), size);
}

bool IsPlain(char byte) {
  return byte >= ' ' && byte <= '~';
}

constexpr std::size_t kWordSize = sizeof(std::uint64_t);

std::uint64_t ReadWord(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, kWordSize);
  return word;
}

/// IsPlain of eight bytes at once. A byte's highest bit is set where it is no ASCII; 0x20 taken away
/// sets it for what is below ' ', and 1 added for 0x7F. Only a byte that is not plain borrows from the
/// next one, or carries into it.
bool IsPlainWord(std::uint64_t word) {
  constexpr std::uint64_t kEachByte = 0x0101010101010101;
  return ((word | (word - kEachByte * ' ') | (word + kEachByte)) & (kEachByte << 7U)) == 0;
}

bool IsPlainText(std::string_view text) {
  if (text.size() < kWordSize) return std::ranges::all_of(text, &IsPlain);
  const char* const last = text.data() + text.size() - kWordSize;
  for (const char* place = text.data(); place < last; place += kWordSize) {
    if (!IsPlainWord(ReadWord(place))) return false;
  }
  // The last eight, some of which may have been looked at.
  return IsPlainWord(ReadWord(last));
}

bool IsWithin(utf8proc_int32_t value, utf8proc_int32_t first, utf8proc_int32_t last) {
  return value >= first && value <= last;
}

bool ChangesDirection(utf8proc_int32_t value) {
  return IsWithin(value, 0x202A, 0x202E) || IsWithin(value, 0x2066, 0x2069) ||
         IsWithin(value, 0x200E, 0x200F) || value == 0x061C;
}

bool SeparatesLines(utf8proc_int32_t value) {
  return IsWithin(value, 0x2028, 0x2029);
}

bool IsC1Control(utf8proc_int32_t value) {
  return IsWithin(value, 0x80, 0x9F);
}

/// Apart from the control characters of ASCII.
bool DrivesTerminal(utf8proc_int32_t value) {
  return IsC1Control(value) || ChangesDirection(value) || SeparatesLines(value);
}

utf8proc_int32_t GetShowable(utf8proc_int32_t value) {
  if (value < ' ') return kFirstControlPicture + value;
  if (value == kDelete) return kPictureOfDelete;
  return DrivesTerminal(value) ? kReplacement : value;
}

bool IsControl(utf8proc_int32_t value) {
  return value < ' ' || value == kDelete || DrivesTerminal(value);
}

bool IsHangul(int boundClass) {
  return boundClass >= UTF8PROC_BOUNDCLASS_L && boundClass <= UTF8PROC_BOUNDCLASS_LVT;
}

/// Adds up the columns of one grapheme cluster.
class ClusterColumns {
 public:
  explicit ClusterColumns(utf8proc_int32_t first)
      : boundClass(utf8proc_get_property(first)->boundclass), columns(Measure(first)) {
    isKeycap = IsWithin(first, '0', '9') || first == '#' || first == '*';
  }

  void Add(utf8proc_int32_t value) {
    const bool isEmoji = boundClass == UTF8PROC_BOUNDCLASS_EXTENDED_PICTOGRAPHIC || isKeycap;
    const bool isFlag = boundClass == UTF8PROC_BOUNDCLASS_REGIONAL_INDICATOR;
    if ((isEmoji && value == kVariationSelector16) || (isFlag && Measure(value) > 0)) {
      columns = kEmojiColumns;
    } else if (isEmoji || IsHangul(boundClass)) {
      // Its parts are drawn in one place.
      columns = std::max(columns, Measure(value));
    } else {
      // Nearly always none; some vowel and sound marks stand beside their letter.
      columns += Measure(value);
    }
  }

  std::size_t Get() const { return columns; }

 private:
  static std::size_t Measure(utf8proc_int32_t value) {
    return static_cast<std::size_t>(utf8proc_charwidth(value));
  }

  int boundClass;
  std::size_t columns;
  bool isKeycap = false;
};

/// The first grapheme cluster of a text that is not empty.
TextBeginning ReadCluster(std::string_view text) {
  if (IsPlain(text[0]) && (text.size() == 1 || IsPlain(text[1]))) return {1, 1};
  CodePoint last = ReadCodePoint(text);
  ClusterColumns columns(last.value);
  std::size_t bytes = last.bytes;
  utf8proc_int32_t state = 0;
  while (bytes < text.size()) {
    const CodePoint next = ReadCodePoint(text.substr(bytes));
    if (utf8proc_grapheme_break_stateful(last.value, next.value, &state) != 0) break;
    columns.Add(next.value);
    bytes += next.bytes;
    last = next;
  }
  return {bytes, columns.Get()};
}

}  // namespace

std::string_view MakeShowable(std::string_view text, std::string& buffer) {
  if (IsPlainText(text)) return text;
  buffer.clear();
  while (!text.empty()) {
    const CodePoint next = ReadCodePoint(text);
    AppendCodePoint(buffer, GetShowable(next.value));
    text.remove_prefix(next.bytes);
  }
  return buffer;
}

std::string BlankControls(std::string_view text) {
  std::string blanked;
  blanked.reserve(text.size());
  while (!text.empty()) {
    const CodePoint next = ReadCodePoint(text);
    const auto byte = static_cast<unsigned char>(text[0]);
    const bool isBlanked = IsControl(next.value) || (next.bytes == 1 && IsC1Control(byte));
    blanked.append(isBlanked ? " " : text.substr(0, next.bytes));
    text.remove_prefix(next.bytes);
  }
  return blanked;
}

std::size_t CountColumns(std::string_view showable) {
  if (IsPlainText(showable)) return showable.size();
  std::size_t columns = 0;
  while (!showable.empty()) {
    const TextBeginning cluster = ReadCluster(showable);
    columns += cluster.columns;
    showable.remove_prefix(cluster.bytes);
  }
  return columns;
}

MeasuredText MeasureShowable(std::string_view text, std::string& buffer) {
  if (IsPlainText(text)) return {text, text.size()};
  const std::string_view showable = MakeShowable(text, buffer);
  return {showable, CountColumns(showable)};
}

TextBeginning FitIntoColumns(std::string_view showable, std::size_t room) {
  TextBeginning fitting;
  while (fitting.bytes < showable.size()) {
    const TextBeginning cluster = ReadCluster(showable.substr(fitting.bytes));
    if (fitting.columns + cluster.columns > room) break;
    fitting.bytes += cluster.bytes;
    fitting.columns += cluster.columns;
  }
  return fitting;
}

}  // namespace standalone
