#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/Colors.h"
#include "standalone/window/TreeWidget.h"
#include "support/SteppedHost.h"
#include "support/ThemeChoice.h"

namespace standalone {

using Tree = qelui::controls::UI_MultiColumnTree;
using HeaderRow = qelui::controls::UI_MultiColumnTreeHeaderRow;
using Positions = std::vector<std::size_t>;

/// A widget's picture at a device pixel ratio; points are the widget's.
class Picture {
 public:
  explicit Picture(QWidget& widget, int scale = 1)
      : image(widget.size() * scale, QImage::Format_ARGB32), scale(scale) {
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
  }

  QColor At(QPoint point) const { return image.pixelColor(point * scale); }
  /// The device pixels of an area of which every one is `color`.
  bool IsAll(const QRect& area, const QColor& color) const {
    return CountIf(area, [&](const QColor& found) { return found == color; }) ==
           area.width() * area.height() * scale * scale;
  }
  int CountOther(const QRect& area, const QColor& color) const {
    return CountIf(area, [&](const QColor& found) { return found != color; });
  }
  int CountIf(const QRect& area, const std::function<bool(const QColor&)>& isCounted) const {
    int count = 0;
    ForEach(area, [&](QPoint, const QColor& found) { count += isCounted(found) ? 1 : 0; });
    return count;
  }
  /// The smallest rectangle of device pixels, from the area's corner, that holds all others than
  /// `color`.
  QRect FindInk(const QRect& area, const QColor& color) const {
    QRect ink;
    ForEach(area, [&](QPoint point, const QColor& found) {
      if (found != color) ink |= QRect(point - area.topLeft() * scale, QSize(1, 1));
    });
    return ink;
  }
  const QImage& GetImage() const { return image; }

 private:
  template <typename Function>
  void ForEach(const QRect& area, Function&& function) const {
    for (int y = area.top() * scale; y < (area.bottom() + 1) * scale; ++y) {
      for (int x = area.left() * scale; x < (area.right() + 1) * scale; ++x) {
        function(QPoint(x, y), image.pixelColor(x, y));
      }
    }
  }

  QImage image;
  int scale;
};

inline Positions GetSelected(const Tree& tree) {
  Positions positions;
  for (const auto* row : tree.GetSelectedRows()) positions.push_back(tree.GetRowIndex(row));
  return positions;
}

/// A window with a plain table: columns "A", "B" and "C", each 100 pixels wide, behind the hidden first
/// one; cells draw "<row> <display index>".
class WindowFixture : public testing::Test {
 protected:
  static constexpr float kRowHeight = 20;
  /// Of a plain header row; the module's own is as high as a row here.
  static constexpr int kHeaderHeight = 24;

  /// The size of a widget that has this much room for rows and scroll bars.
  static QSize Room(int width, int height) { return {width, height + kHeaderHeight}; }

  static qelcore::Ref<Tree> MakeTree(std::size_t rowCount, float rowHeight = kRowHeight) {
    auto tree = qelcore::Ref(new Tree(0, rowHeight));
    tree->SetSupportMultipleSelections(true);
    tree->SetWantsKeyboardFocus(true);
    const auto headerRow = qelcore::Ref(new HeaderRow(tree.Get()));
    headerRow->SetColumnWidth(HeaderRow::kHierarchyColumnID, 0);
    headerRow->SetAllowColumnMovingByUser(true, false);
    tree->SetHeaderRow(headerRow);
    for (std::uint32_t id = 1; id <= 3; ++id) {
      headerRow->AppendColumn(qelcore::UTF8String(std::string(1, static_cast<char>('@' + id))), id);
    }
    DrawPlainTexts(*tree);
    AppendRows(*tree, rowCount);
    return tree;
  }
  static void AppendRows(Tree& tree, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) tree.CreateAndAppendRow(nullptr, true, true);
    tree.LayoutAfterAppendRow();
  }
  /// The callback is the tree's; it must not hold it.
  static void DrawPlainTexts(Tree& tree) {
    Draw(tree, [&tree](qelui::Drawbot& drawbot, Tree::Row* row, std::size_t column,
                       const qelui::Rect& cell) {
      const std::string text = std::to_string(tree.GetRowIndex(row)) + " " + std::to_string(column);
      Tree::DrawCellString(drawbot, cell, qelcore::UTF8String(text), GetThemeColors().text,
                           cell.height / 2, 4, {}, {}, Tree::kAlignLeft, Tree::kCutAtEnd);
    });
  }
  static void Draw(Tree& tree, Tree::DrawCellFunction function) {
    tree.SetDrawCellOfRowCallback(std::make_shared<const Tree::DrawCellFunction>(std::move(function)));
  }

  std::unique_ptr<TreeWidget> Show(const qelcore::Ref<Tree>& tree, QSize size = Room(400, 200)) {
    auto widget = std::make_unique<TreeWidget>(tree);
    widget->resize(size);
    widget->show();
    widget->activateWindow();
    widget->setFocus();
    Settle();
    return widget;
  }
  void Settle() {
    host.Settle();
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  /// The middle of a cell of the viewport.
  static QPoint FindCell(TreeWidget& widget, std::size_t position, std::size_t column = 0) {
    return widget.GetCellArea(position, column).center();
  }
  /// The same in the widget's own picture.
  static QRect FindCellInPicture(TreeWidget& widget, std::size_t position, std::size_t column) {
    return widget.GetCellArea(position, column).translated(widget.viewport()->pos());
  }

  SteppedHost host;
};

}  // namespace standalone
