#include "standalone/desktop/TimelineView.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "host/MZ/Messages.h"
#include "standalone/desktop/TimelinePainter.h"
#include "standalone/runtime/StationRegistry.h"

namespace standalone {
namespace {

using drafts::Frame;
using qelmediatypes::TickTime;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr ZSL::Color kLabel{200, 100, 40, 255};
constexpr int kNames = TimelinePicture::kNamesWidth;
constexpr int kRuler = TimelinePicture::kRulerHeight;

/// A timeline of 200 frames, 1050 pixels wide, so that a frame takes five of them.
class Timeline : public DesktopFixture {
 protected:
  static constexpr int kPixelsPerFrame = 5;

  Timeline() {
    view->resize(kNames + 1050, 260);
    Show(*view);
    view->SetSequence(sequence);
    view->SetSelectionWatcher([this](std::size_t count) { counts.push_back(count); });
  }
  /// Video: A over [0, 50), a gap, B over [60, 100), C over [100, 200). Audio: S over [0, 200).
  static SequenceDraft MakeDraft() {
    auto draft = drafts::MakeSequence("Cut");
    auto& v1 = drafts::AddTrack(draft);
    for (const auto& [name, start, end] : {std::tuple("A", 0, 50), {"B", 60, 100}, {"C", 100, 200}}) {
      drafts::AddClip(v1, name, start, end).labelColor = kLabel;
    }
    drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "S", 0, 200).labelColor = kLabel;
    return draft;
  }
  PlayerNode& GetPlayer() const { return *FindPlayer(sequence); }
  /// The middle of a frame on a lane.
  QPoint At(std::size_t lane, int frame) const {
    return view->FindPlace(lane, Frame(frame)) + QPoint(kPixelsPerFrame / 2, 0);
  }
  static QPoint OnRuler(QPoint place) { return {place.x(), kRuler / 2}; }
  void Click(QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, place);
  }
  void Wheel(QPoint angle, Qt::KeyboardModifiers modifiers, QPoint place) {
    QWheelEvent event(place, view->viewport()->mapToGlobal(place), QPoint(), angle, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
  }
  bool IsTaken(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(view.get(), &event);
    return event.isAccepted();
  }
  std::vector<std::string> GetSelected() const {
    std::vector<std::string> names;
    for (const auto& item : view->GetSelection().GetItems()) {
      for (std::size_t lane = 0; lane < 2; ++lane) {
        const auto found = view->GetContent().FindItemAt(lane, item->GetStart());
        if (found && found->trackItem == item)
          names.emplace_back(found->isGap ? "gap" : found->name.View());
      }
    }
    return names;
  }
  qelcore::Ref<BE::ITrackItem> FindItem(std::size_t lane, int frame) const {
    return view->GetContent().FindItemAt(lane, Frame(frame))->trackItem;
  }
  QColor GetPixel(QPoint place) { return Grab(*view->viewport()).pixelColor(place); }
  std::set<QRgb> GetColors(const QRect& area) {
    const QImage image = Grab(*view->viewport());
    std::set<QRgb> colors;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) colors.insert(image.pixel(x, y));
    }
    return colors;
  }
  /// Inside a frame's stretch of a lane, below its middle, where names do not reach.
  QRect GetFoot(std::size_t lane, int frame) const {
    return {At(lane, frame) + QPoint(-2, 10), QSize(4, 4)};
  }

  Sequence sequence = OpenSequence(MakeDraft());
  std::unique_ptr<TimelineView> view = std::make_unique<TimelineView>();
  std::vector<std::size_t> counts;
};

TEST_F(Timeline, AllOfASequenceIsShownAtFirst) {
  EXPECT_EQ(view->GetScale().GetStart(), TickTime());
  EXPECT_GE(view->GetScale().GetEnd(), Frame(200));
  EXPECT_LT(view->GetScale().GetEnd(), Frame(220));
  EXPECT_EQ(At(0, 10).x() - At(0, 0).x(), 10 * kPixelsPerFrame);
}

