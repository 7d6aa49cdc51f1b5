#pragma once

/// What the host and the library of installed fonts both know; they are built together.
namespace standalone {

/// The library's entry: calls `take` with each name (family, full and PostScript name) of each
/// installed font, some of them several times; the name is lent for the call. [any-thread]
using ListFontsEntry = void (*)(void (*take)(void* context, const char* name), void* context);
inline constexpr const char* kListFontsEntryName = "ListSequenceIndexFonts";
inline constexpr const char* kFontLibraryName = "libsequence_index_fonts.so";

}  // namespace standalone
