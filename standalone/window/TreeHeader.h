#pragma once

#include <QHeaderView>
#include <QPoint>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

#include "host/qelcore/CountedObject.h"
#include "host/qelcore/Reference.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ColumnSpans.h"
#include "standalone/window/HeaderModel.h"
#include "standalone/window/NodeWidgets.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

/// Shows a header row above a table: draws it, and hands it what the user does to the columns. The
/// header row alone knows order and widths; sections follow it, so that a move that it refuses snaps
/// back. Every press is offered to the header row first, which opens its column menu that way; a click
/// does nothing else. Holds the header row weakly. [main-thread]
class STANDALONE_API TreeHeader final : public QHeaderView {
 public:
  using HeaderRow = qelui::controls::UI_MultiColumnTreeHeaderRow;

  /// `fonts` must outlive the header.
  TreeHeader(TextFonts& fonts, QWidget* parent);
  ~TreeHeader() override;

  /// The header row shown from now on; may be empty.
  void SetHeaderRow(const qelcore::Ref<HeaderRow>& newHeaderRow);
  /// Takes over columns, place and scroll offset, in pixels.
  void Follow(const ColumnSpans& spans, int scrollOffset);
  /// The height that the header row wants to have.
  int GetWantedHeight() const;

  /// Opens the header row's context menu as a press at this place does.
  void OpenMenu(QPoint place);
  /// Called when the user double-clicks the right border of the column at a display index.
  void SetFitFunction(std::function<void(std::size_t)> newFit) { fit = std::move(newFit); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Draw(QPainter& painter) const;
  /// True when the header row handled the event, or nothing is left that could.
  bool OfferEvent(const QMouseEvent& event);
  bool IsOnBorder(int x) const;
  void ShowMoving(bool isMoving);
  void FinishMove(int from, int to);
  void FinishResize(int displayIndex, int width);

  TextFonts& fonts;
  qelcore::WeakRef<HeaderRow> headerRow;
  std::unique_ptr<NodeWidget> place;
  std::function<void(std::size_t)> fit;
  HeaderModel columns;
  /// Where a press began that may become a drag of a column.
  std::optional<QPoint> grip;
  bool isFollowing = false;
};

}  // namespace standalone