TEST_F(Timeline, AClipHasItsLabelColourAndAGapHasNot) {
  const auto clip = GetColors(GetFoot(0, 80));
  const auto gap = GetColors(GetFoot(0, 55));
  EXPECT_EQ(clip.size(), 1U);
  EXPECT_EQ(gap.size(), 1U);
  const QColor color(*clip.begin());
  EXPECT_GT(color.red(), 150);
  EXPECT_LT(color.blue(), 60);
  EXPECT_EQ(QColor(*gap.begin()), ToQColor(GetThemeColors().rowBackground));
}

TEST_F(Timeline, ColoursAreThoseOfTheTheme) {
  const ThemeChoice light(ThemeName::kLight);
  EXPECT_EQ(QColor(*GetColors(GetFoot(0, 55)).begin()), ToQColor(GetThemeColors().rowBackground));
  EXPECT_EQ(GetPixel({kNames + 2, 240}), ToQColor(GetThemeColors().tabBackground));
}

TEST_F(Timeline, DisabledAndOfflineClipsAreMarked) {
  auto draft = MakeDraft();
  draft.tracks[0].items[1].clip->isDisabled = true;
  draft.tracks[0].items[2].clip->media.isOffline = true;
  view->SetSequence(OpenSequence(std::move(draft)));
  const auto find = [this](int frame) { return GetColors(QRect(At(0, frame), QSize(20, 15))); };
  EXPECT_EQ(GetColors(GetFoot(0, 40)).size(), 1U);
  EXPECT_GT(find(80).size(), 1U);
  EXPECT_GT(find(150).size(), 1U);
  EXPECT_NE(find(80), find(150));
}

TEST_F(Timeline, ATransitionIsAWedgeAtItsCut) {
  auto draft = MakeDraft();
  draft.tracks[0].items[1].clip->tailTransition = TransitionDraft{"Dissolve", false};
  view->SetSequence(OpenSequence(std::move(draft)));
  const QRect top(view->FindPlace(0, Frame(100)) + QPoint(-6, -18), QSize(4, 2));
  EXPECT_THAT(GetColors(top), Not(testing::Contains(*GetColors(GetFoot(0, 80)).begin())));
}

TEST_F(Timeline, TheSelectedClipHasAFrame) {
  const QPoint edge(view->FindPlace(0, Frame(60)).x() + 20, kRuler + 1);
  const QColor frame = ToQColor(GetThemeColors().text);
  EXPECT_NE(GetPixel(edge), frame);
  Click(At(0, 80));
  EXPECT_EQ(GetPixel(edge), frame);
}

TEST_F(Timeline, ThePlayheadIsALineAtItsTime) {
  GetPlayer().SetCurrentPosition(Frame(30));
  const QPoint place(view->FindPlace(0, Frame(30)).x(), kRuler + 60);
  const QColor accent = ToQColor(GetThemeColors().accent);
  EXPECT_EQ(GetPixel(place), accent);
  EXPECT_NE(GetPixel(place + QPoint(1, 0)), accent);
  EXPECT_NE(GetPixel(place - QPoint(1, 0)), accent);
}

TEST_F(Timeline, AClickOnTheRulerMovesThePlayheadToAWholeFrame) {
  Click(OnRuler(At(0, 42)));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), Frame(42));
  EXPECT_EQ(view->GetPosition(), Frame(42));
  EXPECT_THAT(counts, IsEmpty());
}

TEST_F(Timeline, DraggingOnTheRulerTakesThePlayheadAlong) {
  QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, OnRuler(At(0, 10)));
  QTest::mouseMove(view->viewport(), OnRuler(At(0, 20)));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), Frame(20));
  QTest::mouseMove(view->viewport(), {0, 200});
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), TickTime());
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, {0, 200});
  QTest::mouseMove(view->viewport(), OnRuler(At(0, 30)));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), TickTime());
}

