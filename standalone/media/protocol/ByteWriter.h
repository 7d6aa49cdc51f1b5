#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace standalone {

/// Builds a message. Both ends run on one machine, so numbers have its byte order.
class ByteWriter {
 public:
  template <std::integral T>
  void Write(T number) {
    const auto* const first = reinterpret_cast<const char*>(&number);
    bytes.append(first, sizeof(number));
  }
  void WriteText(std::string_view text) {
    Write(static_cast<std::uint32_t>(text.size()));
    bytes.append(text);
  }
  std::string Take() { return std::move(bytes); }

 private:
  std::string bytes;
};

}  // namespace standalone
