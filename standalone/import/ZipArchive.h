#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

struct ImportProgress;

/// A zip archive that is read. Opening it reads its directory alone, however large it is; the
/// content of a file is read when asked for. Operations throw ImportError.
class STANDALONE_API ZipArchive {
 public:
  virtual ~ZipArchive();
  ZipArchive(const ZipArchive&) = delete;
  ZipArchive& operator=(const ZipArchive&) = delete;

  /// `file` must be a regular file, which can be read at any place.
  static std::unique_ptr<const ZipArchive> OpenFile(const std::filesystem::path& file);
  /// `bytes` is the whole archive and must outlive the object.
  static std::unique_ptr<const ZipArchive> OpenBytes(std::string_view bytes);

  /// Whether content that starts so is a zip archive, one without files and one in parts among them.
  static bool Recognises(std::string_view beginning);

  /// Names of all files in UTF-8, folders left out.
  virtual std::unordered_set<std::string> ListFiles() const = 0;
  /// The whole content of a file; the first, if the archive has several of that name. Refuses more than
  /// 4 GB before it takes memory for them, and believes no size before it is read.
  virtual std::string ReadFile(const std::string& name, const ImportProgress& progress) const = 0;

 protected:
  ZipArchive() = default;
};

}  // namespace standalone
