#include "host/qelcore/Files.h"

#include <algorithm>
#include <string>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/ReplacedFile.h"

namespace qelcore::filesupport {

namespace {

bool IsLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// An address as other platforms write it: "C:..." or "\\server\...".
bool IsForeignAddress(std::string_view path) {
  return path.starts_with("\\\\") || (path.size() >= 2 && path[1] == ':' && IsLetter(path[0]));
}

/// The last part that is not empty: the name of "media/reel 1/" is "reel 1".
std::string_view LastPart(std::string_view path, StorageType storage) {
  const bool splitsAtBackslash = storage == StorageType::kPlatformFile || IsForeignAddress(path);
  const auto isSeparator = [splitsAtBackslash](char byte) {
    return byte == '/' || (byte == '\\' && splitsAtBackslash);
  };
  while (!path.empty() && isSeparator(path.back())) path.remove_suffix(1);
  const auto before = std::find_if(path.rbegin(), path.rend(), isSeparator);
  return {before.base(), path.end()};
}

/// The path as the platform takes it: "/" between parts, never two in a row.
std::string ToPlatformPath(std::string_view path) {
  std::string result;
  for (const char byte : path) {
    const char mapped = byte == '\\' ? '/' : byte;
    if (mapped != '/' || !result.ends_with('/')) result.push_back(mapped);
  }
  return result;
}

}  // namespace

class File::State {
 public:
  State(std::string_view path, StorageType storage) : path(path), storage(storage) {}

  const UTF8String path;
  const StorageType storage;
  std::unique_ptr<standalone::ReplacedFile> output;  ///< Between Create and Close.

  standalone::ReplacedFile& RequireOutput() const {
    if (output == nullptr)
      throw config::file_exception(ToPlatformPath(path), "is not open for writing");
    return *output;
  }
};

File::File(std::string_view path, StorageType storage)
    : state(std::make_shared<State>(path, storage)) {}
File::File(std::string_view path, std::uint32_t storage)
    : File(path, static_cast<StorageType>(storage)) {}
File::~File() {
  state->output.reset();
}

UTF8String File::GetNameUTF8() const {
  return UTF8String(LastPart(state->path, state->storage));
}

UTF8String File::GetPathUTF8() const {
  return state->path;
}

void File::Create(bool failIfExists) {
  if (state->storage != StorageType::kPlatformFile) {
    throw config::file_exception(state->path, "is the address of media, which is never written");
  }
  // An earlier creation is given up first, not when the new one is there.
  state->output.reset();
  state->output = std::make_unique<standalone::ReplacedFile>(ToPlatformPath(state->path), failIfExists);
}

OPlatformByteStream::OPlatformByteStream(File& file, std::uint32_t flags) : state(file.state) {
  const standalone::ReplacedFile& output = state->RequireOutput();
  if (flags != kWrite) throw config::file_exception(output.GetPath(), "can only be opened for writing");
}

OPlatformByteStream::~OPlatformByteStream() {
  state->output.reset();
}

void OPlatformByteStream::WriteBlock(const void* data, std::uint32_t size) {
  standalone::ReplacedFile& output = state->RequireOutput();
  try {
    output.Write(data, size);
  } catch (...) {
    // A file with a hole must not take the target's place later.
    state->output.reset();
    throw;
  }
}

void OPlatformByteStream::Close() {
  state->RequireOutput();
  const std::unique_ptr<standalone::ReplacedFile> output = std::move(state->output);
  output->Commit();
}

}  // namespace qelcore::filesupport
