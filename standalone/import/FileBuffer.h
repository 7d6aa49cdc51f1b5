#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Texts of 4 GB and more are refused: node counts and text lengths are kept in 32 bits.
inline constexpr std::uint64_t kLargestText = std::numeric_limits<std::uint32_t>::max();

/// The whole content of a file. Throws ImportError when the file is missing, can't be read, is empty or
/// larger than 4 GB; `subject` is what the sentence calls the file.
std::string ReadWholeFile(const std::filesystem::path& file, std::string_view subject = "The file");

/// The same where an empty file is an empty text.
std::string ReadAnyFile(const std::filesystem::path& file, std::string_view subject);

/// What `readBlock` gives until it gives nothing: it writes to a place with room for so many bytes and
/// returns how many it wrote. `expectedSize` only saves copies. Throws ImportError beyond 4 GB.
STANDALONE_API std::string ReadToEnd(
    std::size_t expectedSize, std::string_view subject,
    const std::function<std::size_t(char* place, std::size_t room)>& readBlock);

/// Throw the ImportError of a file that can't be read, for the system's reason, or is too large.
[[noreturn]] STANDALONE_API void ThrowUnreadable(std::string_view subject, int error);
[[noreturn]] STANDALONE_API void ThrowTooLarge(std::string_view subject);
[[noreturn]] STANDALONE_API void ThrowEmpty(std::string_view subject);

/// The file's first bytes, at most `length`; none when it can't be read.
std::string ReadBeginning(const std::filesystem::path& file, std::size_t length);

/// The text behind a UTF-8 byte-order mark; the whole text when it has none.
std::string_view SkipByteOrderMark(std::string_view text);

}  // namespace standalone
