#pragma once

#include <QDialog>
#include <QString>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/DialogProvider.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace standalone {

/// Asks where to write an index to. It can be confirmed only with a folder that exists and a name that
/// makes a file of it; what is wrong stands below the fields. A file that exists is replaced only after
/// a question. [main-thread]
class STANDALONE_API ExportDialog final : public QDialog {
 public:
  /// `choice` as the panel gives it: an empty folder becomes `folder`, an empty extension ".csv".
  ExportDialog(const ExportChoice& choice, const QString& folder, QWidget* parent = nullptr);

  /// What is chosen now.
  ExportChoice GetChoice() const;
  /// The whole name of the file.
  QString GetFile() const;

  void accept() override;

 private:
  void Browse();
  /// False also when the dialog has gone meanwhile.
  bool AskToReplace();
  /// Why what is chosen names no file, one sentence; empty when it does.
  QString FindTrouble() const;
  void ShowTrouble();

  QLineEdit* folderField;
  QLineEdit* nameField;
  QComboBox* extensionField;
  QCheckBox* opensAfterwards;
  QLabel* trouble;
  QDialogButtonBox* buttons;
};

}  // namespace standalone
