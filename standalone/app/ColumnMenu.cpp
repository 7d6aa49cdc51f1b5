#include "standalone/app/ColumnMenu.h"

#include <algorithm>
#include <stdexcept>

#include "host/qelui/Menu.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/app/PanelCall.h"

namespace standalone {

namespace {

constexpr std::uint32_t kShowAllColumnsCommand = 100;
constexpr std::uint32_t kShowDefaultColumnsCommand = 101;

/// The columns' items of the menu, which follow its separator.
std::vector<MenuItem> ReadColumnItems(IndexSession& session) {
  std::vector<MenuItem> items = session.ChooseFromHeaderMenu(qelui::ui::kMenuDismissed);
  const auto separator = std::ranges::find(items, 0U, &MenuItem::commandID);
  if (separator != items.end()) items.erase(items.begin(), separator + 1);
  return items;
}

std::vector<AvailableColumn> ListColumns(const std::vector<MenuItem>& items) {
  std::vector<AvailableColumn> columns;
  columns.reserve(items.size());
  for (const MenuItem& item : items) columns.push_back({std::string(item.text.View()), item.commandID});
  return columns;
}

/// Starts from what is nearer, all columns or the default ones, and changes what differs.
void ShowExactly(IndexSession& session, const std::vector<std::uint32_t>& wanted,
                 std::size_t columnCount) {
  const bool isMost = wanted.size() > columnCount / 2;
  session.ChooseFromHeaderMenu(isMost ? kShowAllColumnsCommand : kShowDefaultColumnsCommand);
  for (const MenuItem& item : ReadColumnItems(session)) {
    const bool isWanted = std::ranges::find(wanted, item.commandID) != wanted.end();
    if (isWanted != item.isChecked) session.ChooseFromHeaderMenu(item.commandID);
  }
}

/// Drags the columns into the wanted order, behind the tree's own first column.
void PutInOrder(IndexSession& session, const std::vector<std::uint32_t>& wanted) {
  const auto headerRow = session.GetTree().GetHeaderRow();
  auto& header = qelcore::Required(headerRow);
  std::size_t place = 1;
  for (const std::uint32_t id : wanted) {
    const auto from = static_cast<std::size_t>(header.GetIndexOfColumn(id));
    if (!header.MoveColumnByUser(from, place)) {
      throw std::runtime_error("The panel does not let its columns be put into that order.");
    }
    ++place;
  }
}

}  // namespace

void ShowColumns(IndexSession& session, const ColumnChoice& choice) {
  switch (choice.kind) {
    case ColumnChoice::Kind::kAsShown:
      return;
    case ColumnChoice::Kind::kDefault:
      session.ChooseFromHeaderMenu(kShowDefaultColumnsCommand);
      return;
    case ColumnChoice::Kind::kAll:
      session.ChooseFromHeaderMenu(kShowAllColumnsCommand);
      return;
    case ColumnChoice::Kind::kListed:
      break;
  }
  const auto columns = ListColumns(ReadColumnItems(session));
  const auto wanted = FindColumns(choice.names, columns);
  ShowExactly(session, wanted, columns.size());
  PutInOrder(session, wanted);
}

}  // namespace standalone
