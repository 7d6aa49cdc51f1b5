#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "host/qelui/Events.h"
#include "support/Answers.h"
#include "support/SteppedHost.h"
#include "table/ColumnLayout.h"
#include "table/HeaderRow.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

using qelcore::Ref;
using qelui::ui::MouseButton;
using qelui::ui::MouseEvent;
using qelui::ui::PointerAction;
using Names = std::vector<std::string>;

inline constexpr float kTreeRowHeight = 18;

inline const Names kDefaultColumns{"#",          "Label Color", "Clip Name", "Track",
                                   "Start Time", "Duration",    "Effects",   "Transitions"};

inline const Names kAllColumns{"#",
                               "Label Color",
                               "Clip Name",
                               "Track",
                               "Start Time",
                               "Duration",
                               "Effects",
                               "Transitions",
                               "Offline Status",
                               "Fonts Used",
                               "Fonts Missing",
                               "End Time",
                               "File Name",
                               "File Path",
                               "Source Clip Name",
                               "Proxy Media Path",
                               "Proxy Status",
                               "Effects Missing",
                               "Multicam Camera",
                               "Frame Rate",
                               "Codec",
                               "Usage Count In Sequence",
                               "Tape Name",
                               "Description",
                               "Comment",
                               "Video Info"};

class ColumnFixture : public testing::Test {
 protected:
  ColumnFixture() { GetColumnLayoutStore().clear(); }

  static Ref<SequenceIndexTree> MakeTree() { return Ref(new SequenceIndexTree({}, 0, kTreeRowHeight)); }
  /// The names of the shown columns, without the hierarchy column.
  static Names GetShownColumns(const SequenceIndexTree& tree) {
    const auto row = tree.GetHeaderRow();
    Names names;
    for (std::size_t i = 1; i < row->GetCountOfColumns(); ++i) {
      names.emplace_back(row->GetColumnNameUTF8(row->GetColumnAt(i)).View());
    }
    return names;
  }
  static bool PressMenuButton(const SequenceIndexTree& tree, qelui::Point position = {}) {
    return tree.GetHeaderRow()->UI_DoMouseEvent(
        MouseEvent(PointerAction::kPress, position, MouseButton::kContextMenu, 1));
  }
  void Choose(const SequenceIndexTree& tree, std::uint32_t command) {
    answers.menuAnswer = [command] { return command; };
    PressMenuButton(tree);
  }

  SteppedHost host;
  Answers answers;
};

}  // namespace Vantrel
