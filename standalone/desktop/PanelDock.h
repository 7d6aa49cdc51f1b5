#pragma once

#include <QDockWidget>
#include <functional>
#include <memory>

#include "host/UIF/TabView.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/TabViewWidget.h"

class QLabel;
class QMenu;

namespace standalone {

/// "Export Sequence Index…", by its number in the host.
inline constexpr UIF::CommandID kExportCommand = 36003;

/// A command of a panel's wing menu.
struct PanelCommand {
  UIF::CommandID id;
  const char* title;
};

/// A dock that shows a panel's tab view under its title, with the panel's wing menu. Lets go of the
/// panel when the user closes it. [main-thread]
class STANDALONE_API PanelDock final : public QDockWidget {
 public:
  struct Actions {
    /// Carries out a command of the wing menu.
    std::function<void(UIF::CommandID)> obey;
    /// The user closed the dock.
    std::function<void()> closed;
  };

  PanelDock(const std::shared_ptr<UIF::TabView>& view, Actions actions, QWidget* parent = nullptr);
  ~PanelDock() override;

  TabViewWidget& GetPanel() const noexcept { return *panel; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeTitleBar();
  void FillWingMenu(QMenu& menu);
  void FollowName();

  const std::weak_ptr<UIF::TabView> weakView;
  const Actions actions;
  TabViewWidget* panel;
  QLabel* title = nullptr;
};

}  // namespace standalone
