#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/app/ScriptedAnswers.h"
#include "standalone/assembly/StandaloneHost.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// The host with the Sequence Index module loaded and its panel open, driven by a command: each wish is
/// carried out as a user would, with the panel's own controls. [main-thread]
///
/// Every operation raises a failure that the panel or a build of it met meanwhile as
/// std::runtime_error: a failed build must not pass as an empty table.
class IndexSession {
 public:
  /// `isProbing`: media files will be read, by as many threads as there are processors. Without it the
  /// pool has none: a command waits for each build of the index anyway, and does it itself. Throws:
  /// std::runtime_error when the module can't be loaded or its panel can't be opened.
  explicit IndexSession(bool isProbing = true);
  /// Closes the panel and unloads the module.
  ~IndexSession() = default;
  IndexSession(const IndexSession&) = delete;
  IndexSession& operator=(const IndexSession&) = delete;

  /// Confirms the options dialog behind the filter button with these.
  void ChooseRows(const MZ::SequenceIndex::Options& options);
  /// Types a text into the search field, and commits it.
  void Search(const std::string& text);
  /// Opens the header's context menu and chooses a command of it (kMenuDismissed: none). Returns the
  /// items that the menu had.
  std::vector<MenuItem> ChooseFromHeaderMenu(std::uint32_t command);
  /// Adds a document to the project, activates the timeline at that position (from 0), and waits for
  /// its rows.
  void ShowDocument(DocumentDraft document, std::size_t timeline = 0);
  /// Confirms the export dialog with `file`, an absolute path. Throws: also file_exception.
  void Export(const std::filesystem::path& file);

  /// The panel's table.
  qelui::controls::UI_MultiColumnTree& GetTree() const;
  StandaloneHost& GetHost() noexcept { return host; }

 private:
  /// Lets go of the host's panel at its end, so that the panel goes before its module in every case.
  class PanelCloser {
   public:
    explicit PanelCloser(StandaloneHost& host) noexcept : host(host) {}
    ~PanelCloser() { host.ClosePanel(); }
    PanelCloser(const PanelCloser&) = delete;
    PanelCloser& operator=(const PanelCloser&) = delete;

   private:
    StandaloneHost& host;
  };

  UIF::TabView& GetPanel() const noexcept { return *host.GetPanel(); }
  /// Waits until nothing is left to do.
  void Settle();

  StandaloneHost host;
  ScriptedAnswers answers;
  LoadedModule module;
  const PanelCloser panelCloser;
};

}  // namespace standalone
