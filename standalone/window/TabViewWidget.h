#pragma once

#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

#include "host/UIF/TabView.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

/// Shows a panel's tab view: what it draws behind its controls, and a widget for each of them. Tells
/// the view of its room, and when the user begins and ends to work in it: it is on duty from when the
/// focus comes into it until another part of the program has it. Holds the view weakly. [main-thread]
class STANDALONE_API TabViewWidget final : public QWidget {
 public:
  explicit TabViewWidget(const std::shared_ptr<UIF::TabView>& view, QWidget* parent = nullptr);
  ~TabViewWidget() override;

  std::shared_ptr<UIF::TabView> GetView() const noexcept { return weakView.lock(); }
  /// The widget of a control of the view; null when it has none.
  QWidget* FindWidget(const qelui::ui::UI_Node& control) const;

  QSize minimumSizeHint() const override { return {kLeastWidth, kLeastHeight}; }

 protected:
  /// Watches the widgets in it for presses.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// All of a toolbar, and a few rows.
  static constexpr int kLeastWidth = 880;
  static constexpr int kLeastHeight = 160;

  void MakeWidgets(const UIF::TabView& view);
  void PlaceWidgets();
  void FocusMoved(const QWidget* now);
  void SetOnDuty(bool onDuty);

  const std::weak_ptr<UIF::TabView> weakView;
  std::vector<std::pair<qelcore::WeakRef<qelui::ui::UI_SubView>, QWidget*>> widgets;
  TextFonts fonts;
  bool isOnDuty = false;
};

}  // namespace standalone
