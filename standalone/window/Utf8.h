#pragma once

#include <QString>
#include <string_view>

namespace standalone {

/// A text of the host's, which is UTF-8, for the window system. Bytes that are no UTF-8 become U+FFFD.
/// [any-thread]
inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace standalone
