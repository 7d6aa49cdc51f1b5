#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/MediaRoots.h"
#include "standalone/import/TextSource.h"
#include "standalone/import/TimelineSource.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// One thing that a reader noticed about an item; the file still opens, and the item is kept with what
/// is known of it.
struct ImportNote {
  /// Where, for people: `track V2, clip "Intro"`.
  std::string place;
  /// Line of the file, from 1; 0: unknown.
  std::size_t line = 0;
  /// What is wrong and what was made of it, one sentence.
  std::string sentence;
};

/// A file that can't be shown. what() is one sentence that says what is wrong and what to do; it does
/// not repeat the file's name.
class STANDALONE_API ImportError : public std::runtime_error {
 public:
  /// `line` counts from 1; 0: none.
  ImportError(std::size_t line, std::string sentence);
  std::size_t GetLine() const { return line; }

 private:
  std::size_t line;
};

struct ImportResult {
  DocumentDraft document;
  /// Trouble with single items, in the order of the file.
  std::vector<ImportNote> notes;
  /// What the file holds that the index can't show ("Not shown: …"), and what was assumed because the
  /// file does not say it ("Assumed: …"), in the order of the file. Things that come by the thousand
  /// are one line with the place of the first and their number.
  std::vector<ImportNote> report;
};

/// How a long read is followed and stopped. Both functions are optional, are called on the reading
/// thread, and must not throw.
struct ImportProgress {
  /// From 0 to 1, never falling.
  std::function<void(double fraction)> report;
  /// Asked now and then; true ends the read with an ImportError.
  std::function<bool()> isCancelled;
};

/// What the reader of a timeline file is told beside the file.
struct ImportOptions {
  MediaRoots mediaRoots;
};

/// A reader of one kind of timeline file. Readers hold no state: [any-thread], several reads at once.
class STANDALONE_API TimelineReader {
 public:
  virtual ~TimelineReader();
  TimelineReader(const TimelineReader&) = delete;
  TimelineReader& operator=(const TimelineReader&) = delete;

  /// For people: "OpenTimelineIO".
  virtual std::string_view GetFormatName() const = 0;
  /// Whether a file that starts with `beginning` is of this format. The name decides only where the
  /// content can't.
  virtual bool Recognises(std::string_view beginning, const std::filesystem::path& file) const = 0;
  /// Reads the timeline's whole text; `source` gives the name of an unnamed timeline and the folder for
  /// relative media addresses. Throws ImportError.
  virtual ImportResult Read(TextSource& text, const TimelineSource& source,
                            const ImportProgress& progress) const = 0;
  ImportResult Read(std::string text, const TimelineSource& source,
                    const ImportProgress& progress) const;

 protected:
  TimelineReader() = default;
};

/// Reads a timeline of any known format: a file, or an OpenTimelineIO bundle, which is a folder or a
/// zip archive that holds a content.otio together with its media. A bundle's media are looked up inside
/// it (see MediaAddress), never read or unpacked; the lines of notes and errors are those of
/// content.otio. Time and memory grow linearly with the timeline's text, and with the number of an
/// archive's files; an archive that comes through a pipe is kept in memory. [any-thread] Throws
/// ImportError: missing, a folder that is no bundle, unreadable, empty, truncated, of no known format,
/// a damaged, encrypted or foreign archive, with nothing to show, nested deeper than 256 levels, or
/// cancelled.
STANDALONE_API ImportResult ReadTimelineFile(const std::filesystem::path& file,
                                             const ImportProgress& progress = {});
STANDALONE_API ImportResult ReadTimelineFile(const std::filesystem::path& file,
                                             const ImportOptions& options,
                                             const ImportProgress& progress = {});

}  // namespace standalone
