#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/Locale.h"
#include "host/qelcore/UTF8String.h"

/// Text operations. All are [any-thread] and pure.
namespace qelcore::string {

/// `text` on one line, at most `maximumCharacters` code points long: each run of line breaks (CR, LF,
/// CRLF) becomes one blank, line breaks at either end vanish, and a longer text is cut on a
/// character boundary. A text that needs neither is returned as it is, sharing its buffer.
HOST_API UTF8String ToSingleLine(const UTF8String& text, std::size_t maximumCharacters);

/// UTF-8 of `text`; a lone surrogate becomes U+FFFD, so the result is always valid UTF-8.
HOST_API UTF8String UTF16to8(std::u16string_view text);

/// `text` with every occurrence of `find` replaced by `replacement`, left to right; a replacement is
/// not searched again. An empty `find` changes nothing.
HOST_API std::string ReplaceInString(std::string_view text, std::string_view find,
                                     std::string_view replacement);

/// `text` with each byte lowered by the locale's classification; as long as before. A text that has
/// nothing to lower is returned as it is, sharing its buffer.
HOST_API UTF8String LowerCase(const UTF8String& text, const Locale& locale);

/// The room that ConvertUInt64ToBufferT needs: the 20 digits of 18446744073709551615.
inline constexpr std::size_t kUInt64BufferSize = 20;

/// Writes `value` in decimal, without sign, grouping or terminator, and never by the user's locale.
/// `buffer` has room for kUInt64BufferSize characters. Returns the digits written into it.
HOST_API std::string_view ConvertUInt64ToBufferT(std::uint64_t value, char* buffer) noexcept;

}  // namespace qelcore::string
