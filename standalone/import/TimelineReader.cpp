#include "standalone/import/TimelineReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "standalone/import/FileBuffer.h"
#include "standalone/import/OtioReader.h"
#include "standalone/import/TimelineText.h"

namespace standalone {
namespace {

/// A beginning that tells a format which can't be read, and what to say then.
struct ForeignFormat {
  std::string_view beginning;
  const char* sentence;
};

constexpr std::array kForeignFormats = {
    ForeignFormat{"\xFF\xFE", "The text is UTF-16; save the file as UTF-8."},
    ForeignFormat{"\xFE\xFF", "The text is UTF-16; save the file as UTF-8."},
    // The same without a byte-order mark.
    ForeignFormat{{"{\0", 2}, "The text is UTF-16; save the file as UTF-8."},
    ForeignFormat{{"\0{", 2}, "The text is UTF-16; save the file as UTF-8."},
    ForeignFormat{"<", "XML timelines can't be read yet; export OpenTimelineIO (.otio)."},
    ForeignFormat{"TITLE:", "Edit decision lists can't be read yet; export OpenTimelineIO (.otio)."},
};

constexpr const char* kUnknownFormat =
    "This is no timeline in a known format; give an OpenTimelineIO file (.otio) or bundle (.otioz).";

std::string_view SkipBlanks(std::string_view text) {
  text = SkipByteOrderMark(text);
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  return text;
}

[[noreturn]] void ThrowForeign(std::string_view text) {
  const std::string_view beginning = SkipBlanks(text);
  if (beginning.empty()) throw ImportError(0, "The file holds only blanks; export the timeline again.");
  for (const ForeignFormat& format : kForeignFormats) {
    if (beginning.starts_with(format.beginning)) throw ImportError(1, format.sentence);
  }
  throw ImportError(1, kUnknownFormat);
}

ImportResult ReadText(const TimelineText& timeline, const std::filesystem::path& file,
                      const ImportProgress& progress) {
  static const OtioReader otio;
  static const std::array<const TimelineReader*, 1> readers = {&otio};
  TextSource& text = *timeline.text;
  for (const TimelineReader* reader : readers) {
    if (reader->Recognises(timeline.beginning, file)) {
      return reader->Read(text, timeline.source, progress);
    }
  }
  ThrowForeign(ReadToEnd(text.GetLength(), "The file",
                         [&](char* place, std::size_t room) { return text.Read(place, room); }));
}

}  // namespace

ImportError::ImportError(std::size_t line, std::string sentence)
    : std::runtime_error(std::move(sentence)), line(line) {}

TimelineReader::~TimelineReader() = default;

ImportResult TimelineReader::Read(std::string text, const TimelineSource& source,
                                  const ImportProgress& progress) const {
  TextInMemory inMemory(std::move(text));
  return Read(inMemory, source, progress);
}

ImportResult ReadTimelineFile(const std::filesystem::path& file, const ImportProgress& progress) {
  return ReadTimelineFile(file, ImportOptions(), progress);
}

ImportResult ReadTimelineFile(const std::filesystem::path& file, const ImportOptions& options,
                              const ImportProgress& progress) {
  TimelineText timeline = ReadTimelineText(file, progress);
  timeline.source.mediaRoots = options.mediaRoots;
  const std::string bundledFile = timeline.bundledFile;
  try {
    return ReadText(timeline, file, progress);
  } catch (const ImportError& error) {
    // A line is one of the file within, not of the bundle that was given.
    if (bundledFile.empty() || error.GetLine() == 0) throw;
    throw ImportError(error.GetLine(), bundledFile + ": " + error.what());
  }
}

}  // namespace standalone
