#pragma once

#include <filesystem>
#include <string_view>

/// What the host and the library for zip archives both know; they are built together.
namespace standalone {

class ZipArchive;

/// The library's entry: opens `file`, or `bytes` where that is null. The caller owns what it returns.
/// Throws: as ZipArchive. [any-thread]
using OpenArchiveEntry = ZipArchive* (*)(const std::filesystem::path* file, std::string_view bytes);
inline constexpr const char* kOpenArchiveEntryName = "OpenSequenceIndexArchive";
inline constexpr const char* kArchiveLibraryName = "libsequence_index_archive.so";

}  // namespace standalone
