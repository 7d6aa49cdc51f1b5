#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <optional>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/DialogProvider.h"

namespace standalone {

/// Puts what the panels ask to the user, in dialogs over a window. Answers for as long as it lives. A
/// dialog whose window is closed meanwhile counts as cancelled. [main-thread]
class STANDALONE_API DesktopDialogs final : public DialogProvider {
 public:
  explicit DesktopDialogs(QWidget& window);
  ~DesktopDialogs() override;
  DesktopDialogs(const DesktopDialogs&) = delete;
  DesktopDialogs& operator=(const DesktopDialogs&) = delete;

  std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node& node,
                               qelui::Point position) override;
  std::optional<MZ::SequenceIndex::Options> EditOptions(
      const MZ::SequenceIndex::Options& current) override;
  bool ChooseExport(ExportChoice& choice) override;

  /// Where exports go unless the user says otherwise: to where the last one went, at first as set.
  void SetExportFolder(const QString& folder) { exportFolder = folder; }
  const QString& GetExportFolder() const noexcept { return exportFolder; }

  /// The file of the export that was confirmed last, if it is to be opened; asked once.
  std::optional<QString> TakeFileToOpen();

 private:
  const QPointer<QWidget> window;
  QString exportFolder;
  std::optional<QString> fileToOpen;
};

}  // namespace standalone
