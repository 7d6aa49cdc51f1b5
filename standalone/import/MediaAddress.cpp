#include "standalone/import/MediaAddress.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>

#include "standalone/model/TextCase.h"

namespace standalone {
namespace {

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool StartsWithDrive(std::string_view text) {
  return text.size() >= 2 && IsLetter(text[0]) && text[1] == ':' &&
         (text.size() == 2 || text[2] == '/' || text[2] == '\\');
}

bool IsForeignPath(std::string_view text) {
  return StartsWithDrive(text) || text.starts_with("\\\\") || text.starts_with("//");
}

/// Length of "file", "http", …; 0 for a path. One letter is a drive, not a scheme.
std::size_t GetSchemeLength(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || colon < 2 || !IsLetter(text.front())) return 0;
  const bool isScheme =
      std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon), [](char c) {
        const bool isDigit = c >= '0' && c <= '9';
        return IsLetter(c) || isDigit || c == '+' || c == '-' || c == '.';
      });
  // "take:wide.mov" is a name; the addresses that timelines hold have a path behind their scheme.
  const bool hasPath = colon + 1 < text.size() && text[colon + 1] == '/';
  return isScheme && hasPath ? colon : 0;
}

/// The path of a file URL: "localhost" is this machine, any other host becomes a share's name, and
/// "/C:/" loses its slash.
std::string GetFileURLPath(std::string_view afterScheme) {
  std::string path;
  if (afterScheme.starts_with("//")) {
    const std::string_view rest = afterScheme.substr(2);
    const std::size_t slash = std::min(rest.find('/'), rest.size());
    const std::string_view machine = rest.substr(0, slash);
    if (StartsWithDrive(machine)) return DecodePercent(rest);
    const bool isLocal = machine.empty() || EqualsIgnoringCase(machine, "localhost");
    path = DecodePercent(isLocal ? rest.substr(slash) : afterScheme);
  } else {
    path = DecodePercent(afterScheme);
  }
  const bool hasDrive = path.size() > 1 && StartsWithDrive(std::string_view(path).substr(1));
  return hasDrive ? path.substr(1) : path;
}

int HexDigit(char c) {
  int value = -1;
  std::from_chars(&c, &c + 1, value, 16);
  return value;
}

/// Length of the UTF-8 sequence that starts with that byte; 0: none does.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

/// Bounds of the second byte keep out overlong forms, surrogates and what lies beyond U+10FFFF.
bool IsSecondByte(unsigned char lead, unsigned char second) {
  const unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  return second >= lowest && second <= highest;
}

bool IsValidUTF8(std::string_view text) {
  while (!text.empty()) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > text.size()) return false;
    if (length > 1 && !IsSecondByte(lead, static_cast<unsigned char>(text[1]))) return false;
    for (std::size_t i = 2; i < length; ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

std::filesystem::path Join(const std::filesystem::path& folder, std::string_view name) {
  return (folder / std::filesystem::path(std::string(name))).lexically_normal();
}

/// The path's name in the archive; none: the path does not lie below it.
std::optional<std::string> GetArchivedName(const MediaFolder& folder,
                                           const std::filesystem::path& file) {
  const std::string& archive = folder.path.native();
  const std::string& name = file.native();
  const bool isBelow = folder.archivedFiles && name.starts_with(archive) &&
                       name.size() > archive.size() && name[archive.size()] == '/';
  return isBelow ? std::optional(name.substr(archive.size() + 1)) : std::nullopt;
}

bool IsThere(const MediaFolder& folder, const std::filesystem::path& file) {
  if (const auto name = GetArchivedName(folder, file)) return folder.archivedFiles->contains(*name);
  std::error_code error;
  return std::filesystem::exists(file, error);
}

/// Empty for what would leave an archive: nothing lies beside its files.
std::filesystem::path FindRelative(const MediaFolder& folder, std::string_view name) {
  std::filesystem::path path = Join(folder.path, name);
  if (folder.archivedFiles && !GetArchivedName(folder, path)) path.clear();
  return path;
}

MediaAddress ReadRelativeAddress(std::string_view written, const MediaFolder& folder) {
  MediaAddress address;
  address.text = DecodePercent(written);
  address.lookUpPath = FindRelative(folder, address.text);
  if (address.text == written || IsThere(folder, address.lookUpPath)) return address;
  const std::filesystem::path undecoded = FindRelative(folder, written);
  if (IsThere(folder, undecoded)) address.lookUpPath = undecoded;
  return address;
}

bool IsFileOnDisk(const std::filesystem::path& file) {
  std::error_code error;
  const auto type = std::filesystem::status(file, error).type();
  return type != std::filesystem::file_type::not_found && type != std::filesystem::file_type::none &&
         type != std::filesystem::file_type::directory;
}

}  // namespace

std::string DecodePercent(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      decoded += text[i];
      continue;
    }
    const int high = i + 1 < text.size() ? HexDigit(text[i + 1]) : -1;
    const int low = i + 2 < text.size() ? HexDigit(text[i + 2]) : -1;
    const int code = high * 16 + low;
    if (high < 0 || low < 0 || code < ' ') return std::string(text);
    decoded += static_cast<char>(code);
    i += 2;
  }
  return IsValidUTF8(decoded) ? decoded : std::string(text);
}

MediaAddress ReadMediaAddress(std::string_view written, const MediaFolder& folder) {
  MediaAddress address;
  if (written.empty()) return address;
  const std::size_t scheme = GetSchemeLength(written);
  if (scheme == 0 && !written.starts_with('/') && !IsForeignPath(written)) {
    return ReadRelativeAddress(written, folder);
  }
  const bool isFileURL = scheme != 0 && EqualsIgnoringCase(written.substr(0, scheme), "file");
  address.text = isFileURL ? GetFileURLPath(written.substr(scheme + 1)) : std::string(written);
  const bool isOtherScheme = scheme != 0 && !isFileURL;
  if (!isOtherScheme && !IsForeignPath(address.text)) address.lookUpPath = address.text;
  return address;
}

std::string_view GetFileName(std::string_view address) {
  const bool hasBackslashes = StartsWithDrive(address) || address.starts_with("\\\\");
  const std::size_t last = address.find_last_of(hasBackslashes ? "/\\" : "/");
  return last == std::string_view::npos ? address : address.substr(last + 1);
}

std::string_view RemoveExtension(std::string_view fileName) {
  const std::size_t point = fileName.rfind('.');
  return point == std::string_view::npos || point == 0 ? fileName : fileName.substr(0, point);
}

bool HasStillImageExtension(std::string_view fileName) {
  constexpr std::array<std::string_view, 18> kExtensions = {
      "png", "jpg", "jpeg", "tif", "tiff", "bmp",  "gif", "tga", "psd",
      "exr", "dpx", "cin",  "hdr", "webp", "heic", "svg", "sgi", "jp2",
  };
  const std::size_t point = fileName.rfind('.');
  if (point == std::string_view::npos) return false;
  const std::string_view extension = fileName.substr(point + 1);
  return std::any_of(kExtensions.begin(), kExtensions.end(),
                     [&](std::string_view known) { return EqualsIgnoringCase(known, extension); });
}

bool FileLookUp::Exists(const std::filesystem::path& file) {
  const std::string& name = file.native();
  if (name.empty() || name.find('\0') != std::string::npos) return false;
  const auto [entry, isNew] = known.try_emplace(name, false);
  if (isNew) {
    const auto archived = GetArchivedName(folder, file);
    entry->second = archived ? folder.archivedFiles->contains(*archived) : IsFileOnDisk(file);
  }
  return entry->second;
}

}  // namespace standalone
