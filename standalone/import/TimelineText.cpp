#include "standalone/import/TimelineText.h"

#include <memory>
#include <system_error>
#include <unordered_set>
#include <utility>

#include "standalone/import/FileBuffer.h"
#include "standalone/import/ZipArchive.h"

namespace standalone {
namespace {

namespace fs = std::filesystem;

/// The timeline of a bundle.
constexpr const char* kContent = "content.otio";

constexpr std::size_t kBeginning = 4096;

TimelineText KeepText(std::string text, TimelineSource source, std::string bundledFile = {}) {
  std::string beginning = text.substr(0, kBeginning);
  return {std::make_unique<TextInMemory>(std::move(text)), std::move(beginning), std::move(source),
          std::move(bundledFile)};
}

/// A file is read as it is parsed, so that a long one needs no memory for its text. What is none, or
/// does not tell its length, is read here.
TimelineText OpenText(const fs::path& file, std::string_view subject, TimelineSource source,
                      std::string bundledFile = {}) {
  std::error_code error;
  const bool isPlain = fs::is_regular_file(file, error) && fs::file_size(file, error) > 0;
  if (!isPlain || error) {
    return KeepText(ReadWholeFile(file, subject), std::move(source), std::move(bundledFile));
  }
  auto text = std::make_unique<TextInFile>(file, subject);
  return {std::move(text), ReadBeginning(file, kBeginning), std::move(source), std::move(bundledFile)};
}

[[noreturn]] void ThrowNoContent(const fs::path& folder) {
  const bool isNamedBundle = DescribeBundle(folder).mediaFolder.path.extension() == ".otiod";
  if (!isNamedBundle) throw ImportError(0, "This is a folder; give a timeline file.");
  throw ImportError(0, "This bundle has no " + std::string(kContent) + "; export or copy it again.");
}

TimelineText ReadFolder(const fs::path& folder) {
  const fs::path file = folder / kContent;
  std::error_code error;
  const fs::file_type type = fs::status(file, error).type();
  if (type == fs::file_type::not_found) ThrowNoContent(folder);
  if (type == fs::file_type::directory) {
    throw ImportError(0, std::string(kContent) + " is a folder itself; export the bundle again.");
  }
  return OpenText(file, kContent, DescribeBundle(folder), kContent);
}

TimelineText ReadArchive(const ZipArchive& archive, const fs::path& file,
                         const ImportProgress& progress) {
  TimelineText timeline =
      KeepText(archive.ReadFile(kContent, progress), DescribeBundle(file), kContent);
  timeline.source.mediaFolder.archivedFiles =
      std::make_shared<const std::unordered_set<std::string>>(archive.ListFiles());
  return timeline;
}

}  // namespace

TimelineText ReadTimelineText(const fs::path& file, const ImportProgress& progress) {
  constexpr std::size_t kSignature = 4;
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status)) return ReadFolder(file);
  if (fs::is_regular_file(status)) {
    const bool isArchive = ZipArchive::Recognises(ReadBeginning(file, kSignature));
    if (isArchive) return ReadArchive(*ZipArchive::OpenFile(file), file, progress);
    return OpenText(file, "The file", DescribeFile(file));
  }
  // A pipe can be read only once, and from its start to its end.
  std::string content = ReadWholeFile(file);
  if (ZipArchive::Recognises(content)) {
    return ReadArchive(*ZipArchive::OpenBytes(content), file, progress);
  }
  return KeepText(std::move(content), DescribeFile(file));
}

}  // namespace standalone
