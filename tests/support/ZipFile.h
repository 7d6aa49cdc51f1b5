#pragma once

#include <gtest/gtest.h>
#include <zip.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "support/Process.h"

/// Zip archives for tests.
namespace zipfile {

/// A file of an archive; a name that ends in "/" is a folder without content.
struct File {
  std::string name;
  std::string content;
  zip_int32_t method = ZIP_CM_DEFLATE;
  std::string password = {};
};

inline void Add(zip_t* archive, const File& file) {
  constexpr int kIsFreedByLibrary = 0;
  if (file.name.back() == '/') {
    EXPECT_GE(zip_dir_add(archive, file.name.c_str(), ZIP_FL_ENC_UTF_8), 0);
    return;
  }
  zip_source_t* source =
      zip_source_buffer(archive, file.content.data(), file.content.size(), kIsFreedByLibrary);
  const zip_int64_t added = zip_file_add(archive, file.name.c_str(), source, ZIP_FL_ENC_UTF_8);
  ASSERT_GE(added, 0) << zip_strerror(archive);
  const auto index = static_cast<zip_uint64_t>(added);
  EXPECT_EQ(zip_set_file_compression(archive, index, file.method, 0), 0);
  EXPECT_EQ(zip_file_set_dostime(archive, index, 0, 0x21, 0), 0);
  if (file.password.empty()) return;
  EXPECT_EQ(zip_file_set_encryption(archive, index, ZIP_EM_AES_256, file.password.c_str()), 0);
}

inline void Write(const std::filesystem::path& path, const std::vector<File>& files) {
  int error = 0;
  zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
  ASSERT_NE(archive, nullptr);
  for (const File& file : files) Add(archive, file);
  EXPECT_EQ(zip_close(archive), 0) << zip_strerror(archive);
}

/// The bytes of an archive.
inline std::string Make(const std::vector<File>& files) {
  const process::Folder folder;
  Write(folder / "made.zip", files);
  return process::ReadFile(folder / "made.zip");
}

/// Writes a number, lowest byte first.
inline void Put(std::string& bytes, std::size_t at, std::uint64_t value, int width) {
  for (int i = 0; i < width; ++i)
    bytes.at(at + static_cast<std::size_t>(i)) = static_cast<char>(value >> 8 * i);
}

/// Where the file's entry begins in the directory at the end.
inline std::size_t FindDirectoryEntry(const std::string& bytes, const std::string& name) {
  constexpr std::size_t kNameOffset = 46;
  for (std::size_t at = 0; (at = bytes.find("PK\x01\x02", at)) != std::string::npos; ++at) {
    if (bytes.compare(at + kNameOffset, name.size(), name) == 0) return at;
  }
  ADD_FAILURE() << name << " is not in the archive";
  return 0;
}

/// Where the file's entry begins in front of its content.
inline std::size_t FindLocalEntry(const std::string& bytes, const std::string& name) {
  constexpr std::size_t kNameOffset = 30;
  for (std::size_t at = 0; (at = bytes.find("PK\x03\x04", at)) != std::string::npos; ++at) {
    if (bytes.compare(at + kNameOffset, name.size(), name) == 0) return at;
  }
  ADD_FAILURE() << name << " is not in the archive";
  return 0;
}

/// Overwrites a number of both entries; its place is counted in the local one.
inline void PutBoth(std::string& bytes, const std::string& name, std::size_t field, std::uint64_t value,
                    int width) {
  // The directory's entry has the writer's version in front.
  constexpr std::size_t kShift = 2;
  Put(bytes, FindLocalEntry(bytes, name) + field, value, width);
  Put(bytes, FindDirectoryEntry(bytes, name) + field + kShift, value, width);
}

/// Places in a local entry.
inline constexpr std::size_t kMethod = 8;
inline constexpr std::size_t kChecksum = 14;
inline constexpr std::size_t kSize = 22;

/// The bytes of an archive with one file, whose directory claims that size, in 64 bits.
inline std::string MakeWithClaimedSize(const std::string& name, const std::string& content,
                                       std::uint64_t size) {
  // A field of another kind keeps room for the one that holds wide sizes.
  constexpr std::uint16_t kOtherField = 0x7777;
  constexpr std::uint16_t kWideSizes = 0x0001;
  const process::Folder folder;
  int error = 0;
  zip_t* archive = zip_open((folder / "made.zip").c_str(), ZIP_CREATE, &error);
  const File file{name, content};  // lives until the archive is written
  Add(archive, file);
  const std::string room(8, '\0');
  EXPECT_EQ(
      zip_file_extra_field_set(archive, 0, kOtherField, 0,
                               reinterpret_cast<const zip_uint8_t*>(room.data()), 8, ZIP_FL_CENTRAL),
      0);
  EXPECT_EQ(zip_close(archive), 0);
  std::string bytes = process::ReadFile(folder / "made.zip");
  const std::size_t entry = FindDirectoryEntry(bytes, name);
  const std::size_t field = bytes.find("\x77\x77", entry);
  Put(bytes, entry + kSize + 2, 0xFFFFFFFF, 4);
  Put(bytes, field, kWideSizes, 2);
  Put(bytes, field + 4, size, 8);
  return bytes;
}

}  // namespace zipfile
