#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

struct zip;

namespace standalone {

struct ImportProgress;

/// A zip archive that is read. Opening it reads its directory alone, however large it is; the
/// content of a file is read when asked for. Operations throw ImportError.
class ZipArchive {
 public:
  /// `file` must be a regular file, which can be read at any place.
  static ZipArchive OpenFile(const std::filesystem::path& file);
  /// `bytes` is the whole archive and must outlive this object.
  static ZipArchive OpenBytes(std::string_view bytes);

  /// Whether content that starts so is a zip archive, one without files and one in parts among them.
  static bool Recognises(std::string_view beginning);

  /// Names of all files in UTF-8, folders left out.
  std::unordered_set<std::string> ListFiles() const;
  /// The whole content of a file; the first, if the archive has several of that name. Refuses more than
  /// 4 GB before it takes memory for them, and believes no size before it is read.
  std::string ReadFile(const std::string& name, const ImportProgress& progress) const;

 private:
  struct Discard {
    void operator()(zip* archive) const;
  };
  using Handle = std::unique_ptr<zip, Discard>;

  explicit ZipArchive(Handle handle) : handle(std::move(handle)) {}

  /// Position of the file of that name.
  std::uint64_t Find(const std::string& name) const;

  Handle handle;
};

}  // namespace standalone
