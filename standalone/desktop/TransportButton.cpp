#include "standalone/desktop/TransportButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace standalone {

namespace {

using Symbol = TransportButton::Symbol;

constexpr int kWidth = 32;
constexpr int kHeight = 26;
constexpr double kSymbolSize = 12;

/// In a square of one by one; `tip` is the height's middle.
void AddTriangle(QPainterPath& path, double base, double tip) {
  path.moveTo(base, 0);
  path.lineTo(tip, 0.5);
  path.lineTo(base, 1);
  path.closeSubpath();
}

QPainterPath MakePath(Symbol symbol) {
  QPainterPath path;
  switch (symbol) {
    case Symbol::kToStart:
      path.addRect(0.02, 0, 0.16, 1);
      AddTriangle(path, 0.95, 0.22);
      break;
    case Symbol::kStepBack:
      path.addRect(0.74, 0, 0.16, 1);
      AddTriangle(path, 0.62, 0.02);
      break;
    case Symbol::kPlay:
      AddTriangle(path, 0.1, 0.98);
      break;
    case Symbol::kStop:
      path.addRect(0.08, 0.08, 0.84, 0.84);
      break;
    case Symbol::kStepForward:
      path.addRect(0.1, 0, 0.16, 1);
      AddTriangle(path, 0.38, 0.98);
      break;
    case Symbol::kToEnd:
      AddTriangle(path, 0.05, 0.78);
      path.addRect(0.82, 0, 0.16, 1);
      break;
  }
  return path;
}

}  // namespace

TransportButton::TransportButton(Symbol symbol, const QString& name, QWidget* parent)
    : QToolButton(parent), symbol(symbol) {
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  Show(symbol, name);
}

void TransportButton::Show(Symbol newSymbol, const QString& name) {
  symbol = newSymbol;
  setToolTip(name);
  setAccessibleName(name);
  update();
}

QSize TransportButton::sizeHint() const {
  return {kWidth, kHeight};
}

void TransportButton::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate((width() - kSymbolSize) / 2.0, (height() - kSymbolSize) / 2.0);
  painter.scale(kSymbolSize, kSymbolSize);
  painter.fillPath(MakePath(symbol), palette().color(QPalette::ButtonText));
}

// Arrows would move the focus from button to button.
void TransportButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
    QToolButton::keyPressEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace standalone
