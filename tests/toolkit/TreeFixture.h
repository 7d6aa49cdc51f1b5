#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/TreeControl.h"

/// A table of ten-pixel rows in a viewport of eighty pixels, which notes what its callbacks hear.
class TreeFixture : public testing::Test {
 protected:
  using Tree = qelui::controls::UI_MultiColumnTree;
  using Row = Tree::Row;
  using Positions = std::vector<std::size_t>;

  TreeFixture() {
    tree->SetSupportMultipleSelections(true);
    tree->UI_SetBounds({0, 0, 300, 80});
    WhenSelectionChanges([this](const std::vector<Row*>& rows) { selections.push_back(Find(rows)); });
    WhenVisibilityChanges([this](Row* row) { shownOrHidden.push_back(tree->GetRowIndex(row)); });
  }

  Tree::Control& GetControl() const { return tree->GetControl(); }

  void Fill(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) tree->CreateAndAppendRow(nullptr, true, true);
    tree->LayoutAfterAppendRow();
  }
  void WhenSelectionChanges(Tree::RowsSelectionChangedFunction function) {
    tree->SetRowsSelectionChangedCallback(
        std::make_shared<const Tree::RowsSelectionChangedFunction>(std::move(function)));
  }
  void WhenVisibilityChanges(Tree::RowVisibilityChangedFunction function) {
    tree->SetRowVisibilityChangedCallback(
        std::make_shared<const Tree::RowVisibilityChangedFunction>(std::move(function)));
  }

  void Select(std::size_t position, bool isExtending = true) {
    tree->SelectRow(tree->GetRow(position), isExtending);
  }
  Positions Find(const std::vector<Row*>& rows) const {
    Positions positions;
    for (const Row* row : rows) positions.push_back(tree->GetRowIndex(row));
    return positions;
  }
  Positions GetSelected() const { return Find(tree->GetSelectedRows()); }

  /// How often the table asked to be drawn anew while `operation` ran.
  int CountInvalidations(const std::function<void()>& operation) {
    int count = 0;
    tree->UI_SetWatcher([&count] { ++count; });
    operation();
    tree->UI_SetWatcher({});
    return count;
  }

  standalone::Runtime runtime;
  qelcore::Ref<Tree> tree{new Tree(0, 10)};
  std::vector<Positions> selections;
  Positions shownOrHidden;
};
