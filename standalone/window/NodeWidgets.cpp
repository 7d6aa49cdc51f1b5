#include "standalone/window/NodeWidgets.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace standalone {

namespace {

using Shown = std::pair<const qelui::ui::UI_Node*, QWidget*>;

/// A window has a few dozen controls.
std::vector<Shown>& GetShown() {
  static std::vector<Shown> shown;
  return shown;
}

}  // namespace

NodeWidget::NodeWidget(const qelui::ui::UI_Node& node, QWidget& widget) : node(&node), widget(&widget) {
  GetShown().emplace_back(&node, &widget);
}

NodeWidget::~NodeWidget() {
  std::erase(GetShown(), Shown(node, widget));
}

QWidget* FindNodeWidget(const qelui::ui::UI_Node& node) {
  const auto& shown = GetShown();
  const auto found = std::ranges::find(shown, &node, &Shown::first);
  return found == shown.end() ? nullptr : found->second;
}

}  // namespace standalone