TEST_F(Timeline, HeldBeyondAnEdgeThePlayheadDragsTheTimelineAlong) {
  for (int i = 0; i < 3; ++i) view->ZoomIn();
  const TickTime before = view->GetScale().GetEnd();
  QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, {kNames + 40, 5});
  QTest::mouseMove(view->viewport(), {view->viewport()->width() + 30, 5});
  EXPECT_TRUE(WaitFor([&] { return GetPlayer().GetCurrentPosition() > before; }));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, {kNames + 40, 5});
}

TEST_F(Timeline, AClickSelectsWhatLiesUnderIt) {
  Click(At(0, 10));
  EXPECT_THAT(GetSelected(), ElementsAre("A"));
  Click(At(1, 10));
  EXPECT_THAT(GetSelected(), ElementsAre("S"));
  Click(At(0, 55));
  EXPECT_THAT(GetSelected(), ElementsAre("gap"));
  EXPECT_THAT(counts, ElementsAre(1U, 1U, 1U));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), TickTime());
}

TEST_F(Timeline, ControlAndShiftAddToTheSelectionAndTakeOut) {
  Click(At(0, 10));
  Click(At(0, 80), Qt::ControlModifier);
  Click(At(1, 80), Qt::ShiftModifier);
  EXPECT_THAT(GetSelected(), ElementsAre("A", "B", "S"));
  Click(At(0, 10), Qt::ControlModifier);
  EXPECT_THAT(GetSelected(), ElementsAre("B", "S"));
  EXPECT_THAT(counts, ElementsAre(1U, 2U, 3U, 2U));
}

TEST_F(Timeline, AClickOnNothingClearsTheSelection) {
  Click(At(0, 10));
  Click({kNames + 20, 240}, Qt::ControlModifier);
  EXPECT_THAT(GetSelected(), ElementsAre("A"));
  Click({kNames + 20, 240});
  EXPECT_THAT(GetSelected(), IsEmpty());
}

TEST_F(Timeline, ClicksOnTheNamesAndByOtherButtonsSelectNothing) {
  Click(At(0, 10));
  Click({20, At(0, 10).y()});
  QTest::mouseClick(view->viewport(), Qt::RightButton, Qt::NoModifier, At(0, 80));
  EXPECT_THAT(GetSelected(), ElementsAre("A"));
}

TEST_F(Timeline, ADoubleClickGoesToTheBeginningOfAClip) {
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 80));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), Frame(60));
}

TEST_F(Timeline, ADoubleClickOnTheRulerMovesThePlayheadThere) {
  view->resize(view->width(), 80);
  view->verticalScrollBar()->setValue(20);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, OnRuler(At(0, 42)));
  EXPECT_EQ(GetPlayer().GetCurrentPosition(), Frame(42));
}

TEST_F(Timeline, WhatAPanelActivatesIsSelected) {
  const auto activate = [](std::vector<MZ::ActivatedTrackItem> items) {
    qelcore::messaging::BroadcastMessageOnMainThread(MZ::kStation_TrackItemActivation,
                                                     MZ::TrackItemActivationMessage(std::move(items)));
  };
  activate({{FindItem(0, 10), sequence}, {FindItem(1, 10), sequence}});
  EXPECT_THAT(GetSelected(), ElementsAre("A", "S"));
  const auto other = AddSequence(drafts::MakeOneClip("Other"));
  activate({{TimelineContent(other).FindItemAt(0, Frame(0))->trackItem, other}});
  EXPECT_THAT(GetSelected(), ElementsAre("A", "S"));
  activate({});
  EXPECT_THAT(GetSelected(), IsEmpty());
  EXPECT_THAT(counts, ElementsAre(2U, 0U));
}

TEST_F(Timeline, NewContentOfTheSequenceIsShown) {
  auto draft = MakeDraft();
  drafts::AddClip(drafts::AddTrack(draft), "Over", 0, 20);
  host->GetProject().ReplaceSequence(sequence, std::move(draft));
  host.Settle();
  EXPECT_EQ(view->GetContent().GetLanes().size(), 3U);
  EXPECT_EQ(view->GetContent().FindItemAt(0, Frame(5))->name.View(), "Over");
}

