#include "standalone/desktop/TransportBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "host/BE/Messages.h"
#include "host/ZSL/Timecode.h"
#include "standalone/timeline/TimeEntry.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelmediatypes::TickTime;

namespace {

constexpr int kFastestShuttle = 8;
constexpr int kTimeFieldWidth = 130;

QString WriteTime(TickTime time, const TimeNotation& notation) {
  return ToQString(
      ZSL::Timecode(time, notation.frameDuration, notation.display).GetStringUTF8().View());
}

}  // namespace

TransportBar::TransportBar(QWidget* parent)
    : QWidget(parent), timeField(new QLineEdit()), length(new QLabel()), speed(new QLabel()) {
  listener = MessageListener::Make([this](const qelcore::messaging::Message& message) {
    if (dynamic_cast<const BE::SequenceChangedMessage*>(&message) != nullptr) {
      content = TimelineContent(sequence);
    }
    Follow();
  });
  using Symbol = TransportButton::Symbol;
  const auto toStart = MakeButton(Symbol::kToStart, "Go to start", [this] { GoToStart(); });
  const auto back = MakeButton(Symbol::kStepBack, "Step back one frame", [this] { StepFrames(-1); });
  playButton = MakeButton(Symbol::kPlay, "Play", [this] { PlayOrStop(); });
  const auto on = MakeButton(Symbol::kStepForward, "Step on one frame", [this] { StepFrames(1); });
  const auto toEnd = MakeButton(Symbol::kToEnd, "Go to end", [this] { GoToEnd(); });
  SetUpTexts();

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(8, 4, 8, 4);
  layout->setSpacing(2);
  layout->addWidget(timeField);
  layout->addStretch();
  for (TransportButton* const button : {toStart, back, playButton, on, toEnd})
    layout->addWidget(button);
  layout->addStretch();
  layout->addWidget(speed);
  layout->addWidget(length);
  connect(timeField, &QLineEdit::returnPressed, this, [this] { TakeTypedTime(); });
  connect(timeField, &QLineEdit::editingFinished, this, [this] {
    timeField->setModified(false);
    Follow();
  });
  timeField->installEventFilter(this);
  SetSequence({});
}

TransportBar::~TransportBar() = default;

void TransportBar::SetUpTexts() {
  timeField->setFixedWidth(kTimeFieldWidth);
  timeField->setAccessibleName("Playhead time");
  timeField->setToolTip("Type a time and press Enter; + or - in front moves by that much");
  length->setToolTip("Length of the sequence");
  length->setAccessibleDescription(length->toolTip());
  speed->setToolTip("Speed of playback");
  speed->setAccessibleDescription(speed->toolTip());
  // What stands beside it does not move when the speed is another.
  speed->setFixedWidth(speed->fontMetrics().horizontalAdvance("−8× "));
  for (QLabel* const label : {length, speed}) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

TransportButton* TransportBar::MakeButton(TransportButton::Symbol symbol, const QString& name,
                                          std::function<void()> action) {
  auto* const button = new TransportButton(symbol, name, this);
  connect(button, &QToolButton::clicked, this, std::move(action));
  return button;
}

bool TransportBar::eventFilter(QObject* watched, QEvent* event) {
  const bool isEscape = watched == timeField && event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  if (!isEscape || !timeField->isModified()) return QWidget::eventFilter(watched, event);
  timeField->setModified(false);
  Follow();
  timeField->selectAll();
  return true;
}

void TransportBar::SetSequence(const Sequence& newSequence) {
  Subscribe(false);
  sequence = newSequence;
  player = FindPlayer(sequence);
  content = TimelineContent(sequence);
  Subscribe(true);
  setEnabled(static_cast<bool>(player));
  timeField->setModified(false);
  Follow();
}

void TransportBar::Subscribe(bool isSubscribing) {
  const auto change =
      isSubscribing ? qelcore::messaging::AddWeakPtrListener : qelcore::messaging::RemoveListener;
  if (!sequence) return;
  const auto* const contentFace = qelcore::FindInterface<BE::ISequenceContent>(sequence.Get());
  if (contentFace != nullptr) change(contentFace->GetStationID(), listener);
  if (player) change(player->GetStationID(), listener);
}

void TransportBar::Follow() {
  const TimeNotation& notation = content.GetNotation();
  const bool isPlaying = player && player->IsPlaying();
  const auto symbol = isPlaying ? TransportButton::Symbol::kStop : TransportButton::Symbol::kPlay;
  if (playButton->GetSymbol() != symbol) playButton->Show(symbol, isPlaying ? "Stop" : "Play");
  ShowSpeed();
  if (!player) {
    timeField->clear();
    length->clear();
    return;
  }
  length->setText(WriteTime(content.GetEnd(), notation));
  // What the user is typing is not taken away.
  if (timeField->hasFocus() && timeField->isModified()) return;
  const QString now = WriteTime(notation.zeroPoint + player->GetCurrentPosition(), notation);
  if (timeField->text() != now) timeField->setText(now);
}

void TransportBar::ShowSpeed() {
  const int now = player ? player->GetSpeed() : 0;
  const QString sign = now < 0 ? "−" : "";
  speed->setText(now == 0 || now == 1 ? QString() : sign + QString("%1×").arg(std::abs(now)));
}

void TransportBar::TakeTypedTime() {
  const std::string text = timeField->text().toStdString();
  timeField->setModified(false);
  if (!player) return;
  const auto time = ReadTimeEntry(text, content.GetNotation(), player->GetCurrentPosition());
  if (time) MoveTo(*time);
  Follow();
  timeField->selectAll();
}

void TransportBar::MoveTo(TickTime time) {
  if (player) player->SetCurrentPosition(std::clamp(time, TickTime(), qelmediatypes::kOneHundredHours));
}

void TransportBar::PlayOrStop() {
  if (!player) return;
  if (player->IsPlaying()) {
    player->Stop();
  } else {
    player->Play(1);
  }
}

void TransportBar::Shuttle(int direction) {
  if (!player) return;
  const int now = player->GetSpeed();
  const bool goesThatWay = now * direction > 0;
  player->Play(direction * (goesThatWay ? std::min(2 * std::abs(now), kFastestShuttle) : 1));
}

void TransportBar::Stop() {
  if (player) player->Stop();
}

void TransportBar::StepFrames(std::int64_t frames) {
  if (!player) return;
  player->Stop();
  const TickTime duration = content.GetFrameDuration();
  if (duration.GetTicks() < 1) return;
  const std::int64_t frame = player->GetCurrentPosition().ToFrame64(duration) + frames;
  MoveTo(TickTime(std::max<std::int64_t>(frame, 0) * duration.GetTicks()));
}

void TransportBar::GoToCut(int direction) {
  if (!player) return;
  const TickTime now = player->GetCurrentPosition();
  const auto cut = direction < 0 ? content.FindCutBefore(now) : content.FindCutAfter(now);
  if (cut) MoveTo(*cut);
}

void TransportBar::GoToStart() {
  MoveTo(TickTime());
}

void TransportBar::GoToEnd() {
  MoveTo(content.GetEnd());
}

}  // namespace standalone
