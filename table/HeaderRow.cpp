#include "table/HeaderRow.h"

#include <cmath>
#include <memory>
#include <utility>

#include "data/LocalizedText.h"
#include "host/qelcore/Reference.h"
#include "host/qelui/Menu.h"
#include "host/qelui/Theme.h"
#include "table/ColumnCatalogue.h"
#include "table/ColumnLayout.h"

namespace Vantrel {

namespace {

using qelui::ui::IOSMenu;

constexpr float kOutlineWidth = 1.0F;

const qelcore::UTF8String& GetShowAllText() {
  static const qelcore::UTF8String text =
      Localize("$$$/Corvel/Handlers/SeqenceIndex/SelectAll=Show All Columns#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& GetShowDefaultsText() {
  static const qelcore::UTF8String text = Localize(
      "$$$//Corvel/Handlers/SeqenceIndex/SelectDefaults=Show Default Columns#{comment}QELMX-4248997");
  return text;
}

bool OpensColumnMenu(const qelui::ui::MouseEvent& event) {
  return event.GetButton() == qelui::ui::MouseButton::kContextMenu &&
         event.GetAction() == qelui::ui::PointerAction::kPress && event.GetClickCount() == 1;
}

std::shared_ptr<IOSMenu> MakeColumnMenu(const ColumnLayoutList& columns) {
  auto menu = qelui::utility::CreateOSMenu();
  menu->AppendItem(GetShowAllText(), kShowAllColumnsMenuID);
  menu->AppendItem(GetShowDefaultsText(), kShowDefaultColumnsMenuID);
  menu->AppendSeparator();
  for (const ColumnLayoutEntry& column : columns) {
    menu->AppendItem(column.name, column.id);
    menu->SetItemChecked(column.id, column.shown);
  }
  return menu;
}

// A column's item is toggled from what the menu showed, even if another panel changed the store while
// the menu was open.
void ApplyChoice(ColumnLayoutList& columns, std::uint32_t command, const IOSMenu& menu) {
  for (ColumnLayoutEntry& column : columns) {
    if (command == kShowAllColumnsMenuID) {
      column.shown = true;
    } else if (command == kShowDefaultColumnsMenuID) {
      column.shown = column.defaultShown;
    } else if (command == column.id) {
      column.shown = !menu.IsItemChecked(command);
    }
  }
}

}  // namespace

SequenceIndexTreeMultiColumnTreeHeaderRow::~SequenceIndexTreeMultiColumnTreeHeaderRow() = default;

void SequenceIndexTreeMultiColumnTreeHeaderRow::UI_Draw(qelui::Drawbot& drawbot) {
  UI_MultiColumnTreeHeaderRow::UI_Draw(drawbot);
  const qelui::Rect bounds = UI_GetBounds();
  // Whole pixels, or the line would be smeared over two.
  const qelui::Rect outline{0, 0, std::trunc(bounds.width), std::trunc(bounds.height)};
  const auto color = qelui::skins::utilities::GetDividerColor(*qelui::ui::GetDefaultThemeProvider());
  qelui::StrokeRect(drawbot, outline, color, kOutlineWidth);
}

bool SequenceIndexTreeMultiColumnTreeHeaderRow::UI_DoMouseEvent(const qelui::ui::MouseEvent& event) {
  if (!OpensColumnMenu(event)) return UI_MultiColumnTreeHeaderRow::UI_DoMouseEvent(event);
  DoColumnMenu(event.GetPosition());
  return true;
}

qelui::utility::StyleResource SequenceIndexTreeMultiColumnTreeHeaderRow::GetStyleResource() const {
  return qelui::utility::GetResourceManager().GetResource(qelui::utility::kHeaderRowStyle,
                                                          qelui::utility::kOutlinedHeaderRow);
}

void SequenceIndexTreeMultiColumnTreeHeaderRow::DoColumnMenu(qelui::Point position) {
  // The menu runs queued functions, one of which may close the panel.
  const qelcore::Ref<SequenceIndexTreeMultiColumnTreeHeaderRow> self(this);
  ColumnLayoutList columns = GetColumnLayoutStore();
  SortByName(columns);
  const auto menu = MakeColumnMenu(columns);
  const std::uint32_t command = qelui::ui::UI_DoContextMenu(menu, *this, position);
  if (command == qelui::ui::kMenuDismissed) return;
  ApplyChoice(columns, command, *menu);
  GetColumnLayoutStore() = std::move(columns);
  ApplyColumnLayout(self);
}

}  // namespace Vantrel
