#include "standalone/desktop/TimelineView.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "host/BE/Messages.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/ZSL/Timecode.h"
#include "standalone/desktop/TimelinePainter.h"
#include "standalone/runtime/Guard.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelmediatypes::TickTime;

namespace {

constexpr double kZoomStep = 2;
constexpr int kScrollStep = 60;
/// The sideways scroll bar counts pixels; where a timeline has more than it can count, it counts as
/// many pixels at a time as it takes.
constexpr double kLongestScrollRange = 1e9;

}  // namespace

TimelineView::TimelineView(QWidget* parent) : QAbstractScrollArea(parent) {
  setAccessibleName("Timeline");
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  listener = MessageListener::Make([this](const auto& message) { Receive(message); });
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, listener);
}

TimelineView::~TimelineView() = default;

void TimelineView::SetSelectionWatcher(std::function<void(std::size_t)> watcher) {
  selectionWatcher = std::move(watcher);
}

void TimelineView::SetSequence(const Sequence& newSequence) {
  Unsubscribe();
  const bool isAnother = newSequence != sequence;
  sequence = newSequence;
  player = FindPlayer(sequence);
  Subscribe();
  if (isAnother) selection.Clear();
  ReadContent();
  if (isAnother) ZoomToFit();
  if (isAnother) SelectionWasChanged();
}

void TimelineView::Subscribe() {
  using qelcore::messaging::AddWeakPtrListener;
  if (!sequence) return;
  const auto* const contentFace = qelcore::FindInterface<BE::ISequenceContent>(sequence.Get());
  if (contentFace != nullptr) AddWeakPtrListener(contentFace->GetStationID(), listener);
  if (player) AddWeakPtrListener(player->GetStationID(), listener);
}

void TimelineView::Unsubscribe() {
  using qelcore::messaging::RemoveListener;
  if (!sequence) return;
  const auto* const contentFace = qelcore::FindInterface<BE::ISequenceContent>(sequence.Get());
  if (contentFace != nullptr) RemoveListener(contentFace->GetStationID(), listener);
  if (player) RemoveListener(player->GetStationID(), listener);
}

void TimelineView::Receive(const qelcore::messaging::Message& message) {
  if (const auto* const activation = dynamic_cast<const MZ::TrackItemActivationMessage*>(&message)) {
    if (selection.Activate(*activation, sequence)) SelectionWasChanged();
  } else if (dynamic_cast<const ML::PlayerPositionChangedMessage*>(&message) != nullptr) {
    FollowPlayer();
  } else if (dynamic_cast<const BE::SequenceChangedMessage*>(&message) != nullptr) {
    const std::size_t count = selection.Count();
    ReadContent();
    selection.MoveTo(content);
    if (selection.Count() != count) SelectionWasChanged();
  }
}

void TimelineView::FollowPlayer() {
  // Who drags the playhead sees where it is.
  if (!scrubX) scale.Reveal(GetPosition());
  FollowScrollBars();
  // Nobody listens to every frame that plays.
  if (!player->IsPlaying()) UpdateDescription();
  viewport()->update();
}

void TimelineView::ReadContent() {
  content = TimelineContent(sequence);
  lanes = LaneLayout(content.GetLanes());
  scale.SetFrameDuration(content.GetFrameDuration());
  FollowScrollBars();
  UpdateDescription();
  viewport()->update();
}

TickTime TimelineView::GetPosition() const {
  return player ? player->GetCurrentPosition() : TickTime();
}

void TimelineView::ZoomIn() {
  Zoom(1 / kZoomStep, scale.ToX(GetPosition()));
}

void TimelineView::ZoomOut() {
  Zoom(kZoomStep, scale.ToX(GetPosition()));
}

void TimelineView::ZoomToFit() {
  scale.Fit(content.GetEnd());
  FollowScrollBars();
  viewport()->update();
}

void TimelineView::Zoom(double factor, double x) {
  scale.ZoomBy(factor, std::clamp(x, 0.0, scale.GetWidth()));
  FollowScrollBars();
  viewport()->update();
}

void TimelineView::FollowScrollBars() {
  isFollowing = true;
  const TickTime farthest = std::max(content.GetEnd(), scale.GetEnd());
  scrollUnit = std::max(scale.GetTicksPerPixel(),
                        static_cast<double>(farthest.GetTicks()) / kLongestScrollRange);
  const auto toUnits = [this](TickTime time) {
    return static_cast<int>(static_cast<double>(time.GetTicks()) / scrollUnit);
  };
  const int page = toUnits(TickTime(std::llround(scale.GetWidth() * scale.GetTicksPerPixel())));
  // Some room behind the end, unless all of it fits.
  const int end = toUnits(content.GetEnd());
  const int room = end <= page ? page : end + page / 8;
  const int start = toUnits(scale.GetStart());
  QScrollBar& across = *horizontalScrollBar();
  across.setRange(0, std::max({room - page, start, 0}));
  across.setPageStep(std::max(page, 1));
  across.setSingleStep(kScrollStep);
  across.setValue(start);
  QScrollBar& down = *verticalScrollBar();
  const int height = std::max(viewport()->height() - TimelinePicture::kRulerHeight, 0);
  down.setRange(0, std::max(lanes.GetHeight() - height, 0));
  down.setPageStep(std::max(height, 1));
  down.setSingleStep(LaneLayout::kAudioHeight);
  isFollowing = false;
}

void TimelineView::scrollContentsBy(int dx, int) {
  if (!isFollowing && dx != 0) {
    scale.ScrollTo(TickTime(std::llround(horizontalScrollBar()->value() * scrollUnit)));
  }
  viewport()->update();
}

void TimelineView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  CallGuarded("timeline", [&] {
    PaintTimeline(painter, {content, lanes, scale, selection, GetPosition(),
                            verticalScrollBar()->value(), viewport()->size()});
  });
}

void TimelineView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  const bool wasUnseen = scale.GetWidth() <= 1;
  scale.SetWidth(viewport()->width() - TimelinePicture::kNamesWidth);
  if (wasUnseen) scale.Fit(content.GetEnd());
  FollowScrollBars();
}

void TimelineView::SelectionWasChanged() {
  UpdateDescription();
  viewport()->update();
  if (selectionWatcher) selectionWatcher(selection.Count());
}

QPoint TimelineView::FindPlace(std::size_t lane, TickTime time) const {
  if (lane >= lanes.Count()) return {};
  return {TimelinePicture::kNamesWidth + static_cast<int>(std::floor(scale.ToX(time))),
          TimelinePicture::kRulerHeight + lanes.GetTop(lane) + lanes.GetHeight(lane) / 2 -
              verticalScrollBar()->value()};
}

void TimelineView::UpdateDescription() {
  const TimeNotation& notation = content.GetNotation();
  const ZSL::Timecode time(notation.zeroPoint + GetPosition(), notation.frameDuration,
                           notation.display);
  setAccessibleDescription(QString("%1 tracks, playhead at %2, %3 items selected")
                               .arg(lanes.Count())
                               .arg(ToQString(time.GetStringUTF8().View()))
                               .arg(selection.Count()));
}

}  // namespace standalone
