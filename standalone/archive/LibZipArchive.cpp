#include <zip.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "standalone/import/ArchiveLibrary.h"
#include "standalone/import/FileBuffer.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/import/ZipArchive.h"

namespace standalone {
namespace {

struct CloseEntry {
  void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};
using Entry = std::unique_ptr<zip_file_t, CloseEntry>;

/// An error record that gives back what it holds.
class ErrorRecord {
 public:
  ErrorRecord() { zip_error_init(&record); }
  ~ErrorRecord() { zip_error_fini(&record); }
  ErrorRecord(const ErrorRecord&) = delete;
  ErrorRecord& operator=(const ErrorRecord&) = delete;
  zip_error_t* Get() { return &record; }

 private:
  zip_error_t record;
};

/// A failure of the disk is not the archive's fault. (A place that can't be sought is: it comes from
/// the archive.)
void ThrowIfUnreadable(std::string_view subject, zip_error_t* error) {
  const int code = zip_error_code_zip(error);
  const int system = zip_error_code_system(error);
  if ((code == ZIP_ER_OPEN || code == ZIP_ER_READ) && system != 0) ThrowUnreadable(subject, system);
}

[[noreturn]] void ThrowUnopened(zip_error_t* error) {
  ThrowIfUnreadable("The file", error);
  if (zip_error_code_zip(error) == ZIP_ER_MULTIDISK) {
    throw ImportError(0, "This zip archive is one part of several; pack the bundle into one file.");
  }
  throw ImportError(0, "This zip archive is damaged or not complete; export or copy it again.");
}

[[noreturn]] void ThrowUnreadableEntry(const std::string& name, zip_error_t* error) {
  ThrowIfUnreadable(name, error);
  switch (zip_error_code_zip(error)) {
    case ZIP_ER_ENCRNOTSUPP:
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
      throw ImportError(0, name + " is encrypted; pack the bundle without a password.");
    case ZIP_ER_COMPNOTSUPP:
      throw ImportError(0, name + " is packed by an unknown method; pack the bundle with \"deflate\".");
    case ZIP_ER_CRC:
      throw ImportError(0,
                        name + " is damaged: its checksum is wrong; export or copy the bundle again.");
    default:
      throw ImportError(0, name + " is damaged; export or copy the bundle again.");
  }
}

[[noreturn]] void ThrowDamagedEntry(const std::string& name) {
  ErrorRecord error;
  zip_error_set(error.Get(), ZIP_ER_INCONS, 0);
  ThrowUnreadableEntry(name, error.Get());
}

/// `source` goes to the archive, or is released when it can't be opened.
zip_t* Open(zip_source_t* source, ErrorRecord& error) {
  if (source == nullptr) ThrowUnopened(error.Get());
  zip_t* archive = zip_open_from_source(source, ZIP_RDONLY, error.Get());
  if (archive != nullptr) return archive;
  zip_source_free(source);
  ThrowUnopened(error.Get());
}

std::string_view GetName(zip_t* archive, zip_uint64_t index) {
  const char* name = zip_get_name(archive, index, ZIP_FL_ENC_GUESS);
  return name == nullptr ? std::string_view() : name;
}

zip_uint64_t GetSize(zip_t* archive, zip_uint64_t index, const std::string& name) {
  zip_stat_t stat;
  const bool isKnown =
      zip_stat_index(archive, index, 0, &stat) == 0 && (stat.valid & ZIP_STAT_SIZE) != 0;
  if (!isKnown) ThrowDamagedEntry(name);
  return stat.size;
}

void ThrowIfCancelled(const ImportProgress& progress) {
  if (progress.isCancelled && progress.isCancelled()) throw ImportError(0, "Reading was cancelled.");
}

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Handle = std::unique_ptr<zip_t, Discard>;

class LibZipArchive final : public ZipArchive {
 public:
  explicit LibZipArchive(Handle handle) : handle(std::move(handle)) {}

  std::unordered_set<std::string> ListFiles() const override;
  std::string ReadFile(const std::string& name, const ImportProgress& progress) const override;

 private:
  /// Position of the file of that name.
  zip_uint64_t Find(const std::string& name) const;

  Handle handle;
};

std::unordered_set<std::string> LibZipArchive::ListFiles() const {
  std::unordered_set<std::string> files;
  const zip_int64_t count = zip_get_num_entries(handle.get(), 0);
  for (zip_int64_t index = 0; index < count; ++index) {
    const std::string_view name = GetName(handle.get(), static_cast<zip_uint64_t>(index));
    if (!name.empty() && name.back() != '/') files.emplace(name);
  }
  return files;
}

zip_uint64_t LibZipArchive::Find(const std::string& name) const {
  const zip_int64_t index = zip_name_locate(handle.get(), name.c_str(), 0);
  if (index >= 0) return static_cast<zip_uint64_t>(index);
  if (zip_name_locate(handle.get(), name.c_str(), ZIP_FL_NODIR) >= 0) {
    throw ImportError(0, "This zip archive has its " + name +
                             " in a folder, so it is no bundle; pack what is in that folder.");
  }
  throw ImportError(
      0, "This zip archive has no " + name +
             ", so it is no bundle; give an OpenTimelineIO bundle (.otioz) or file (.otio).");
}

std::string LibZipArchive::ReadFile(const std::string& name, const ImportProgress& progress) const {
  // Enough for most timelines; a larger size could be a lie.
  constexpr zip_uint64_t kTrusted = zip_uint64_t{1} << 24;
  const zip_uint64_t index = Find(name);
  const zip_uint64_t size = GetSize(handle.get(), index, name);
  if (size > kLargestText) ThrowTooLarge(name);
  if (size == 0) ThrowEmpty(name);
  const Entry entry(zip_fopen_index(handle.get(), index, 0));
  if (!entry) ThrowUnreadableEntry(name, zip_get_error(handle.get()));
  zip_uint64_t left = size;
  std::string content =
      ReadToEnd(std::min(size, kTrusted), name, [&](char* place, std::size_t room) -> std::size_t {
        ThrowIfCancelled(progress);
        const zip_int64_t read = zip_fread(entry.get(), place, room);
        if (read < 0) ThrowUnreadableEntry(name, zip_file_get_error(entry.get()));
        if (static_cast<zip_uint64_t>(read) > left) ThrowDamagedEntry(name);
        left -= static_cast<zip_uint64_t>(read);
        return static_cast<std::size_t>(read);
      });
  if (left != 0) ThrowDamagedEntry(name);
  return content;
}

zip_source_t* MakeSource(const std::filesystem::path* file, std::string_view bytes,
                         ErrorRecord& error) {
  if (file != nullptr) return zip_source_file_create(file->c_str(), 0, -1, error.Get());
  constexpr int kIsFreedByLibrary = 0;
  return zip_source_buffer_create(bytes.data(), bytes.size(), kIsFreedByLibrary, error.Get());
}

ZipArchive* OpenArchive(const std::filesystem::path* file, std::string_view bytes) {
  ErrorRecord error;
  Handle handle(Open(MakeSource(file, bytes, error), error));
  return new LibZipArchive(std::move(handle));
}

}  // namespace
}  // namespace standalone

extern "C" __attribute__((visibility("default"))) standalone::ZipArchive* OpenSequenceIndexArchive(
    const std::filesystem::path* file, std::string_view bytes) {
  return standalone::OpenArchive(file, bytes);
}
