#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <utility>

#include "standalone/model/PlayerNode.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/window/Colors.h"
#include "support/Drafts.h"
#include "support/SteppedHost.h"
#include "support/ThemeChoice.h"

namespace standalone {

using Sequence = qelcore::Ref<BE::ISequence>;

/// Waits for what the system brings about: true once `condition` holds, false if it never does.
template <typename Condition>
bool WaitFor(Condition&& condition) {
  constexpr int kGivenUpAfter = 20'000;
  QElapsedTimer watch;
  watch.start();
  while (!condition()) {
    if (watch.elapsed() > kGivenUpAfter) return false;
    QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
  }
  return true;
}

/// Runs `act` as soon as a nested event loop, of a dialog or menu, comes to it.
inline void WhenNested(std::function<void()> act) {
  QTimer::singleShot(0, qApp, std::move(act));
}

/// The picture of a widget as it stands.
inline QImage Grab(QWidget& widget, int scale = 1) {
  QImage image(widget.size() * scale, QImage::Format_ARGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::magenta);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
  return image;
}

class DesktopFixture : public testing::Test {
 protected:
  static void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  static void Show(QWidget& widget) {
    widget.show();
    widget.activateWindow();
    Settle();
  }
  /// A sequence of the project that has a player.
  Sequence OpenSequence(SequenceDraft draft) {
    Sequence sequence = AddSequence(std::move(draft));
    host->GetProject().ActivateSequence(sequence);
    host.Settle();
    return sequence;
  }
  static std::string ToText(const QString& text) { return text.toStdString(); }

  SteppedHost host;
};

}  // namespace standalone
