#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// What is asked of a media file and what is answered: by the library for media files to the program
/// that loads it, and by that program to the host. All are built together.
namespace standalone {

/// A positive fraction; 0/1: not known.
struct MediaRatio {
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;

  bool IsKnown() const noexcept { return numerator > 0 && denominator > 0; }
  friend bool operator==(const MediaRatio&, const MediaRatio&) noexcept = default;
};

/// What a media file tells of itself. Of several streams of a kind the first counts; a picture that is
/// attached to sound (a cover) is none.
struct MediaFacts {
  /// Of the picture, else of the sound, as editors call it: "H.264"; empty: not known.
  std::string codec;
  /// The container's code of that same stream, first character in the highest byte; 0: it has none.
  std::uint32_t fourCC = 0;
  /// Stored pixels; 0: not known.
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// Width of a pixel to its height; a file that does not tell has square pixels.
  MediaRatio pixelAspect{1, 1};
  /// Pictures a second; not known for stills.
  MediaRatio pictureRate;
  /// Samples a second; 0: no sound, or not known.
  std::int32_t sampleRate = 0;
  /// In ticks; 0: not known, or a still.
  std::int64_t duration = 0;
  /// A picture file of one picture.
  bool isStill = false;
  bool hasPicture = false;
  bool hasSound = false;

  friend bool operator==(const MediaFacts&, const MediaFacts&) noexcept = default;
};

struct MediaReadRequest {
  /// Of the platform.
  std::string path;
  /// Counted from the call; a read that takes longer ends. Zero: it ends at once. The default serves
  /// network drives that have to wake up.
  std::chrono::milliseconds timeLimit{10'000};
  /// Asked again and again during the read, on the thread of the call; true ends the read. Null: never.
  bool (*isCancelled)(void* context) = nullptr;
  void* context = nullptr;
};

enum class MediaOutcome : std::uint8_t {
  kRead,
  /// The file is of no kind that is known here, and its name does not claim one: somebody else may be
  /// able to read it.
  kUnknownKind,
  /// The name claims a kind that is known here, but the content is damaged, incomplete, empty or of
  /// another kind.
  kDamaged,
  /// There is no such file.
  kAbsent,
  /// The platform refuses it, or it is no regular file.
  kInaccessible,
  kTimeLimit,
  kCancelled,
};

struct MediaReading {
  MediaOutcome outcome = MediaOutcome::kUnknownKind;
  /// Filled only when the file was read.
  MediaFacts facts;
  /// Why it was not, for people, to follow "Media file can't be read: "; begins in lower case.
  std::string reason;
};

/// The library's entry. Throws: nothing. [any-thread], several reads at once.
using ReadMediaEntry = void (*)(const MediaReadRequest& request, MediaReading& reading) noexcept;
inline constexpr const char* kReadMediaEntryName = "ReadSequenceIndexMedia";
inline constexpr const char* kMediaLibraryName = "libsequence_index_media.so";
/// The program that reads media files for the host, so that none can end or hang the host. Its one
/// argument is the library.
inline constexpr const char* kMediaProgramName = "sequence-index-media";

}  // namespace standalone
