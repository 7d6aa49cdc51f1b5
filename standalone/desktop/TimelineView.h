#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPoint>
#include <functional>
#include <memory>
#include <optional>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/LaneLayout.h"
#include "standalone/timeline/MessageListener.h"
#include "standalone/timeline/TimeScale.h"
#include "standalone/timeline/TimelineContent.h"
#include "standalone/timeline/TimelineSelection.h"

namespace standalone {

/// Shows the active sequence as a timeline: tracks, clips in their label colours, gaps, transitions,
/// what is disabled or offline, the selection and the playhead. The playhead is moved by clicks and
/// drags on the ruler, items are selected by clicks, and by Enter those at the playhead; the wheel
/// scrolls, with Control it zooms, as + and - do, and \ shows all. What a panel activates is selected
/// here. Follows the sequence's content and player by their messages.
/// [main-thread]
class STANDALONE_API TimelineView final : public QAbstractScrollArea {
 public:
  using TickTime = qelmediatypes::TickTime;
  using Sequence = qelcore::Ref<BE::ISequence>;

  explicit TimelineView(QWidget* parent = nullptr);
  ~TimelineView() override;

  /// Called when other items are selected, with their number; empty: nobody is.
  void SetSelectionWatcher(std::function<void(std::size_t count)> watcher);

  /// Shows a sequence, all of it; or none.
  void SetSequence(const Sequence& newSequence);
  const Sequence& GetSequence() const noexcept { return sequence; }

  const TimelineContent& GetContent() const noexcept { return content; }
  const TimelineSelection& GetSelection() const noexcept { return selection; }
  const TimeScale& GetScale() const noexcept { return scale; }
  /// Where the playhead stands; 0 without a player.
  TickTime GetPosition() const;

  /// Shows half, or twice, as much around the playhead; or all.
  void ZoomIn();
  void ZoomOut();
  void ZoomToFit();

  /// The place of a time on a lane in the viewport, for who points at it; null beyond the lanes.
  QPoint FindPlace(std::size_t lane, TickTime time) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Receive(const qelcore::messaging::Message& message);
  void Subscribe();
  void Unsubscribe();
  void ReadContent();
  void FollowPlayer();
  void Zoom(double factor, double x);
  void FollowScrollBars();
  void MovePlayheadTo(int x);
  void SelectAt(QPoint place, Qt::KeyboardModifiers modifiers);
  void SelectAtPlayhead();
  void SelectionWasChanged();
  std::optional<TimelineItem> FindItemAt(QPoint place) const;
  void UpdateDescription();

  Sequence sequence;
  qelcore::Ref<PlayerNode> player;
  TimelineContent content;
  LaneLayout lanes;
  TimeScale scale;
  TimelineSelection selection;
  std::function<void(std::size_t)> selectionWatcher;
  std::shared_ptr<MessageListener> listener;
  /// Where the pointer is while it drags the playhead.
  std::optional<int> scrubX;
  QBasicTimer scrubScroll;
  /// Ticks for a step of the sideways scroll bar.
  double scrollUnit = 1;
  bool isFollowing = false;
};

}  // namespace standalone
