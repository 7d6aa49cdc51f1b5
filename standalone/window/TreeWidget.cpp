#include "standalone/window/TreeWidget.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "standalone/runtime/Guard.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/Colors.h"
#include "standalone/window/LineText.h"
#include "standalone/window/TreeAccessible.h"
#include "standalone/window/TreePainter.h"

namespace standalone {

namespace {

/// Scroll bars count pixels in an int, which is enough for thirty million rows.
int ToBarValue(std::int64_t pixels) {
  constexpr std::int64_t kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp<std::int64_t>(pixels, 0, kMost));
}

void SetBar(QScrollBar& bar, int range, int page, int step, int value) {
  bar.setRange(0, range);
  bar.setPageStep(page);
  bar.setSingleStep(step);
  bar.setValue(value);
}

/// Pixels; where rows stand of which an int can't tell the place.
constexpr std::int64_t kFarAway = 1'000'000'000;

/// One bar may bring the other, which may bring itself; then both stay.
constexpr int kMostLayouts = 3;

/// Pixels that an arrow of the horizontal scroll bar moves.
constexpr int kColumnStep = 20;

/// Wide enough that no text of a cell is cut, for measuring; floats still count pixels there.
constexpr float kUncutWidth = 1'000'000;

}  // namespace

TreeWidget::TreeWidget(const qelcore::Ref<Tree>& tree, QWidget* parent)
    : QAbstractScrollArea(parent),
      weakTree(tree),
      place(std::make_unique<NodeWidget>(*tree, *this)),
      header(new TreeHeader(fonts, this)) {
  InstallTreeAccessible();
  // Columns stand as the control counts them, whatever the language.
  setLayoutDirection(Qt::LeftToRight);
  setFrameShape(QFrame::NoFrame);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  header->SetFitFunction([this](std::size_t displayIndex) { FitColumn(displayIndex); });
  treeWatch = NodeWatch(
      tree, [this] { FollowSoon(); },
      [this] {
        // Another control may get the same address.
        place.reset();
        FollowSoon();
      });
  Follow();
}

TreeWidget::~TreeWidget() {
  treeWatch = NodeWatch();
  headerWatch = NodeWatch();
  // It uses members that go before the children do.
  delete header;
  const auto tree = GetTree();
  if (!tree) return;
  CallGuarded("closing a table", [&] { tree->GetControl().SetViewportHeight(std::nullopt); });
}

void TreeWidget::FollowSoon() {
  // Follow has all drawn anew; a program that selects a thousand rows comes here as often.
  if (isFollowPending) return;
  viewport()->update();
  header->viewport()->update();
  if (isFollowing) return;
  isFollowPending = true;
  QMetaObject::invokeMethod(
      this, [this] { Follow(); }, Qt::QueuedConnection);
}

void TreeWidget::FollowNow() {
  if (isFollowPending) Follow();
}

void TreeWidget::Follow() {
  isFollowPending = false;
  if (isFollowing) return;
  const QScopedValueRollback following(isFollowing, true);
  const auto tree = GetTree();
  if (tree) {
    CallGuarded("showing a table", [&] {
      setFocusPolicy(tree->GetControl().WantsKeyboardFocus() ? Qt::StrongFocus : Qt::NoFocus);
      FollowHeaderRow(*tree);
      FollowRows(*tree);
      AnnounceChanges(*tree);
    });
  } else {
    header->SetHeaderRow(nullptr);
    SetBar(*verticalScrollBar(), 0, 0, 0, 0);
    SetBar(*horizontalScrollBar(), 0, 0, 0, 0);
  }
  PlaceHeader();
  viewport()->update();
}

void TreeWidget::FollowHeaderRow(const Tree& tree) {
  const auto headerRow = tree.GetHeaderRow();
  if (weakHeaderRow.Lock() != headerRow) {
    weakHeaderRow = headerRow;
    headerWatch = NodeWatch();
    if (headerRow) headerWatch = NodeWatch(headerRow, [this] { FollowSoon(); }, {});
    header->SetHeaderRow(headerRow);
  }
  const int height = header->GetWantedHeight();
  if (viewportMargins().top() != height) setViewportMargins(0, height, 0, 0);
}

void TreeWidget::PlaceHeader() {
  const QRect shown = viewport()->geometry();
  const int height = viewportMargins().top();
  header->setGeometry(shown.left(), shown.top() - height, shown.width(), height);
  header->Follow(GetColumns(), horizontalScrollBar()->value());
}

// Scroll bars that come or go take or give room, which changes what there is to scroll.
void TreeWidget::FollowRows(Tree& tree) {
  auto& control = tree.GetControl();
  QSize room;
  for (int i = 0; i < kMostLayouts && room != viewport()->size(); ++i) {
    room = viewport()->size();
    if (control.GetViewportHeight() != room.height()) control.SetViewportHeight(room.height());
    FollowScrollBars(tree);
  }
}

