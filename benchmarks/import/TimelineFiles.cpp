#include "import/TimelineFiles.h"

#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>

#include "generator/TimelineFile.h"
#include "support/Process.h"

namespace benchmarks {
namespace {

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};

}  // namespace

const std::filesystem::path& GetTimelineFile(std::size_t clips) {
  static const process::Folder folder;
  static std::map<std::size_t, std::filesystem::path> files;
  const auto [known, isNew] = files.try_emplace(clips, folder / (std::to_string(clips) + ".otio"));
  if (isNew) {
    generator::TimelineShape shape;
    shape.clips = clips;
    generator::WriteTimeline(known->second, shape);
  }
  return known->second;
}

std::string ReadFile(const std::filesystem::path& file) {
  std::string content(std::filesystem::file_size(file), '\0');
  const std::unique_ptr<std::FILE, CloseFile> stream(std::fopen(file.c_str(), "rbe"));
  if (!stream || std::fread(content.data(), 1, content.size(), stream.get()) != content.size()) {
    throw std::runtime_error(file.string() + " can't be read");
  }
  return content;
}

}  // namespace benchmarks
