#include "standalone/desktop/DesktopDialogs.h"

#include <QDir>
#include <utility>

#include "standalone/desktop/ExportDialog.h"
#include "standalone/desktop/OptionsDialog.h"
#include "standalone/window/PopupMenu.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// Shows a dialog and waits; false when it was cancelled, or went with its window.
bool Run(const QPointer<QDialog>& dialog) {
  return dialog->exec() == QDialog::Accepted && dialog;
}

}  // namespace

DesktopDialogs::DesktopDialogs(QWidget& window) : window(&window), exportFolder(QDir::homePath()) {
  SetDialogProvider(this);
}

DesktopDialogs::~DesktopDialogs() {
  if (GetDialogProvider() == this) SetDialogProvider(nullptr);
}

std::uint32_t DesktopDialogs::ChooseFromMenu(const std::vector<MenuItem>& items,
                                             qelui::ui::UI_Node& node, qelui::Point position) {
  return standalone::ChooseFromMenu(items, node, position);
}

std::optional<MZ::SequenceIndex::Options> DesktopDialogs::EditOptions(
    const MZ::SequenceIndex::Options& current) {
  auto* const dialog = new OptionsDialog(current, window);
  const QPointer<QDialog> held(dialog);
  std::optional<MZ::SequenceIndex::Options> options;
  if (Run(held)) options = dialog->GetOptions();
  delete held;
  return options;
}

bool DesktopDialogs::ChooseExport(ExportChoice& choice) {
  auto* const dialog = new ExportDialog(choice, exportFolder, window);
  const QPointer<QDialog> held(dialog);
  fileToOpen.reset();
  const bool isConfirmed = Run(held);
  if (isConfirmed) {
    choice = dialog->GetChoice();
    exportFolder = ToQString(choice.folder.View());
    if (choice.isOpenedAfterwards) fileToOpen = dialog->GetFile();
  }
  delete held;
  return isConfirmed;
}

std::optional<QString> DesktopDialogs::TakeFileToOpen() {
  return std::exchange(fileToOpen, std::nullopt);
}

}  // namespace standalone
