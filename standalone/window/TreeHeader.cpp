#include "standalone/window/TreeHeader.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyle>
#include <cmath>
#include <utility>

#include "standalone/runtime/Guard.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/window/Colors.h"
#include "standalone/window/InputEvents.h"
#include "standalone/window/PainterDrawbot.h"

namespace standalone {

namespace {

/// What a header row does, guarded: nothing that it throws may cross the window system.
constexpr const char* kWhere = "header row";

constexpr std::uint32_t kFirstClick = 1;

}  // namespace

TreeHeader::TreeHeader(TextFonts& fonts, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), fonts(fonts) {
  setModel(&columns);
  setSectionsMovable(true);
  // Which columns move, the header row decides.
  setFirstSectionMovable(true);
  setSectionsClickable(false);
  setSortIndicatorShown(false);
  setHighlightSections(false);
  setSectionResizeMode(QHeaderView::Interactive);
  setMinimumSectionSize(static_cast<int>(HeaderRow::kNarrowestColumn));
  setFocusPolicy(Qt::NoFocus);
  connect(this, &QHeaderView::sectionMoved, this,
          [this](int, int from, int to) { FinishMove(from, to); });
  connect(this, &QHeaderView::sectionResized, this,
          [this](int section, int, int width) { FinishResize(section, width); });
  connect(this, &QHeaderView::sectionHandleDoubleClicked, this, [this](int section) {
    if (fit) fit(static_cast<std::size_t>(section));
  });
}

TreeHeader::~TreeHeader() = default;

void TreeHeader::SetHeaderRow(const qelcore::Ref<HeaderRow>& newHeaderRow) {
  headerRow = newHeaderRow;
  place = newHeaderRow ? std::make_unique<NodeWidget>(*newHeaderRow, *viewport()) : nullptr;
}

void TreeHeader::Follow(const ColumnSpans& spans, int scrollOffset) {
  const auto row = headerRow.Lock();
  const QScopedValueRollback following(isFollowing, true);
  columns.Read(row.Get());
  auto span = spans.GetShown().begin();
  for (int i = 0; i < count(); ++i) {
    const bool isShown =
        span != spans.GetShown().end() && span->displayIndex == static_cast<std::size_t>(i);
    if (isSectionHidden(i) == isShown) setSectionHidden(i, !isShown);
    if (!isShown) continue;
    if (sectionSize(i) != span->width) resizeSection(i, span->width);
    ++span;
  }
  setOffset(scrollOffset);
  if (row) {
    const qelui::Rect bounds{0, 0, static_cast<float>(width()), static_cast<float>(height())};
    if (row->UI_GetBounds() != bounds) row->UI_SetBounds(bounds);
    if (row->GetScrollOffset() != static_cast<float>(scrollOffset)) {
      row->SetScrollOffset(static_cast<float>(scrollOffset));
    }
  }
  viewport()->update();
}

int TreeHeader::GetWantedHeight() const {
  float height = 0;
  if (const auto row = headerRow.Lock()) {
    CallGuarded(kWhere, [&] { height = row->GetStyleResource().height; });
  }
  return std::max(static_cast<int>(std::lround(height)), 0);
}

void TreeHeader::OpenMenu(QPoint menuPlace) {
  const auto row = headerRow.Lock();
  if (!row) return;
  const qelui::ui::MouseEvent press(
      qelui::ui::PointerAction::kPress,
      {static_cast<float>(menuPlace.x()), static_cast<float>(menuPlace.y())},
      qelui::ui::MouseButton::kContextMenu, kFirstClick);
  CallGuarded(kWhere, [&] { row->UI_DoMouseEvent(press); });
}

void TreeHeader::Draw(QPainter& painter) const {
  const auto row = headerRow.Lock();
  if (!row) return;
  PainterDrawbot drawbot(painter, fonts);
  CallGuarded(kWhere, [&] { row->UI_Draw(drawbot); });
}

void TreeHeader::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), ToQColor(GetThemeColors().headerBackground));
  Draw(painter);
}

// The picture of a column that goes with the pointer.
void TreeHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  painter->save();
  painter->setClipRect(rect);
  painter->translate(rect.left() - sectionViewportPosition(logicalIndex), rect.top());
  Draw(*painter);
  painter->restore();
}

bool TreeHeader::OfferEvent(const QMouseEvent& event) {
  const auto row = headerRow.Lock();
  if (!row) return true;
  // A menu that the header row opens runs a nested loop, in which this widget may go.
  const QPointer<TreeHeader> self(this);
  bool isHandled = false;
  CallGuarded(kWhere, [&] { isHandled = row->UI_DoMouseEvent(ToMouseEvent(event)); });
  return isHandled || !self;
}

bool TreeHeader::IsOnBorder(int x) const {
  const int margin = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
  for (int i = 0; i < count(); ++i) {
    const int right = sectionViewportPosition(i) + sectionSize(i);
    if (!isSectionHidden(i) && std::abs(x - right) < margin) return true;
  }
  return false;
}

void TreeHeader::ShowMoving(bool isMoving) {
  const auto row = headerRow.Lock();
  if (!row || row->HasColumnMoveCursor() == isMoving) return;
  CallGuarded(kWhere, [&] { row->SetColumnMoveCursor(isMoving); });
  if (row->HasColumnMoveCursor()) {
    setCursor(Qt::ClosedHandCursor);
  } else {
    unsetCursor();
  }
}

void TreeHeader::mousePressEvent(QMouseEvent* event) {
  if (OfferEvent(*event)) return;
  const QPoint point = event->position().toPoint();
  if (event->button() == Qt::LeftButton && !IsOnBorder(point.x())) grip = point;
  QHeaderView::mousePressEvent(event);
}

void TreeHeader::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!OfferEvent(*event)) QHeaderView::mouseDoubleClickEvent(event);
}

void TreeHeader::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) {
    // Another window got the release.
    grip.reset();
    ShowMoving(false);
  }
  const int way = grip ? std::abs(event->position().toPoint().x() - grip->x()) : 0;
  if (grip && way >= QApplication::startDragDistance()) ShowMoving(true);
  QHeaderView::mouseMoveEvent(event);
}

void TreeHeader::mouseReleaseEvent(QMouseEvent* event) {
  grip.reset();
  ShowMoving(false);
  QHeaderView::mouseReleaseEvent(event);
}

// Presses of the button have opened the menu already, and so have keys.
void TreeHeader::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
}

void TreeHeader::keyPressEvent(QKeyEvent* event) {
  // The table's affair.
  event->ignore();
}

void TreeHeader::FinishMove(int from, int to) {
  if (isFollowing) return;
  {
    // Sections stay in the order of their numbers; the names change places.
    const QScopedValueRollback following(isFollowing, true);
    moveSection(to, from);
  }
  const auto row = headerRow.Lock();
  if (!row || from < 0 || to < 0) return;
  CallGuarded(kWhere, [&] {
    row->MoveColumnByUser(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
  });
}

void TreeHeader::FinishResize(int displayIndex, int width) {
  const auto row = headerRow.Lock();
  if (isFollowing || !row || displayIndex < 0) return;
  CallGuarded(kWhere, [&] {
    row->ResizeColumnByUser(static_cast<std::size_t>(displayIndex), static_cast<float>(width));
  });
}

}  // namespace standalone
