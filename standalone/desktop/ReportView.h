#pragma once

#include <QTreeWidget>
#include <vector>

#include "standalone/documents/DocumentSession.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Shows what is to be said of an opened file: trouble with it, trouble with single items, what the
/// index can't show of it, and what was assumed. [main-thread]
class STANDALONE_API ReportView final : public QTreeWidget {
 public:
  explicit ReportView(QWidget* parent = nullptr);

  /// Shows a document's; null: nothing.
  void Show(const OpenDocument* document);
  /// How many lines there are.
  int CountLines() const noexcept { return lineCount; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddGroup(const QString& title, const std::vector<ImportNote>& notes);

  int lineCount = 0;
};

}  // namespace standalone
