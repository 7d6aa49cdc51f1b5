#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>

#include "standalone/documents/DocumentLoading.h"
#include "standalone/import/TimelineReader.h"

namespace standalone {

/// Why a file can't be shown; no sentence: it can.
struct LoadingTrouble {
  /// 0 where no line of the file is at fault.
  std::size_t line = 0;
  std::string sentence;
};

inline LoadingTrouble DescribeFailure(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const ImportError& error) {
    return {error.GetLine(), error.what()};
  } catch (const std::exception& error) {
    return {0, error.what()};
  } catch (...) {
    return {0, "It can't be read."};
  }
}

/// A file that is being read. Shared by the session and the step under way; the file is written once.
struct LoadingJob {
  std::filesystem::path file;
  std::atomic<bool> isCancelled = false;
  std::atomic<double> fraction = 0;
  /// A report of progress waits for the main thread.
  std::atomic<bool> isReporting = false;
  /// What was read anew of an open file, until its media files have been read too. [main-thread]
  std::optional<LoadedDocument> heldBack;
};

/// What came of a step: a result, trouble, or neither, if it was cancelled or had nothing to add.
template <typename Result>
struct LoadingOutcome {
  std::optional<Result> result;
  LoadingTrouble trouble;
  /// Said once, when media files can't be read here.
  std::string note;
};

}  // namespace standalone
