#pragma once

#include <optional>

#include "host/ML/Player.h"
#include "host/qelcore/Reference.h"
#include "host/qelui/MultiColumnTree.h"

/// The calls by which a table's selection and the playhead follow each other; install one for a test
/// that runs on one thread. What is empty leaves the host's behaviour as it is.
struct SelectionWatch {
  using Tree = qelui::controls::UI_MultiColumnTree;

  /// The functions that were registered last.
  Tree::SharedRowsSelectionChangedFunction rowsSelectionChanged;
  Tree::SharedRowVisibilityChangedFunction rowVisibilityChanged;

  /// In place of every sequence's player; may be none.
  std::optional<qelcore::Ref<ML::IPlayer>> player;
  /// Whether the toolkit names the selected rows from the bottom.
  bool isReversingSelectedRows = false;
  /// Whether the host says that this is not the main thread.
  bool isOffMainThread = false;

  SelectionWatch() { installed = this; }
  ~SelectionWatch() { installed = nullptr; }
  SelectionWatch(const SelectionWatch&) = delete;
  SelectionWatch& operator=(const SelectionWatch&) = delete;

  inline static SelectionWatch* installed = nullptr;
};
