#pragma once

#include <atomic>
#include <optional>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

#include "standalone/probing/FillClip.h"
#include "standalone/probing/MediaProber.h"
#include "standalone/probing/ParallelLoop.h"

namespace standalone {

/// One probe of one document, step by step.
class MediaProbe {
 public:
  MediaProbe(std::vector<std::string> paths, const MediaProber::Setup& setup, MediaCache& cache,
             const ProbeProgress& progress);
  MediaProbe(const MediaProbe&) = delete;
  MediaProbe& operator=(const MediaProbe&) = delete;

  /// Looks at all files, and takes what was read before from those that look the same.
  void LookAtFiles();
  bool HasFilesToRead() const noexcept { return !unread.empty(); }
  /// Whether any file is there, read before or not.
  bool HasFoundFiles() const noexcept;
  void ReadFiles(const MediaReader& reader);
  /// Looks again: what changed meanwhile is growing, and is not remembered.
  void LookForGrowth();
  void Fill(DocumentDraft& document) const;

  bool IsCancelled() const noexcept { return isCancelled; }
  std::size_t CountReads() const noexcept { return readCount; }

 private:
  struct Entry {
    std::string path;
    std::optional<FileLook> look;
    MediaFile file;
    bool isRead = false;
  };

  void ReadFile(const MediaReader& reader, Entry& entry);
  void LookForGrowth(Entry& entry);
  /// Calls `body` for each of `count` numbers, in parallel; ends early when the probe is cancelled.
  void ForEach(std::size_t count, const std::function<void(std::size_t)>& body,
               const std::function<void(std::size_t)>& report);
  void RunLoop(ParallelLoop::Setup loop);
  bool AskWhetherCancelled();
  static bool AnswerReader(void* probe);

  const MediaProber::Setup& setup;
  MediaCache& cache;
  const ProbeProgress& progress;
  const std::thread::id callingThread = std::this_thread::get_id();
  std::vector<Entry> entries;
  std::vector<std::size_t> unread;
  std::atomic<bool> isCancelled{false};
  std::atomic<std::size_t> readCount{0};
};

}  // namespace standalone
