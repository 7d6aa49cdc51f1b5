#pragma once

#include <QSize>
#include <cstddef>
#include <memory>

#include "common/Inputs.h"
#include "host/qelcore/Reference.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/TreeWidget.h"
#include "table/SequenceIndexTree.h"

namespace benchmarks {

/// The module's table of a generated timeline, with all its columns, in a window as large as a screen
/// of 1920 × 1080 pixels: 44 rows are seen, and the 26 columns share the width as they share their own.
class ShownTable {
 public:
  /// Made when it is first asked for, and kept.
  static ShownTable& Get(std::size_t clips);
  /// The same of the first clips of the timeline of a million, whose first rows show the same texts.
  /// Kept, too.
  static ShownTable& GetBeginning(std::size_t clips);
  /// Before the application goes, which widgets must not outlive.
  static void DropAll();

  static constexpr QSize kViewport{1920, 1080};
  static constexpr float kRowHeight = 25;

  Vantrel::SequenceIndexTree& GetTree() noexcept { return *tree; }
  standalone::TreeWidget& GetWidget() noexcept { return *widget; }
  std::size_t CountRows() const { return tree->CountRows(); }
  /// Runs what waits: pool tasks, main-thread functions, events of the window system.
  void Settle();

  explicit ShownTable(const qelcore::Ref<BE::ISequence>& sequence);

 private:
  void ShareWidth();

  qelcore::Ref<Vantrel::SequenceIndexTree> tree;
  std::unique_ptr<standalone::TreeWidget> widget;
};

}  // namespace benchmarks
