#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "standalone/import/MediaFolder.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A media address of a timeline file, taken apart.
struct MediaAddress {
  /// As people read it: a file URL is its decoded path, a relative address is decoded, plain absolute
  /// paths and addresses of other schemes stand as they are written.
  std::string text;
  /// Where this machine can look for the file; empty for other schemes, paths of other platforms and
  /// shares of other machines.
  std::filesystem::path lookUpPath;
};

/// `written` is the URL or path in the file, `folder` where relative ones lead: a file of an archive is
/// looked up below the archive's path, and an address that leaves the archive nowhere.
/// A relative address whose name really holds "%41" is found as well: the look-up takes what is written
/// when nothing lies at the decoded name.
STANDALONE_API MediaAddress ReadMediaAddress(std::string_view written, const MediaFolder& folder);

/// Decodes %XX. Returns the text unchanged if any "%" is not followed by two hex digits, or if the
/// result would hold a control character ("%04d" stands for a picture's number) or be no UTF-8.
STANDALONE_API std::string DecodePercent(std::string_view text);

/// The last part of an address. Parts end at "/", and at "\" too when the address starts with a drive
/// letter or with "\\".
STANDALONE_API std::string_view GetFileName(std::string_view address);

/// Without the last "." and what follows; a name that only starts with "." is kept whole.
STANDALONE_API std::string_view RemoveExtension(std::string_view fileName);

/// Whether the name ends like a picture file.
bool HasStillImageExtension(std::string_view fileName);

/// Which media files exist, in the archive for paths below it, else on disk. Timelines name the same
/// few files over and over, so each is looked up once.
class STANDALONE_API FileLookUp {
 public:
  explicit FileLookUp(MediaFolder folder) : folder(std::move(folder)) {}

  bool Exists(const std::filesystem::path& file);

 private:
  MediaFolder folder;
  std::unordered_map<std::string, bool> known;
};

}  // namespace standalone
