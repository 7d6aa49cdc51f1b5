#pragma once

#include <string>
#include <string_view>

#include "host/HostAPI.h"

namespace qelcore {

/// An output stream of UTF-8 bytes in memory. It formats nothing, so no locale touches it. One thread
/// at a time.
class HOST_API oUTF8StringStream {
 public:
  oUTF8StringStream();
  ~oUTF8StringStream();
  oUTF8StringStream(const oUTF8StringStream&) = delete;
  oUTF8StringStream& operator=(const oUTF8StringStream&) = delete;

  oUTF8StringStream& operator<<(std::string_view bytes) {
    text.append(bytes);
    return *this;
  }
  oUTF8StringStream& operator<<(char byte) {
    text.push_back(byte);
    return *this;
  }

  /// All bytes written so far; valid until the next write.
  const std::string& str() const noexcept { return text; }

 private:
  std::string text;
};

}  // namespace qelcore
