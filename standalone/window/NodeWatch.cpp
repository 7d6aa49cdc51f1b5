#include "standalone/window/NodeWatch.h"

#include <utility>

namespace standalone {

/// Owned by the control's watcher, which is destroyed with the control.
struct NodeWatch::Link {
  std::function<void()> changed;
  std::function<void()> gone;

  ~Link() {
    if (gone) gone();
  }
};

NodeWatch::NodeWatch(const qelcore::Ref<qelui::ui::UI_Node>& node, std::function<void()> changed,
                     std::function<void()> gone)
    : node(node) {
  const auto made = std::make_shared<Link>();
  made->changed = std::move(changed);
  made->gone = std::move(gone);
  link = made;
  node->UI_SetWatcher([made] {
    if (made->changed) made->changed();
  });
}

NodeWatch& NodeWatch::operator=(NodeWatch&& other) noexcept {
  if (this == &other) return *this;
  Stop();
  node = std::exchange(other.node, {});
  link = std::exchange(other.link, {});
  return *this;
}

void NodeWatch::Stop() noexcept {
  const auto stopped = link.lock();
  link.reset();
  if (!stopped) return;
  stopped->changed = nullptr;
  stopped->gone = nullptr;
  if (const auto watched = node.Lock()) watched->UI_SetWatcher({});
}

}  // namespace standalone
