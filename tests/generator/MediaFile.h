#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "generator/TimeBase.h"
#include "standalone/model/SequenceDraft.h"

namespace generator {

/// What a file's timeline says about whether the file is there.
enum class Availability : std::uint8_t {
  kOnline,
  kOffline,
  /// Nothing: readers look for the file, which is on no machine.
  kUnstated,
};

/// A file that clips play.
struct MediaFile {
  enum class Kind : std::uint8_t {
    kFile,
    /// Numbered pictures, `name` with a number and ".exr" behind it.
    kPictures,
    /// The timeline has lost it and only knows where it was.
    kLost,
  };

  Kind kind = Kind::kFile;
  bool isCamera = false;
  Availability availability = Availability::kOnline;
  /// The camera's name for it, "A003C012_0714AB", or the file's without extension.
  std::string name;
  /// What editors call it.
  std::string clipName;
  /// For people, and as the timeline writes it. Of pictures, the first.
  std::string address;
  std::string url;
  /// Whether the address is a path on this kind of machine.
  bool isLocal = true;
  TimeBase pictureBase;
  /// The timeline knows the file's length and rate.
  bool hasRange = true;
  /// The time of the first frame, and how many there are.
  std::int64_t firstFrame = 0;
  std::int64_t frames = 0;
  std::string_view codec;
  int width = 0;
  int height = 0;
  /// Empty: none.
  std::string tape;
  /// Empty: it has no proxy. Proxies are paths as they are.
  std::string proxyAddress;
  bool isProxyOffline = false;
};

/// Whether a clip on such a track tells the file's range. Of the sound in a camera's file nothing is
/// known.
inline bool HasRange(const MediaFile& file, standalone::TrackKind kind) {
  if (file.kind == MediaFile::Kind::kLost || !file.hasRange) return false;
  return kind == standalone::TrackKind::kVideo || !file.isCamera;
}

/// Numbered pictures begin with this number.
inline constexpr int kFirstPicture = 1001;

}  // namespace generator