void TreeWidget::FollowScrollBars(const Tree& tree) {
  const auto& control = tree.GetControl();
  const int page = viewport()->height();
  const int columnsWidth = GetColumns().GetTotalWidth();
  // Two bars must not stay for the room that only they take.
  const QSize whole = maximumViewportSize();
  const bool fits = columnsWidth <= whole.width() && control.GetContentHeight() <= whole.height();
  SetBar(*verticalScrollBar(), fits ? 0 : ToBarValue(control.GetContentHeight() - page), page,
         std::max(static_cast<int>(std::lround(tree.GetRowHeight())), 1),
         ToBarValue(control.GetScrollPosition()));
  const int width = viewport()->width();
  SetBar(*horizontalScrollBar(), fits ? 0 : std::max(columnsWidth - width, 0), width, kColumnStep,
         horizontalScrollBar()->value());
}

void TreeWidget::AnnounceChanges(const Tree& tree) {
  const auto& control = tree.GetControl();
  const Seen now{tree.CountRows(), control.CountSelected(), control.GetCurrent()};
  const Seen before = std::exchange(seen, now);
  if (now.rowCount != before.rowCount) AnnounceRows(*this);
  if (now.selectedCount != before.selectedCount || now.current != before.current) {
    AnnounceSelection(*this);
  }
  if (now.current && now.current != before.current) AnnounceCurrentCell(*this);
}

const ColumnSpans& TreeWidget::GetColumns() {
  const auto tree = GetTree();
  const auto headerRow = tree ? tree->GetHeaderRow() : nullptr;
  if (headerRow) {
    columns.Read(*headerRow);
  } else {
    columns.Clear();
  }
  return columns;
}

QRect TreeWidget::GetCellArea(std::size_t position, std::size_t column) {
  const auto tree = GetTree();
  const auto& shown = GetColumns().GetShown();
  if (!tree || position >= tree->CountRows() || column >= shown.size()) return {};
  const auto& control = tree->GetControl();
  const std::int64_t top = control.GetTop(position) - control.GetScrollPosition();
  const auto height = static_cast<int>(control.GetTop(position + 1) - control.GetTop(position));
  const int left = shown[column].left - horizontalScrollBar()->value();
  return {left, static_cast<int>(std::clamp(top, -kFarAway, kFarAway)), shown[column].width, height};
}

std::size_t TreeWidget::GetCurrentColumn() {
  const ColumnSpans& shown = GetColumns();
  const auto wasPressed = [this](const ColumnSpan& column) { return column.id == pressedColumn; };
  const auto pressed = std::ranges::find_if(shown.GetShown(), wasPressed);
  if (pressed != shown.GetShown().end()) {
    return static_cast<std::size_t>(pressed - shown.GetShown().begin());
  }
  return shown.FindAt(horizontalScrollBar()->value()).value_or(0);
}

bool TreeWidget::HasSelectionFocus() const {
  return hasFocus() && isActiveWindow();
}

void TreeWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const auto tree = GetTree();
  if (!tree) {
    painter.fillRect(event->rect(), ToQColor(GetThemeColors().tabBackground));
    return;
  }
  const TreeView view{horizontalScrollBar()->value(), viewportMargins().top(), viewport()->width(),
                      HasSelectionFocus()};
  TreePainter(painter, *tree, GetColumns(), fonts, view).Paint(event->rect());
}

int TreeWidget::FindTextWidth(const Tree& tree, std::size_t displayIndex) {
  RecordingDrawbot drawn;
  const qelui::Rect cell{0, 0, kUncutWidth, tree.GetRowHeight()};
  for (const std::size_t position : tree.GetControl().GetVisiblePositions()) {
    CallGuarded("measuring a cell",
                [&] { tree.DrawCellOfRow(drawn, tree.GetRow(position), displayIndex, cell); });
  }
  QString text;
  qreal width = 0;
  for (const RecordingDrawbot::Line& line : drawn.GetTextLines()) {
    DecodeLine(line.text.View(), text);
    const qreal advance = fonts.Find(line.fontName).metrics.horizontalAdvance(text);
    width = std::max(width, line.room.left + advance);
  }
  return static_cast<int>(std::ceil(width));
}

int TreeWidget::FindNameWidth(const TreeHeader::HeaderRow& headerRow, std::size_t displayIndex) {
  const auto name = headerRow.GetColumnNameUTF8(headerRow.GetColumnAt(displayIndex));
  QString text;
  DecodeLine(name.View(), text);
  const qreal advance = fonts.Find({}).metrics.horizontalAdvance(text);
  return static_cast<int>(std::ceil(headerRow.GetStyleResource().textInset + advance));
}

void TreeWidget::FitColumn(std::size_t displayIndex) {
  const auto tree = GetTree();
  const auto headerRow = tree ? tree->GetHeaderRow() : nullptr;
  if (!headerRow || displayIndex >= headerRow->GetCountOfColumns()) return;
  CallGuarded("fitting a column", [&] {
    const int text =
        std::max(FindNameWidth(*headerRow, displayIndex), FindTextWidth(*tree, displayIndex));
    // As much behind the text as before it.
    headerRow->ResizeColumnByUser(displayIndex,
                                  static_cast<float>(text) + Tree::GetCellTextLeftInset());
  });
}

}  // namespace standalone
