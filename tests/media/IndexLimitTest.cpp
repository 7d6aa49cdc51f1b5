#include <gtest/gtest.h>

#include <initializer_list>

#include "media/MediaFixtures.h"

namespace standalone {
namespace {

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
  return bytes;
}

std::string Box(const std::string& type, const std::string& content) {
  return BigEndian(static_cast<std::uint32_t>(content.size()) + 8) + type + content;
}

/// The table of so many numbers behind version and flags.
std::string Table(const std::string& type, std::initializer_list<std::uint32_t> numbers) {
  std::string content(4, '\0');
  for (const std::uint32_t number : numbers) content += BigEndian(number);
  return Box(type, content);
}

/// Half a kilobyte that claims so many pictures of one byte.
std::string MakeTrack(std::uint32_t pictures) {
  const std::string format = std::string(7, '\0') + '\1' + std::string(16, '\0') +
                             BigEndian(64 << 16 | 36) + std::string(50, '\0');
  const std::string tables = Box("stsd", std::string(4, '\0') + BigEndian(1) + Box("jpeg", format)) +
                             Table("stts", {1, pictures, 1}) + Table("stsc", {1, 1, pictures, 1}) +
                             Table("stsz", {1, pictures}) + Table("stco", {1, 64});
  const std::string handler = Box("hdlr", std::string(4, '\0') + "mhlrvide" + std::string(13, '\0'));
  const std::string media = Table("mdhd", {0, 0, 25, 1000, 0}) + handler;
  return Box("trak", Box("mdia", media + Box("minf", Box("stbl", tables))));
}

std::string MakeMovie(int tracks, std::uint32_t pictures) {
  std::string content;
  for (int i = 0; i < tracks; ++i) content += MakeTrack(pictures);
  return Box("ftyp", "qt  " + BigEndian(0) + "qt  ") + Box("moov", content);
}

TEST(IndexLimits, AFewBytesThatClaimMorePicturesThanMemoryHoldsAreDamage) {
  constexpr std::uint32_t kAMillion = 1'000'000;
  const process::Folder folder;
  process::WriteFile(folder / "long.mov", MakeMovie(10, kAMillion));
  process::WriteFile(folder / "endless.mov", MakeMovie(200, kAMillion));
  EXPECT_EQ(fixtures::Read(folder / "long.mov").facts.codec, "Motion JPEG");
  const MediaReading reading = fixtures::Read(folder / "endless.mov");
  EXPECT_EQ(reading.outcome, MediaOutcome::kDamaged);
  EXPECT_EQ(reading.reason, "its content is damaged or incomplete");
}

}  // namespace
}  // namespace standalone
