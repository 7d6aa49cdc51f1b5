#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "host/qelcore/Threads.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/probing/MediaCache.h"
#include "standalone/probing/MediaReader.h"
#include "standalone/probing/WorkerReader.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How a long probe is followed and stopped. Both functions are optional, are called on the thread that
/// probes, and must not throw.
struct ProbeProgress {
  /// Of the files that have to be read; `done` never falls.
  std::function<void(std::size_t done, std::size_t all)> report;
  /// Asked now and then, also within a file; true ends the probe.
  std::function<bool()> isCancelled;
};

struct ProbeOutcome {
  /// Files that were read now, whatever came of it.
  std::size_t readCount = 0;
  /// Whether any of the document's media files is there: otherwise they told nothing.
  bool hasFoundFiles = false;
  /// The probe was cancelled: nothing was filled, but what was read is remembered.
  bool isCancelled = false;
  /// One sentence when media files can't be read at all here, given once; otherwise empty.
  std::string note;
};

/// Fills a document with what its timeline file does not tell and its media files do (FillClip.h). It
/// remembers what it read, by path, size and time of change, for the next document. One probe at a
/// time. [any-thread]
class STANDALONE_API MediaProber {
 public:
  struct Setup {
    /// Gives the reader when the first file has to be read, and again after a cancelled probe, which
    /// lets it go. Throws: std::runtime_error when there is none, with the sentence of the note.
    std::function<MediaReader()> findReader = [] { return StartMediaReader(); };
    /// Reads in parallel; null: the runtime's pool, or threads of the probe where no runtime exists.
    std::shared_ptr<qelcore::threads::AsyncExecutor> executor = nullptr;
    /// For each file.
    std::chrono::milliseconds timeLimit = MediaReadRequest().timeLimit;
  };

  MediaProber();
  explicit MediaProber(Setup setup);
  MediaProber(const MediaProber&) = delete;
  MediaProber& operator=(const MediaProber&) = delete;

  /// Reads the files that the document needs and fills its clips; returns when that is done. Calls the
  /// reader on several threads.
  ProbeOutcome Probe(DocumentDraft& document, const ProbeProgress& progress = {});

 private:
  /// Null when there is none; then `note` is set, the first time.
  const MediaReader* ProvideReader(std::string& note);

  Setup setup;
  MediaCache cache;
  MediaReader reader;
  bool isReaderLacking = false;
};

}  // namespace standalone
