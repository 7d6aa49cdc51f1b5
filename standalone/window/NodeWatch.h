#pragma once

#include <functional>
#include <memory>

#include "host/qelcore/CountedObject.h"
#include "host/qelcore/Reference.h"
#include "host/qelui/Node.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Tells a widget of the control that it shows, for its lifetime; holds the control weakly. One at a
/// time for each control. [main-thread]
class STANDALONE_API NodeWatch {
 public:
  NodeWatch() = default;
  /// @param changed what is shown is another now
  /// @param gone the control was destroyed; may be called while it is being so
  NodeWatch(const qelcore::Ref<qelui::ui::UI_Node>& node, std::function<void()> changed,
            std::function<void()> gone);
  ~NodeWatch() { Stop(); }
  NodeWatch(const NodeWatch&) = delete;
  NodeWatch& operator=(const NodeWatch&) = delete;
  NodeWatch& operator=(NodeWatch&& other) noexcept;

 private:
  struct Link;
  void Stop() noexcept;

  qelcore::WeakRef<qelui::ui::UI_Node> node;
  std::weak_ptr<Link> link;
};

}  // namespace standalone
