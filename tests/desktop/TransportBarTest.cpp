#include "standalone/desktop/TransportBar.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <memory>
#include <string>
#include <utility>

#include "desktop/DesktopFixture.h"

namespace standalone {
namespace {

using drafts::Frame;
using qelmediatypes::TickTime;
using Symbol = TransportButton::Symbol;

/// A transport for a sequence of cuts at 0, 50, 60, 100 and 200, counted from 01:00:00:00.
class Transport : public DesktopFixture {
 protected:
  Transport() {
    Show(window);
    bar->SetSequence(sequence);
  }
  static SequenceDraft MakeDraft() {
    auto draft = drafts::MakeSequence("Cut");
    draft.zeroPoint = Frame(90'000);
    auto& v1 = drafts::AddTrack(draft);
    drafts::AddClip(v1, "A", 0, 50);
    drafts::AddClip(v1, "B", 60, 100);
    drafts::AddClip(v1, "C", 100, 200);
    return draft;
  }
  PlayerNode& GetPlayer() const { return *FindPlayer(sequence); }
  TickTime GetPosition() const { return GetPlayer().GetCurrentPosition(); }
  QLineEdit& GetField() const { return bar->GetTimeField(); }
  std::string GetText() const { return ToText(GetField().text()); }
  void Type(const char* text) {
    GetField().setFocus();
    GetField().selectAll();
    QTest::keyClicks(&GetField(), text);
  }
  void Enter(const char* text) {
    Type(text);
    QTest::keyClick(&GetField(), Qt::Key_Return);
  }
  std::string FindLabel(const char* description) const {
    for (const QLabel* const label : bar->findChildren<QLabel*>()) {
      if (label->accessibleDescription() == description) return ToText(label->text());
    }
    return "no such label";
  }
  void Press(const char* name) const {
    for (auto* const button : bar->findChildren<TransportButton*>()) {
      if (button->accessibleName() == name) return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << name;
  }

  Sequence sequence = OpenSequence(MakeDraft());
  QWidget window;
  TransportBar* bar = new TransportBar(&window);
};

TEST_F(Transport, TheFieldShowsThePlayheadInTheSequencesCounting) {
  EXPECT_EQ(GetText(), "01:00:00:00");
  GetPlayer().SetCurrentPosition(Frame(30));
  EXPECT_EQ(GetText(), "01:00:01:05");
  EXPECT_EQ(FindLabel("Length of the sequence"), "00:00:08:00");
}

TEST_F(Transport, ATypedTimeMovesThePlayheadThere) {
  Enter("01:00:02:00");
  EXPECT_EQ(GetPosition(), Frame(50));
  EXPECT_EQ(GetText(), "01:00:02:00");
  EXPECT_EQ(ToText(GetField().selectedText()), GetText());
}

TEST_F(Transport, ASignMovesByATime) {
  GetPlayer().SetCurrentPosition(Frame(50));
  Enter("+10");
  EXPECT_EQ(GetPosition(), Frame(60));
  Enter("-20");
  EXPECT_EQ(GetPosition(), Frame(40));
  Enter("-10:00:00:00");
  EXPECT_EQ(GetPosition(), TickTime());
}

TEST_F(Transport, NonsenseLeavesThePlayheadAndShowsItsTimeAgain) {
  GetPlayer().SetCurrentPosition(Frame(50));
  Enter("soon");
  EXPECT_EQ(GetPosition(), Frame(50));
  EXPECT_EQ(GetText(), "01:00:02:00");
}

TEST_F(Transport, WhatIsBeingTypedIsNotOverwritten) {
  Type("01:0");
  GetPlayer().SetCurrentPosition(Frame(30));
  EXPECT_EQ(GetText(), "01:0");
  QTest::keyClick(&GetField(), Qt::Key_Escape);
  EXPECT_EQ(GetText(), "01:00:01:05");
  EXPECT_EQ(GetPosition(), Frame(30));
}

TEST_F(Transport, LeavingTheFieldShowsThePlayheadAgain) {
  Type("01:0");
  bar->GetPlayButton().setFocus();
  EXPECT_EQ(GetText(), "01:00:00:00");
}

TEST_F(Transport, TheShuttleGoesFasterWithEachCallAndTurnsAround) {
  for (const int speed : {1, 2, 4, 8, 8}) {
    bar->Shuttle(1);
    EXPECT_EQ(GetPlayer().GetSpeed(), speed);
  }
  for (const int speed : {-1, -2}) {
    // From the very beginning there is nothing to play backwards.
    GetPlayer().SetCurrentPosition(Frame(100));
    bar->Shuttle(-1);
    EXPECT_EQ(GetPlayer().GetSpeed(), speed);
  }
  EXPECT_EQ(FindLabel("Speed of playback"), "−2×");
  bar->Stop();
  EXPECT_EQ(GetPlayer().GetSpeed(), 0);
  EXPECT_EQ(FindLabel("Speed of playback"), "");
}

TEST_F(Transport, PlayBecomesStopWhileThePlayerPlays) {
  QTest::mouseClick(&bar->GetPlayButton(), Qt::LeftButton);
  EXPECT_EQ(GetPlayer().GetSpeed(), 1);
  EXPECT_EQ(bar->GetPlayButton().GetSymbol(), Symbol::kStop);
  EXPECT_EQ(ToText(bar->GetPlayButton().accessibleName()), "Stop");
  GetPlayer().Stop();
  EXPECT_EQ(bar->GetPlayButton().GetSymbol(), Symbol::kPlay);
  bar->PlayOrStop();
  bar->PlayOrStop();
  EXPECT_FALSE(GetPlayer().IsPlaying());
}

TEST_F(Transport, StepsGoToWholeFramesAndStopPlayback) {
  GetPlayer().SetCurrentPosition(Frame(10) + TickTime(7));
  bar->Shuttle(1);
  bar->StepFrames(1);
  EXPECT_FALSE(GetPlayer().IsPlaying());
  EXPECT_EQ(GetPosition(), Frame(11));
  bar->StepFrames(-5);
  EXPECT_EQ(GetPosition(), Frame(6));
  bar->StepFrames(-10);
  EXPECT_EQ(GetPosition(), TickTime());
}

TEST_F(Transport, CutsAreGoneToInBothDirections) {
  for (const int frame : {50, 60, 100, 200, 200}) {
    bar->GoToCut(1);
    EXPECT_EQ(GetPosition(), Frame(frame));
  }
  for (const int frame : {100, 60, 50, 0, 0}) {
    bar->GoToCut(-1);
    EXPECT_EQ(GetPosition(), Frame(frame));
  }
}

TEST_F(Transport, ButtonsGoToTheEndsAndByFrames) {
  Press("Go to end");
  EXPECT_EQ(GetPosition(), Frame(200));
  Press("Step back one frame");
  EXPECT_EQ(GetPosition(), Frame(199));
  Press("Go to start");
  EXPECT_EQ(GetPosition(), TickTime());
  Press("Step on one frame");
  EXPECT_EQ(GetPosition(), Frame(1));
}

TEST_F(Transport, WithoutAPlayerItIsDisabledAndEmpty) {
  const TransportBar fresh;
  EXPECT_FALSE(fresh.isEnabled());
  for (const Sequence& none : {Sequence(), AddSequence(drafts::MakeOneClip("Closed"))}) {
    bar->SetSequence(none);
    EXPECT_FALSE(bar->isEnabled());
    EXPECT_EQ(GetText(), "");
    EXPECT_EQ(FindLabel("Length of the sequence"), "");
    bar->PlayOrStop();
    bar->Shuttle(1);
    bar->Stop();
    bar->StepFrames(1);
    bar->GoToCut(1);
    bar->GoToEnd();
  }
  EXPECT_EQ(GetPosition(), TickTime());
  bar->SetSequence(sequence);
  EXPECT_TRUE(bar->isEnabled());
}

TEST_F(Transport, NewContentOfTheSequenceIsFollowed) {
  auto draft = MakeDraft();
  draft.tracks[0].items.pop_back();
  host->GetProject().ReplaceSequence(sequence, std::move(draft));
  host.Settle();
  EXPECT_EQ(FindLabel("Length of the sequence"), "00:00:04:00");
}

TEST_F(Transport, EverythingInItIsNamedAndReachedByKeyboard) {
  int count = 0;
  for (QWidget* const child : bar->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (child->focusPolicy() == Qt::NoFocus) continue;
    ++count;
    EXPECT_TRUE(child->focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(child)->text(QAccessible::Name).isEmpty());
  }
  EXPECT_EQ(count, 6);
}

TEST_F(Transport, ItsButtonsKeepOnlyTheKeysThatPressThem) {
  for (const auto& [key, isTaken] : {std::pair(Qt::Key_Space, true),
                                     {Qt::Key_Left, false},
                                     {Qt::Key_Up, false},
                                     {Qt::Key_J, false}}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.setAccepted(true);
    QApplication::sendEvent(&bar->GetPlayButton(), &event);
    EXPECT_EQ(event.isAccepted(), isTaken) << key;
  }
}

TEST_F(Transport, EverySymbolLooksDifferent) {
  std::vector<QImage> pictures;
  for (const auto symbol : {Symbol::kToStart, Symbol::kStepBack, Symbol::kPlay, Symbol::kStop,
                            Symbol::kStepForward, Symbol::kToEnd}) {
    TransportButton button(symbol, "name");
    button.resize(button.sizeHint());
    pictures.push_back(Grab(button));
    for (std::size_t i = 0; i + 1 < pictures.size(); ++i) EXPECT_NE(pictures[i], pictures.back());
  }
}

TEST_F(Transport, ABarThatIsGoneIsToldNothing) {
  delete bar;
  GetPlayer().SetCurrentPosition(Frame(30));
  EXPECT_EQ(GetPosition(), Frame(30));
}

}  // namespace
}  // namespace standalone
