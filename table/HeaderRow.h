#pragma once

#include <cstdint>

#include "host/qelui/Drawbot.h"
#include "host/qelui/Events.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "host/qelui/Resources.h"

namespace Vantrel {

/// Commands of the header's context menu; a column's item has the column's identifier.
inline constexpr std::uint32_t kShowAllColumnsMenuID = 100;
inline constexpr std::uint32_t kShowDefaultColumnsMenuID = 101;

/// The table's header: outlined, and its context menu chooses which columns are shown. [main-thread]
class SequenceIndexTreeMultiColumnTreeHeaderRow final
    : public qelui::controls::UI_MultiColumnTreeHeaderRow {
 public:
  using UI_MultiColumnTreeHeaderRow::UI_MultiColumnTreeHeaderRow;
  ~SequenceIndexTreeMultiColumnTreeHeaderRow() override;

  /// What the base draws, and a line along the edges.
  void UI_Draw(qelui::Drawbot& drawbot) override;

  /// A single press of the context-menu button opens the menu and is handled, also when the menu is
  /// dismissed; every other event goes to the base. A choice lays the columns out anew.
  bool UI_DoMouseEvent(const qelui::ui::MouseEvent& event) override;

  /// The outlined kind.
  qelui::utility::StyleResource GetStyleResource() const override;

 private:
  void DoColumnMenu(qelui::Point position);
};

}  // namespace Vantrel
