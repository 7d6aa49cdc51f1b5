#include "standalone/media/KnownKinds.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "standalone/media/LibAV.h"

namespace standalone {
namespace {

constexpr std::array<std::string_view, 30> kKinds = {
    "aac", "ac3",  "aiff", "apng",   "asf",       "au",   "avi",  "caf", "dnxhd", "dts",
    "dv",  "flac", "flv",  "gif",    "gxf",       "h264", "hevc", "ivf", "m4v",   "matroska",
    "mov", "mp3",  "mpeg", "mpegts", "mpegvideo", "mxf",  "ogg",  "w64", "wav",   "eac3",
};

constexpr std::array<std::string_view, 10> kPictureKinds = {
    "bmp", "dpx", "exr", "j2k", "jpeg", "png", "psd", "sgi", "tiff", "webp",
};

/// What these kinds are usually called. Raw streams and names that others use too are left out.
constexpr std::array<std::string_view, 45> kExtensions = {
    ".aac",  ".ac3",  ".aif", ".aiff", ".apng", ".asf", ".avi",  ".bmp",  ".caf",
    ".dpx",  ".dv",   ".exr", ".flac", ".flv",  ".gif", ".gxf",  ".j2k",  ".jp2",
    ".jpeg", ".jpg",  ".m2t", ".m2ts", ".m4a",  ".m4v", ".mkv",  ".mov",  ".mp3",
    ".mp4",  ".mpeg", ".mpg", ".mts",  ".mxf",  ".oga", ".ogg",  ".ogv",  ".png",
    ".psd",  ".qt",   ".tif", ".tiff", ".w64",  ".wav", ".webm", ".webp", ".wmv",
};

constexpr std::string_view kPipeEnding = "_pipe";

/// libav gives a kind several names: "mov,mp4,m4a,3gp,3g2,mj2".
std::string_view GetFirstName(const AVInputFormat& format) {
  const std::string_view names = format.name;
  return names.substr(0, names.find(','));
}

template <typename Names>
bool Contains(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool IsPictureKind(const AVInputFormat& format) {
  std::string_view name = GetFirstName(format);
  if (name == "gif" || name == "apng") return true;
  if (!name.ends_with(kPipeEnding)) return false;
  name.remove_suffix(kPipeEnding.size());
  return Contains(kPictureKinds, name);
}

std::int64_t GetHeaderSize(const AVInputFormat& format) {
  // Behind colour profiles and thumbnails.
  constexpr std::int64_t kHeader = 1 << 20;
  // The table of a TIFF file may stand at its end; what is larger can't be held in one block.
  constexpr std::int64_t kWholePicture = 128 << 20;
  const std::string_view name = GetFirstName(format);
  if (!name.ends_with(kPipeEnding)) return 0;
  return name == "tiff_pipe" ? kWholePicture : kHeader;
}

bool IsKnownKind(const AVInputFormat& format) {
  return IsPictureKind(format) || Contains(kKinds, GetFirstName(format));
}

bool ClaimsKnownKind(const std::string& path) {
  const std::size_t point = path.find_last_of("./");
  if (point == std::string::npos || path[point] != '.') return false;
  std::string extension = path.substr(point);
  std::transform(extension.begin(), extension.end(), extension.begin(), ToLower);
  return Contains(kExtensions, extension);
}

}  // namespace standalone
