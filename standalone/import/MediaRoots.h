#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class FileLookUp;
struct MediaAddress;

/// Where media lies on this machine that a timeline knows under the paths of another one: addresses
/// that begin with `from` are looked up below `to`.
struct MediaRoot {
  /// As addresses are shown: decoded, of any platform, without separators at its end.
  std::string from;
  std::filesystem::path to;
};

/// Reads "FROM=TO", split at the first "=". FROM is a path of any platform, or a file URL; TO is a
/// folder here, taken from `currentFolder` when it is relative. None when either is empty.
STANDALONE_API std::optional<MediaRoot> ParseMediaRoot(std::string_view text,
                                                       const std::filesystem::path& currentFolder);

/// The media roots of a session, in the order in which they are tried.
class STANDALONE_API MediaRoots {
 public:
  void Add(MediaRoot root) { roots.push_back(std::move(root)); }
  bool IsEmpty() const noexcept { return roots.empty(); }

  /// Where the roots that fit an address, as it is shown, lead, in their order. A root fits when the
  /// address is `from` itself or goes on with a separator behind it. "\" separates, as "/" does, in
  /// addresses that begin with a drive letter or with two separators; drive letters are compared in
  /// any case, everything else exactly.
  std::vector<std::filesystem::path> FindPlaces(std::string_view address) const;

  /// When nothing lies where the address says, makes it look at the first of those places where
  /// something does. The text stays as it is.
  void Locate(MediaAddress& address, FileLookUp& files) const;

 private:
  std::vector<MediaRoot> roots;
};

}  // namespace standalone
