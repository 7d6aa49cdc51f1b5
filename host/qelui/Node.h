#pragma once

#include <cstdint>
#include <functional>

#include "host/HostAPI.h"
#include "host/qelcore/CountedObject.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Events.h"
#include "host/qelui/Geometry.h"

namespace qelui::ui {

/// Base of every control: counted, weakly referable, with a place and an enabled state. When the last
/// reference is given back off the main thread, the control is deleted on the main thread.
/// All operations are [main-thread], except counting.
class HOST_API UI_Node : public qelcore::CountedObject {
 public:
  ~UI_Node() override;

  void UI_SetEnabled(bool isEnabled);
  bool UI_IsEnabled() const;

  /// The place in the parent view, in pixels.
  void UI_SetBounds(const Rect& newBounds);
  Rect UI_GetBounds() const;

  /// What is shown when the pointer rests on the control; may hold line breaks; empty: nothing.
  /// @param maximumWidth pixels; a longer text is broken into lines
  void UI_SetToolTip(const qelcore::UTF8String& text, std::uint32_t maximumWidth);
  const qelcore::UTF8String& UI_GetToolTip() const;
  std::uint32_t UI_GetToolTipWidth() const;

  /// Says that what the control shows is another now, so that it is drawn anew soon.
  void UI_Invalidate();
  /// How the host hears of it: `newWatcher` replaces the one before and is called by each
  /// UI_Invalidate; empty: nobody. It is destroyed with the control.
  void UI_SetWatcher(std::function<void()> newWatcher);

 protected:
  UI_Node();
  void DeleteSelf() noexcept override;

 private:
  Rect bounds;
  qelcore::UTF8String toolTip;
  std::uint32_t toolTipWidth = 0;
  std::function<void()> watcher;
  bool isEnabled = true;
};

/// A node that draws itself and receives events.
class HOST_API UI_SubView : public UI_Node {
 public:
  ~UI_SubView() override;

  /// Draws the view; the view's top left corner is at the drawbot's origin. The base draws nothing.
  virtual void UI_Draw(Drawbot& drawbot);

  /// Offers an event to this view. True when it was handled. The base handles none.
  virtual bool UI_DoMouseEvent(const MouseEvent& event);

 protected:
  UI_SubView();
};

}  // namespace qelui::ui
