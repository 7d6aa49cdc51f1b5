#pragma once

#include <QWidget>
#include <functional>

#include "standalone/documents/DocumentSession.h"
#include "standalone/runtime/StandaloneAPI.h"

class QLabel;
class QProgressBar;

namespace standalone {

/// Shows how far a file has been read, with a button that ends it; hidden while nothing is read.
/// [main-thread]
class STANDALONE_API LoadingBar final : public QWidget {
 public:
  explicit LoadingBar(std::function<void()> cancel, QWidget* parent = nullptr);

  /// `fraction` is from 0 to 1.
  void Show(const std::filesystem::path& file, LoadingStep step, double fraction);
  void Clear();

 private:
  QLabel* what;
  QProgressBar* bar;
};

}  // namespace standalone
