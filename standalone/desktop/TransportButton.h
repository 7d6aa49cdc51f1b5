#pragma once

#include <QToolButton>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A button of a transport, with the symbol that such buttons carry everywhere, in the colours of the
/// window. Only the keys that press it stay with it. [main-thread]
class STANDALONE_API TransportButton final : public QToolButton {
 public:
  enum class Symbol { kToStart, kStepBack, kPlay, kStop, kStepForward, kToEnd };

  TransportButton(Symbol symbol, const QString& name, QWidget* parent = nullptr);

  /// Another symbol, and what the button does, in words.
  void Show(Symbol newSymbol, const QString& name);
  Symbol GetSymbol() const noexcept { return symbol; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Symbol symbol;
};

}  // namespace standalone
