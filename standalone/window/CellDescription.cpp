#include "standalone/window/CellDescription.h"

#include "standalone/runtime/Guard.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/window/Colors.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// The room plays no part: what is recorded is not cut.
constexpr float kWidth = 100;

QString Describe(const RecordingDrawbot& drawn) {
  QString words;
  for (const RecordingDrawbot::Line& line : drawn.GetTextLines()) {
    if (!words.isEmpty()) words += ' ';
    words += ToQString(line.text.View());
  }
  if (words.isEmpty() && !drawn.GetFills().empty()) {
    words = "colour " + ToQColor(drawn.GetFills().back().color).name().toUpper();
  }
  return words;
}

}  // namespace

QString DescribeCell(const qelui::controls::UI_MultiColumnTree& tree, std::size_t position,
                     std::size_t displayIndex) {
  auto* const row = tree.GetRow(position);
  if (row == nullptr) return {};
  RecordingDrawbot drawn;
  const bool isDrawn = CallGuarded("describing a cell", [&] {
    tree.DrawCellOfRow(drawn, row, displayIndex, {0, 0, kWidth, tree.GetRowHeight()});
  });
  return isDrawn ? Describe(drawn) : QString();
}

}  // namespace standalone
