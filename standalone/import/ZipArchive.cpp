#include "standalone/import/ZipArchive.h"

#include <algorithm>
#include <array>
#include <exception>

#include "standalone/import/ArchiveLibrary.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/runtime/InstalledLibrary.h"

namespace standalone {
namespace {

OpenArchiveEntry LoadArchiveLibrary() {
  try {
    return reinterpret_cast<OpenArchiveEntry>(
        LoadInstalledEntry(kArchiveLibraryName, kOpenArchiveEntryName));
  } catch (const std::exception& failure) {
    throw ImportError(0, "Zip archives can't be opened: " + std::string(failure.what()) +
                             "; install what is missing, or give the bundle as a folder (.otiod).");
  }
}

std::unique_ptr<const ZipArchive> Open(const std::filesystem::path* file, std::string_view bytes) {
  static const OpenArchiveEntry open = LoadArchiveLibrary();
  return std::unique_ptr<const ZipArchive>(open(file, bytes));
}

}  // namespace

ZipArchive::~ZipArchive() = default;

std::unique_ptr<const ZipArchive> ZipArchive::OpenFile(const std::filesystem::path& file) {
  return Open(&file, {});
}

std::unique_ptr<const ZipArchive> ZipArchive::OpenBytes(std::string_view bytes) {
  return Open(nullptr, bytes);
}

bool ZipArchive::Recognises(std::string_view beginning) {
  constexpr std::array<std::string_view, 3> kSignatures = {"PK\x03\x04", "PK\x05\x06", "PK\x07\x08"};
  return std::any_of(kSignatures.begin(), kSignatures.end(),
                     [&](std::string_view signature) { return beginning.starts_with(signature); });
}

}  // namespace standalone