TEST_F(Timeline, WhatStaysWhereItWasStaysSelectedWhenTheContentIsReplaced) {
  Click(At(0, 10));
  Click(At(0, 80), Qt::ControlModifier);
  Click(At(0, 55), Qt::ControlModifier);
  auto draft = MakeDraft();
  drafts::AddClip(drafts::AddTrack(draft), "Over", 0, 50);
  draft.tracks[0].items[1].end = Frame(90);
  host->GetProject().ReplaceSequence(sequence, std::move(draft));
  host.Settle();
  ASSERT_EQ(view->GetSelection().Count(), 2U);
  const auto& items = view->GetSelection().GetItems();
  EXPECT_EQ(items[0], FindItem(1, 10));
  EXPECT_EQ(items[1], FindItem(1, 55));
  EXPECT_EQ(counts.back(), 2U);
}

TEST_F(Timeline, APlayheadThatLeavesTheViewIsFollowed) {
  for (int i = 0; i < 3; ++i) view->ZoomIn();
  GetPlayer().SetCurrentPosition(Frame(180));
  EXPECT_LE(view->GetScale().GetStart(), Frame(180));
  EXPECT_GE(view->GetScale().GetEnd(), Frame(180));
  GetPlayer().SetCurrentPosition(Frame(3));
  EXPECT_LE(view->GetScale().GetStart(), Frame(3));
}

TEST_F(Timeline, ControlAndWheelZoomAroundThePointer) {
  const QPoint place = At(0, 100);
  Wheel({0, 120}, Qt::ControlModifier, place);
  EXPECT_LT(view->GetScale().GetEnd(), Frame(190));
  EXPECT_NEAR(At(0, 100).x(), place.x(), kPixelsPerFrame);
  Wheel({0, -120}, Qt::ControlModifier, place);
  EXPECT_NEAR(At(0, 10).x() - At(0, 0).x(), 10 * kPixelsPerFrame, 1);
}

TEST_F(Timeline, TheWheelScrollsAndSoDoTheScrollBars) {
  view->ZoomIn();
  Wheel({0, -120}, Qt::NoModifier, At(0, 10));
  EXPECT_GT(view->GetScale().GetStart(), TickTime());
  Wheel({0, 1200}, Qt::NoModifier, At(0, 10));
  EXPECT_EQ(view->GetScale().GetStart(), TickTime());
  view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->maximum());
  EXPECT_GE(view->GetScale().GetEnd(), Frame(200));
  EXPECT_GT(view->GetScale().GetStart(), Frame(80));
}

TEST_F(Timeline, TracksThatFindNoRoomAreScrolledTo) {
  view->resize(view->width(), 90);
  ASSERT_GT(view->verticalScrollBar()->maximum(), 0);
  const int before = At(1, 0).y();
  Wheel({0, -1200}, Qt::ShiftModifier, At(0, 10));
  EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
  EXPECT_EQ(At(1, 0).y(), before - view->verticalScrollBar()->maximum());
  Click(At(1, 10));
  EXPECT_THAT(GetSelected(), ElementsAre("S"));
}

TEST_F(Timeline, APlayheadAtTheEndOfTimeIsReachedAtTheClosestScale) {
  for (int i = 0; i < 40; ++i) view->ZoomIn();
  GetPlayer().SetCurrentPosition(qelmediatypes::kOneHundredHours);
  EXPECT_GT(view->GetScale().GetEnd(), qelmediatypes::kOneHundredHours - Frame(30));
  EXPECT_GT(view->horizontalScrollBar()->value(), 0);
  view->horizontalScrollBar()->setValue(0);
  EXPECT_EQ(view->GetScale().GetStart(), TickTime());
}

