#include "standalone/import/MediaRoots.h"

#include <algorithm>

#include "standalone/import/MediaAddress.h"

namespace standalone {

namespace {

bool IsSeparator(char c) {
  return c == '/' || c == '\\';
}

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool HasDrive(std::string_view text) {
  return text.size() >= 2 && IsLetter(text[0]) && text[1] == ':' &&
         (text.size() == 2 || IsSeparator(text[2]));
}

bool IsShare(std::string_view text) {
  return text.size() >= 2 && IsSeparator(text[0]) && text[1] == text[0];
}

/// In one spelling, so that what is the same compares equal. Paths of this platform stay as they are:
/// "\" is a character of names there.
std::string Normalise(std::string_view address) {
  std::string text(address);
  if (!HasDrive(address) && !IsShare(address)) return text;
  std::replace(text.begin(), text.end(), '\\', '/');
  if (HasDrive(text) && text[0] >= 'a') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

/// The rest of an address behind a root, without its separators in front.
std::optional<std::string_view> FindRest(std::string_view address, std::string_view from) {
  if (!address.starts_with(from)) return std::nullopt;
  std::string_view rest = address.substr(from.size());
  if (!rest.empty() && rest.front() != '/') return std::nullopt;
  rest.remove_prefix(std::min(rest.find_first_not_of('/'), rest.size()));
  return rest;
}

}  // namespace

std::optional<MediaRoot> ParseMediaRoot(std::string_view text,
                                        const std::filesystem::path& currentFolder) {
  const std::size_t equals = text.find('=');
  if (equals == 0 || equals == std::string_view::npos || equals + 1 == text.size()) return std::nullopt;
  // A file URL is its path; a relative one is an address that is written so.
  MediaRoot root;
  root.from = Normalise(ReadMediaAddress(text.substr(0, equals), {currentFolder}).text);
  while (!root.from.empty() && root.from.back() == '/') root.from.pop_back();
  root.to = (currentFolder / std::filesystem::path(text.substr(equals + 1))).lexically_normal();
  return root;
}

std::vector<std::filesystem::path> MediaRoots::FindPlaces(std::string_view address) const {
  std::vector<std::filesystem::path> places;
  const std::string normal = Normalise(address);
  for (const MediaRoot& root : roots) {
    const auto rest = FindRest(normal, root.from);
    if (rest) places.push_back((root.to / std::filesystem::path(*rest)).lexically_normal());
  }
  return places;
}

void MediaRoots::Locate(MediaAddress& address, FileLookUp& files) const {
  if (roots.empty() || address.text.empty() || files.Exists(address.lookUpPath)) return;
  for (std::filesystem::path& place : FindPlaces(address.text)) {
    if (!files.Exists(place)) continue;
    address.lookUpPath = std::move(place);
    return;
  }
}

}  // namespace standalone
