#pragma once

#include <concepts>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace standalone {

/// Takes a message apart that nobody vouches for. What lacks or breaks a bound makes the whole message
/// invalid; numbers are zero and texts empty from then on.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest(bytes) {}

  template <std::integral T>
  requires(!std::same_as<T, bool>) T Read() {
    T number{};
    if (!Require(rest.size() >= sizeof(number))) return number;
    std::memcpy(&number, rest.data(), sizeof(number));
    rest.remove_prefix(sizeof(number));
    return number;
  }
  template <std::integral T>
  T ReadFrom(T least) {
    const T number = Read<T>();
    return Require(number >= least) ? number : T{};
  }
  bool ReadFlag() {
    const auto flag = Read<std::uint8_t>();
    return Require(flag <= 1) && flag == 1;
  }
  std::string ReadText(std::uint32_t longest) {
    const auto length = Read<std::uint32_t>();
    if (!Require(length <= longest && length <= rest.size())) return {};
    std::string text(rest.substr(0, length));
    rest.remove_prefix(length);
    return text;
  }

  /// Notes whether a condition of the message holds; false as well when an earlier one did not.
  bool Require(bool holds) {
    isValid = isValid && holds;
    if (!isValid) rest = {};
    return isValid;
  }
  /// All was well, and nothing is left over.
  bool IsWhole() const noexcept { return isValid && rest.empty(); }

 private:
  std::string_view rest;
  bool isValid = true;
};

}  // namespace standalone