TEST_F(Timeline, KeysZoom) {
  const double all = view->GetScale().GetTicksPerPixel();
  EXPECT_TRUE(IsTaken(Qt::Key_Plus));
  EXPECT_DOUBLE_EQ(view->GetScale().GetTicksPerPixel(), all / 2);
  EXPECT_TRUE(IsTaken(Qt::Key_Equal));
  EXPECT_TRUE(IsTaken(Qt::Key_Minus));
  EXPECT_DOUBLE_EQ(view->GetScale().GetTicksPerPixel(), all / 2);
  EXPECT_TRUE(IsTaken(Qt::Key_Backslash));
  EXPECT_DOUBLE_EQ(view->GetScale().GetTicksPerPixel(), all);
}

TEST_F(Timeline, EnterSelectsTheClipsAtThePlayheadAndEscapeNothing) {
  GetPlayer().SetCurrentPosition(Frame(70));
  EXPECT_TRUE(IsTaken(Qt::Key_Return));
  EXPECT_THAT(GetSelected(), ElementsAre("B", "S"));
  GetPlayer().SetCurrentPosition(Frame(55));
  EXPECT_TRUE(IsTaken(Qt::Key_Enter, Qt::KeypadModifier));
  EXPECT_THAT(GetSelected(), ElementsAre("S"));
  EXPECT_TRUE(IsTaken(Qt::Key_Escape));
  EXPECT_THAT(GetSelected(), IsEmpty());
  EXPECT_FALSE(IsTaken(Qt::Key_Escape));
}

TEST_F(Timeline, KeysOfTheTransportAreLeftToTheWindow) {
  for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home,
                        Qt::Key_End, Qt::Key_J, Qt::Key_K, Qt::Key_L, Qt::Key_Space}) {
    EXPECT_FALSE(IsTaken(key)) << key;
  }
  EXPECT_FALSE(IsTaken(Qt::Key_Plus, Qt::ControlModifier));
}

TEST_F(Timeline, AnotherSequenceIsShownWithNothingSelected) {
  Click(At(0, 10));
  const auto station = GetPlayer().GetStationID();
  const auto other = OpenSequence(drafts::MakeOneClip("Other"));
  view->SetSequence(other);
  EXPECT_EQ(view->GetSequence(), other);
  EXPECT_EQ(view->GetSelection().Count(), 0U);
  EXPECT_EQ(counts.back(), 0U);
  EXPECT_EQ(host->GetRuntime().GetStations().CountListeners(station), 0U);
}

TEST_F(Timeline, WithoutASequenceNothingIsShownAndNothingHappens) {
  view->SetSequence({});
  EXPECT_TRUE(view->GetContent().GetLanes().empty());
  Click(At(0, 10));
  Click({kNames + 30, 5});
  EXPECT_TRUE(IsTaken(Qt::Key_Return));
  Wheel({0, 120}, Qt::ControlModifier, {kNames + 30, 5});
  EXPECT_EQ(view->GetPosition(), TickTime());
  Grab(*view->viewport());
}

TEST_F(Timeline, ItTellsAssistiveProgramsWhatItShows) {
  GetPlayer().SetCurrentPosition(Frame(30));
  Click(At(0, 10));
  const auto* const face = QAccessible::queryAccessibleInterface(view.get());
  EXPECT_EQ(ToText(face->text(QAccessible::Name)), "Timeline");
  EXPECT_EQ(ToText(face->text(QAccessible::Description)),
            "2 tracks, playhead at 00:00:01:05, 1 items selected");
}

TEST_F(Timeline, AViewThatIsGoneIsToldNothing) {
  view.reset();
  GetPlayer().SetCurrentPosition(Frame(30));
  qelcore::messaging::BroadcastMessageOnMainThread(MZ::kStation_TrackItemActivation,
                                                   MZ::TrackItemActivationMessage({}));
  EXPECT_THAT(counts, IsEmpty());
}

}  // namespace
}  // namespace standalone
