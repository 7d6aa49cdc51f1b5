#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelui::Drawbot;
using qelui::Rect;
using qelui::controls::UI_MultiColumnTree;
using Row = UI_MultiColumnTree::Row;

constexpr Rect kCell{1, 2, 3, 4};

class DrawCellOfRow : public testing::Test {
 protected:
  void Register(UI_MultiColumnTree::DrawCellFunction function) {
    tree->SetDrawCellOfRowCallback(
        std::make_shared<const UI_MultiColumnTree::DrawCellFunction>(std::move(function)));
  }
  void RegisterNamed(const char* name) {
    Register([this, name](Drawbot&, Row*, std::size_t, const Rect&) { drawnBy.emplace_back(name); });
  }
  void Draw() { tree->DrawCellOfRow(drawbot, row, 7, kCell); }

  standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  Ref<UI_MultiColumnTree> tree{new UI_MultiColumnTree(0, 18)};
  Row* row = tree->CreateAndAppendRow(nullptr, true, false);
  std::vector<std::string> drawnBy;
};

TEST_F(DrawCellOfRow, WithoutAFunctionNothingIsDrawn) {
  Draw();
  tree->SetDrawCellOfRowCallback(std::make_shared<const UI_MultiColumnTree::DrawCellFunction>());
  Draw();
  EXPECT_TRUE(drawbot.GetTextLines().empty());
}

TEST_F(DrawCellOfRow, TheFunctionGetsDrawbotRowDisplayIndexAndCell) {
  int count = 0;
  Register([&](Drawbot& given, Row* givenRow, std::size_t displayIndex, const Rect& cell) {
    ++count;
    EXPECT_EQ(&given, &drawbot);
    EXPECT_EQ(givenRow, row);
    EXPECT_EQ(displayIndex, 7U);
    EXPECT_EQ(cell, kCell);
  });
  Draw();
  EXPECT_EQ(count, 1);
}

TEST_F(DrawCellOfRow, TheFunctionRegisteredLastDraws) {
  RegisterNamed("first");
  RegisterNamed("second");
  Draw();
  tree->SetDrawCellOfRowCallback(nullptr);
  Draw();
  EXPECT_EQ(drawnBy, std::vector<std::string>{"second"});
}

TEST_F(DrawCellOfRow, AFunctionThatRegistersAnotherOneIsHeldUntilItIsDone) {
  auto kept = std::make_shared<std::string>("first");
  const std::weak_ptr<std::string> watched = kept;
  Register([this, kept = std::move(kept)](Drawbot&, Row*, std::size_t, const Rect&) {
    RegisterNamed("second");
    drawnBy.push_back(*kept);
  });
  Draw();
  EXPECT_TRUE(watched.expired()) << "and no longer";
  Draw();
  EXPECT_EQ(drawnBy, (std::vector<std::string>{"first", "second"}));
}

TEST_F(DrawCellOfRow, LetsAFailurePass) {
  Register(
      [](Drawbot&, Row*, std::size_t, const Rect&) { throw std::runtime_error("cannot be drawn"); });
  EXPECT_THROW(Draw(), std::runtime_error);
}

TEST_F(DrawCellOfRow, TheFunctionGoesWithTheTree) {
  auto kept = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = kept;
  Register([kept = std::move(kept)](Drawbot&, Row*, std::size_t, const Rect&) {});
  tree.Reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(DrawCellOfRow, StopsOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Draw(), "UI_MultiColumnTree::DrawCellOfRow");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->SetDrawCellOfRowCallback(nullptr),
                               "UI_MultiColumnTree::SetDrawCellOfRowCallback");
}

}  // namespace
