#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "host/HostAPI.h"
#include "host/UIF/Application.h"
#include "host/UIF/Commands.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/Shareable.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Geometry.h"
#include "host/qelui/Node.h"

namespace UIF {

/// A place in the workspace that shows tab views: what the host hands to whoever creates one.
class HOST_API WorkspaceFrame {
 public:
  explicit WorkspaceFrame(const qelui::Rect& bounds);
  ~WorkspaceFrame();
  WorkspaceFrame(const WorkspaceFrame&) = delete;
  WorkspaceFrame& operator=(const WorkspaceFrame&) = delete;

  /// The room for a tab's contents, in pixels. [main-thread]
  const qelui::Rect& GetBounds() const noexcept { return bounds; }

 private:
  qelui::Rect bounds;
};

/// A view of the application framework: a commander with a place. [main-thread]
class HOST_API ViewBase : public Commander {
 public:
  ~ViewBase() override;
  /// The view's rectangle in its frame, in pixels.
  const qelui::Rect& GetBounds() const noexcept { return bounds; }

 protected:
  ViewBase();
  void SetBounds(const qelui::Rect& newBounds);

 private:
  qelui::Rect bounds;
};

/// A dockable tab. Life: construct with MakeShareable, Create in a frame (which asks for the
/// contents), show, release. All operations are [main-thread].
class HOST_API TabView : public ViewBase, public qelcore::memory::Shareable {
 public:
  ~TabView() override;

  /// Realises the tab in a frame: takes the frame's room, sets the title, then calls
  /// CreateContentsSelf. `isActivated` brings the tab to the front. Throws: what CreateContentsSelf
  /// throws.
  void Create(std::string_view handlerID, const qelcore::UTF8String& title,
              const std::shared_ptr<WorkspaceFrame>& frame, bool isActivated);

  /// Gives the tab another room: takes the rectangle, then calls LayoutSelf with what it took. Throws:
  /// what LayoutSelf throws.
  void Resize(const qelui::Rect& newBounds);

  /// Draws what lies behind the controls. The drawbot's coordinates are those of GetBounds and of the
  /// controls' places. The base draws nothing.
  virtual void DrawBackground(qelui::Drawbot& drawbot);

  /// The identifier of the tab's wing (flyout) menu, as ShortcutManager knows it; the base: empty,
  /// none.
  virtual std::string_view GetWingMenuID() const;

  /// Replaces the tab's title.
  void SetName(const qelcore::UTF8String& title);
  const qelcore::UTF8String& GetName() const noexcept;
  /// How the host hears of another title: `watcher` replaces the one before and is called by each
  /// SetName; empty: nobody. It is destroyed with the tab.
  void SetNameWatcher(std::function<void()> watcher);

  /// Adds a control to the view, drawn and reached by keyboard in the order added. The tab keeps it
  /// until the tab is destroyed.
  void AddChildView(const qelcore::Ref<qelui::ui::UI_SubView>& control);
  const std::vector<qelcore::Ref<qelui::ui::UI_SubView>>& GetChildViews() const noexcept;

  /// The view hosts controls of the UI toolkit.
  void SetHasQELChildViews(bool hasChildViews);
  /// The view is drawn off screen first.
  void EnableDoubleBuffering(bool isEnabled);

 protected:
  explicit TabView(Application& application);

  /// Places the view's controls in the view's rectangle; called by Resize. The base does nothing.
  virtual void LayoutSelf(const qelui::Rect& view);
  /// Builds the view's controls; called once, by Create. The base does nothing.
  virtual void CreateContentsSelf();

 private:
  class State;
  std::unique_ptr<State> state;
};

/// Makes tab views for the workspace. [main-thread]
class HOST_API TabViewCreator {
 public:
  virtual ~TabViewCreator();

  /// What the workspace calls; the base calls CreateTabView.
  virtual std::shared_ptr<TabView> CreateTabViewSelf(const std::shared_ptr<WorkspaceFrame>& frame);
  /// Creates and realises a tab view in `frame`.
  virtual std::shared_ptr<TabView> CreateTabView(const std::shared_ptr<WorkspaceFrame>& frame) = 0;
  /// Whether a closed tab is only hidden; the base: false.
  virtual bool ShouldHideWhenClosed() const;
  /// Whether a stored workspace may bring the tab back; the base: false.
  virtual bool ShouldRestoreWithWorkspace() const;
  /// Whether the tab's state is stored when it is destroyed; the base: true.
  virtual bool ShouldSaveStateWhenDestroyed() const;

 protected:
  TabViewCreator();
};

}  // namespace UIF
