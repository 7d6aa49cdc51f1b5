#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace standalone {

/// The whole content of a file. A copy in memory, because a mapped file that shrinks while it is read
/// would end the program; std::string's own zero byte behind the content ends the parse in place.
/// Throws ImportError when the file is missing, is a folder, can't be read, is empty or larger than
/// 4 GB (node counts and text lengths are kept in 32 bits).
std::string ReadWholeFile(const std::filesystem::path& file);

/// The text behind a UTF-8 byte-order mark; the whole text when it has none.
std::string_view SkipByteOrderMark(std::string_view text);

}  // namespace standalone
