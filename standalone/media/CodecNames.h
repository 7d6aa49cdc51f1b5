#pragma once

#include <string>

struct AVCodecParameters;

namespace standalone {

/// A stream's codec as editors call it. docs/media.md lists the names; for what is not listed there,
/// libav's own description is cut before its first " (" or " / ". Empty: not known.
std::string GetCodecName(const AVCodecParameters& stream, bool isPictureFile);

/// The container's code for a stream, first character in the highest byte; 0 unless it is four
/// printable characters (some containers number their codecs instead).
unsigned GetFourCC(const AVCodecParameters& stream);

}  // namespace standalone
