#include "host/qelui/Menu.h"

#include <algorithm>
#include <vector>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/DialogProvider.h"
#include "standalone/toolkit/ModalQuestion.h"

namespace qelui::ui {

namespace {

using standalone::MenuItem;

constexpr std::uint32_t kSeparatorID = 0;

class Menu final : public IOSMenu {
 public:
  void AppendItem(const qelcore::UTF8String& text, std::uint32_t commandID) override {
    standalone::AssertMainThread("IOSMenu::AppendItem");
    items.push_back({text, commandID, false});
  }

  void AppendSeparator() override {
    standalone::AssertMainThread("IOSMenu::AppendSeparator");
    items.push_back({{}, kSeparatorID, false});
  }

  void SetItemChecked(std::uint32_t commandID, bool isChecked) override {
    standalone::AssertMainThread("IOSMenu::SetItemChecked");
    const auto item = std::ranges::find(items, commandID, &MenuItem::commandID);
    if (item != items.end()) item->isChecked = isChecked;
  }

  bool IsItemChecked(std::uint32_t commandID) const override {
    standalone::AssertMainThread("IOSMenu::IsItemChecked");
    const auto item = std::ranges::find(items, commandID, &MenuItem::commandID);
    return item != items.end() && item->isChecked;
  }

  const std::vector<MenuItem>& GetItems() const { return items; }

 private:
  std::vector<MenuItem> items;
};

}  // namespace

IOSMenu::IOSMenu() = default;
IOSMenu::~IOSMenu() = default;

std::uint32_t UI_DoContextMenu(const std::shared_ptr<IOSMenu>& menu, UI_Node& node, Point position) {
  standalone::AssertMainThread("UI_DoContextMenu");
  // A copy, since functions that run while the menu is open may change the menu.
  const std::vector<MenuItem> items = dynamic_cast<const Menu&>(*menu).GetItems();
  const std::uint32_t chosen =
      standalone::AskUser(kMenuDismissed, [&](standalone::DialogProvider& provider) {
        return provider.ChooseFromMenu(items, node, position);
      });
  const bool isKnown = std::ranges::find(items, chosen, &MenuItem::commandID) != items.end();
  return isKnown ? chosen : kMenuDismissed;
}

}  // namespace qelui::ui

namespace qelui::utility {

std::shared_ptr<ui::IOSMenu> CreateOSMenu() {
  standalone::AssertMainThread("CreateOSMenu");
  return std::make_shared<ui::Menu>();
}

}  // namespace qelui::utility
