#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/desktop/TransportButton.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/MessageListener.h"
#include "standalone/timeline/TimelineContent.h"

class QLabel;
class QLineEdit;

namespace standalone {

/// Moves the playhead of a sequence: a field for times, which Enter takes and Escape puts back, play
/// and stop, steps to frames and cuts, and the shuttle. Disabled without a player. Follows the player
/// by its messages. [main-thread]
class STANDALONE_API TransportBar final : public QWidget {
 public:
  using Sequence = qelcore::Ref<BE::ISequence>;

  explicit TransportBar(QWidget* parent = nullptr);
  ~TransportBar() override;

  void SetSequence(const Sequence& newSequence);

  void PlayOrStop();
  /// Plays forwards (1) or backwards (-1): each call in the direction that plays doubles the speed up
  /// to eight times, the first one in the other direction plays that way at normal speed.
  void Shuttle(int direction);
  void Stop();
  void StepFrames(std::int64_t frames);
  void GoToCut(int direction);
  void GoToStart();
  void GoToEnd();

  QLineEdit& GetTimeField() const noexcept { return *timeField; }
  TransportButton& GetPlayButton() const noexcept { return *playButton; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Subscribe(bool isSubscribing);
  void Follow();
  void TakeTypedTime();
  void MoveTo(qelmediatypes::TickTime time);
  TransportButton* MakeButton(TransportButton::Symbol symbol, const QString& name,
                              std::function<void()> action);
  void SetUpTexts();
  void ShowSpeed();

  Sequence sequence;
  qelcore::Ref<PlayerNode> player;
  TimelineContent content;
  std::shared_ptr<MessageListener> listener;
  QLineEdit* timeField;
  QLabel* length;
  QLabel* speed;
  TransportButton* playButton = nullptr;
};

}  // namespace standalone
