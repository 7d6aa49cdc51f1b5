#pragma once

#include <cstdint>
#include <string>

struct AVInputFormat;

namespace standalone {

/// Whether files of that kind are read. Only kinds that editors bring in are: what merely lists other
/// files (playlists, concatenations), what opens files by itself, and texts are not.
bool IsKnownKind(const AVInputFormat& format);

/// How many bytes of a picture file are looked at: all that a picture's size can stand in, without
/// reading and decoding whole pictures. 0 for kinds that are read as far as they need.
std::int64_t GetHeaderSize(const AVInputFormat& format);

/// Whether files of that kind hold one picture: true for picture files, also for those that can move.
bool IsPictureKind(const AVInputFormat& format);

/// Whether a file's name ends like a kind that is read here, so that another content is damage.
bool ClaimsKnownKind(const std::string& path);

}  // namespace standalone
