#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/documents/DocumentLoading.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// An opened timeline file.
struct OpenDocument {
  std::filesystem::path file;
  /// Its timelines, in the order of the file.
  std::vector<qelcore::Ref<BE::ISequence>> sequences;
  /// Trouble with single items, what the index can't show, and what was assumed.
  std::vector<ImportNote> notes;
  std::vector<ImportNote> report;
  /// Why what is shown is not what the file, or its media files, hold now, one sentence; empty when it
  /// is.
  std::string trouble;
  /// The line of the file that is at fault; 0 where none is.
  std::size_t troubleLine = 0;
};

/// What takes time.
enum class LoadingStep { kTimeline, kMedia };

/// Hears what becomes of the files of a session, and may use the session, or end it, while it is told.
/// [main-thread]
class STANDALONE_API DocumentObserver {
 public:
  virtual ~DocumentObserver();
  /// `fraction` is from 0 to 1.
  virtual void LoadingProgressed(const std::filesystem::path& file, LoadingStep step,
                                 double fraction) = 0;
  /// A step has come to its end, whatever came of it.
  virtual void LoadingEnded(const std::filesystem::path& file) = 0;
  /// A file was opened, or what is known of an open one changed.
  virtual void DocumentChanged(const OpenDocument& document) = 0;
  /// A file that is not open can't be opened; `line` is 0 where no line of it is at fault.
  virtual void DocumentFailed(const std::filesystem::path& file, std::size_t line,
                              const std::string& sentence) = 0;
  /// Media files can't be read here: said once.
  virtual void MediaFilesCantBeRead(const std::string& sentence) = 0;
  /// A file was closed.
  virtual void DocumentClosed(const std::filesystem::path& file) = 0;

 protected:
  DocumentObserver();
};

/// The timeline files that the desktop program has open. Files are read on the pool, one after the
/// other, and shown as soon as they are read; what their media files tell follows. Nothing here waits.
///
/// Reading a file again replaces the content of its sequences, matched by name and then by order, so
/// that panels keep their place; it is shown once, with what its media files tell. A file that has
/// become unreadable leaves what is shown as it is. [main-thread]
class STANDALONE_API DocumentSession {
 public:
  /// `project` and `observer` outlive the session.
  DocumentSession(ProjectModel& project, LoadingOptions options, DocumentObserver& observer);
  /// Cancels what is under way.
  ~DocumentSession();
  DocumentSession(const DocumentSession&) = delete;
  DocumentSession& operator=(const DocumentSession&) = delete;

  /// Opens a file and activates its first timeline. One that is open is read again, and its first
  /// timeline is activated unless one of its timelines is active.
  void Open(const std::filesystem::path& file);
  /// Reads an open file again; nothing happens if it is not open.
  void Reload(const std::filesystem::path& file);
  /// Closes a file's sequences and takes them out of the project.
  void Close(const std::filesystem::path& file);
  /// Writes the times of all files in another format (none: as each sequence says), which reads them
  /// again, unless that is their format already.
  void SetTimeFormat(std::optional<TimeFormat> format);
  /// Ends the step under way, and forgets the files that wait. What is shown stays.
  void Cancel();

  /// Whether a file is being read.
  bool IsBusy() const;
  const std::vector<OpenDocument>& GetDocuments() const;
  /// The document of a sequence, or null.
  const OpenDocument* FindDocument(const qelcore::Ref<BE::ISequence>& sequence) const;

 private:
  class State;
  std::shared_ptr<State> state;
};

}  // namespace standalone
