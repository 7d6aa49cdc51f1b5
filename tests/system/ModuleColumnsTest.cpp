#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/assembly/StandaloneHost.h"
#include "standalone/framework/ModuleLoader.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "support/Answers.h"
#include "support/Drafts.h"

// The columns and cells of the module as it is shipped.

namespace {

using qelui::controls::UI_MultiColumnTree;
using standalone::LoadedModule;
using Texts = std::vector<std::string>;

constexpr std::uint32_t kTrackColumn = 100023;
constexpr std::size_t kDefaultColumnCount = 8;

class ShippedColumns : public testing::Test {
 protected:
  ShippedColumns() { standalone::SwitchFeature("SequenceIndex", true); }

  /// The table of the open panel.
  qelcore::Ref<UI_MultiColumnTree> OpenTable() {
    for (const auto& child : host.OpenPanel()->GetChildViews()) {
      if (auto* const table = dynamic_cast<UI_MultiColumnTree*>(child.Get())) {
        return qelcore::Ref(table);
      }
    }
    return {};
  }
  static bool IsShown(const UI_MultiColumnTree& table, std::uint32_t column) {
    return table.GetHeaderRow()->GetIndexOfColumn(column) >= 0;
  }
  /// Chooses the item of a column in the header's menu.
  static void Toggle(const UI_MultiColumnTree& table, std::uint32_t column) {
    Answers answers;
    answers.menuAnswer = [column] { return column; };
    using namespace qelui::ui;
    table.GetHeaderRow()->UI_DoMouseEvent(
        MouseEvent(PointerAction::kPress, {}, MouseButton::kContextMenu, 1));
  }
  /// What the cells of a row show; "■" for a filled one.
  static Texts DrawRow(const UI_MultiColumnTree& table, std::size_t position) {
    Texts texts;
    standalone::RecordingDrawbot drawbot;
    for (std::size_t i = 1; i < table.GetHeaderRow()->GetCountOfColumns(); ++i) {
      drawbot.Clear();
      table.DrawCellOfRow(drawbot, table.GetRow(position), i, {0, 0, 100, 25});
      std::string text = drawbot.GetFills().empty() ? "" : "■";
      for (const auto& line : drawbot.GetTextLines()) text += line.text.View();
      texts.push_back(text);
    }
    return texts;
  }

  standalone::StandaloneHost host;
};

TEST_F(ShippedColumns, DrawTheRowsOfTheActiveSequence) {
  LoadedModule module(MODULE_LIBRARY);
  auto table = OpenTable();
  ASSERT_TRUE(table);
  const auto cut = host.GetProject().AddDocument(drafts::MakeDocument(drafts::MakeOneClip("Cut")));
  host.GetProject().ActivateSequence(cut.front());
  host.GetRuntime().Drain();
  ASSERT_EQ(table->CountRows(), 1U);
  EXPECT_EQ(DrawRow(*table, 0), (Texts{"1", "■", "Cut", "V1", "00:00:00:00", "00:00:00:10", "", ""}));
  table.Reset();
  host.ClosePanel();
  module.Unload();
}

TEST_F(ShippedColumns, StayHiddenWhenThePanelIsOpenedAgainAndAreBackAtTheNextStart) {
  {
    LoadedModule module(MODULE_LIBRARY);
    Toggle(*OpenTable(), kTrackColumn);
    host.ClosePanel();
    EXPECT_FALSE(IsShown(*OpenTable(), kTrackColumn));
    host.ClosePanel();
    module.Unload();
  }
  LoadedModule module(MODULE_LIBRARY);
  EXPECT_TRUE(IsShown(*OpenTable(), kTrackColumn));
  EXPECT_EQ(OpenTable()->GetHeaderRow()->GetCountOfColumns(), 1 + kDefaultColumnCount);
  host.ClosePanel();
  module.Unload();
}

}  // namespace
