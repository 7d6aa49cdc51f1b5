#pragma once

#include <cstdarg>

namespace standalone {

/// Takes libav's messages and shows none: they are for programmers, and standard error belongs to the
/// program. A file whose index has grown beyond what recordings need may bring no further streams, so
/// that its read fails: libav holds the index in memory, and some hundred bytes can claim millions of
/// samples in each of hundreds of tracks. libav itself bounds a block, but not their sum; it tells of
/// each box of a movie before it reads it, also of those that were unpacked in memory. [any-thread]
void LimitIndex(void* sender, int level, const char* format, va_list arguments) noexcept;

}  // namespace standalone
