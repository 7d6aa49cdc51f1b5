#pragma once

#include <QLabel>
#include <QString>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The sentence at the bottom of a window that says what went wrong last. It stays until another takes
/// its place or its matter is settled, and is cut where the window is too narrow for it; its tooltip
/// has all of it. [main-thread]
class STANDALONE_API StatusLine final : public QLabel {
 public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// `matter` is what the sentence is about, for Settle; may be empty.
  void Say(const QString& sentence, const QString& matter = {});
  /// Takes the sentence back if it is about this.
  void Settle(const QString& matter);
  /// All of the sentence; empty when nothing is said.
  const QString& GetSentence() const noexcept { return sentence; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowSentence();

  QString sentence;
  QString sentenceMatter;
};

}  // namespace standalone
