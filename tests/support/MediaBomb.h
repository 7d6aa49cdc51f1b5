#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "support/Process.h"

/// Media files of a few kilobytes that claim what would fill gigabytes of memory.
namespace media_bombs {

inline const std::string kIndexSegmentKey(
    "\x06\x0e\x2b\x34\x02\x53\x01\x01\x0d\x01\x02\x01\x01\x10\x01\x00", 16);

inline std::string MakeBigEndian(std::uint64_t number, int size) {
  std::string bytes;
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
    bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
  }
  return bytes;
}

/// An index table segment of an MXF file, for a stream of its own: it holds two entries and claims one
/// for each of `duration` pictures.
inline std::string MakeIndexSegment(std::uint32_t stream, std::uint64_t duration) {
  constexpr int kEntrySize = 15;
  const auto item = [](std::uint64_t tag, const std::string& value) {
    return MakeBigEndian(tag, 2) + MakeBigEndian(value.size(), 2) + value;
  };
  const std::string entries =
      MakeBigEndian(2, 4) + MakeBigEndian(kEntrySize, 4) + std::string(2 * kEntrySize, '\0');
  const std::string value = item(0x3c0a, MakeBigEndian(stream, 8) + MakeBigEndian(1, 8)) +
                            item(0x3f0b, MakeBigEndian(25, 4) + MakeBigEndian(1, 4)) +
                            item(0x3f0c, MakeBigEndian(0, 8)) +
                            item(0x3f0d, MakeBigEndian(duration, 8)) +
                            item(0x3f05, MakeBigEndian(0, 4)) + item(0x3f06, MakeBigEndian(stream, 4)) +
                            item(0x3f07, MakeBigEndian(1, 4)) + item(0x3f0a, entries);
  return kIndexSegmentKey + MakeBigEndian(0x83, 1) + MakeBigEndian(value.size(), 3) + value;
}

/// An MXF file with such segments before its own first one.
inline std::string MakeIndexBomb(const std::filesystem::path& original) {
  constexpr std::uint32_t kSegments = 12;
  constexpr std::uint64_t kDuration = 10'000'000;
  std::string file = process::ReadFile(original);
  std::string segments;
  for (std::uint32_t i = 0; i < kSegments; ++i) segments += MakeIndexSegment(1000 + i, kDuration);
  return file.insert(file.find(kIndexSegmentKey), segments);
}

}  // namespace media_bombs
