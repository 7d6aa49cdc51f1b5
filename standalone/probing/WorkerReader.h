#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "standalone/media/contract/MediaReading.h"
#include "standalone/probing/MediaReader.h"
#include "standalone/probing/WorkerProcess.h"
#include "standalone/runtime/InstalledLibrary.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Reads media files in processes of their own (workers), so that a file that crashes its reader, never
/// lets go of it or takes all memory costs that file and nothing else. Each read that runs has a worker
/// to itself; workers are started when one lacks, are kept for further files, and end with the reader.
/// [any-thread], several reads at once.
class STANDALONE_API WorkerReader {
 public:
  struct Setup {
    std::filesystem::path program = FindInstalledLibrary(kMediaProgramName);
    /// The worker's argument.
    std::filesystem::path library = FindInstalledLibrary(kMediaLibraryName);
    /// Until a worker says that it can read: a hundred libraries may come from a slow drive.
    std::chrono::milliseconds startLimit{20'000};
    /// What an answer may take beyond the file's time limit, at which the worker itself ends a read
    /// whose file still answers.
    std::chrono::milliseconds grace{2'000};
  };

  /// Starts the first worker. Throws: std::runtime_error with one sentence that says what to install.
  explicit WorkerReader(Setup setup);
  WorkerReader(const WorkerReader&) = delete;
  WorkerReader& operator=(const WorkerReader&) = delete;

  /// A worker that is late is ended, and the file's outcome is `kTimeLimit`. A worker that ends or
  /// answers nonsense is replaced; if it had read other files, which may have left their damage behind,
  /// the file gets a second read by a new one; otherwise its outcome is `kInaccessible`. Throws:
  /// nothing.
  MediaReading Read(const MediaReadRequest& request);

 private:
  struct Loan;

  MediaReading ReadOrThrow(const MediaReadRequest& request);
  Loan Lend(const MediaReadRequest& request);
  std::unique_ptr<WorkerProcess> TakeIdle();
  std::unique_ptr<WorkerProcess> Start(const MediaReadRequest& request) const;
  void TakeBack(std::unique_ptr<WorkerProcess> worker);

  const Setup setup;
  std::mutex mutex;
  std::vector<std::unique_ptr<WorkerProcess>> idle;
};

/// A WorkerReader as the function that a prober calls. Throws as its constructor does.
STANDALONE_API MediaReader StartMediaReader(WorkerReader::Setup setup = {});

}  // namespace standalone
