#pragma once

#include <cstdint>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Node.h"

namespace qelui::ui {

/// The answer of a menu that was dismissed.
inline constexpr std::uint32_t kMenuDismissed = 0;

/// A native pop-up menu. All operations are [main-thread]. Choosing an item never changes its check
/// mark; only SetItemChecked does.
class HOST_API IOSMenu {
 public:
  virtual ~IOSMenu();
  /// Appends an item; `commandID` is not 0 and not used twice.
  virtual void AppendItem(const qelcore::UTF8String& text, std::uint32_t commandID) = 0;
  virtual void AppendSeparator() = 0;
  /// An unknown command is ignored.
  virtual void SetItemChecked(std::uint32_t commandID, bool isChecked) = 0;
  /// False for an unknown command.
  virtual bool IsItemChecked(std::uint32_t commandID) const = 0;

 protected:
  IOSMenu();
};

/// Shows `menu`, made by CreateOSMenu, at `position` (pixels, relative to `node`), runs a nested event
/// loop, and returns the chosen command, or kMenuDismissed. Functions queued to the main thread run
/// meanwhile, so callers hold what they still need. [main-thread]
HOST_API std::uint32_t UI_DoContextMenu(const std::shared_ptr<IOSMenu>& menu, UI_Node& node,
                                        Point position);

}  // namespace qelui::ui

namespace qelui::utility {

/// An empty pop-up menu. [main-thread]
HOST_API std::shared_ptr<ui::IOSMenu> CreateOSMenu();

}  // namespace qelui::utility
