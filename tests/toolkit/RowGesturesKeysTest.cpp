#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/qelui/Events.h"
#include "toolkit/RowGesturesFixture.h"

namespace {

using qelui::ui::kModifierControl;
using qelui::ui::kModifierShift;
using standalone::RowMove;
using testing::ElementsAre;
using testing::Optional;

constexpr std::uint32_t kBoth = kModifierShift | kModifierControl;

TEST_F(RowGesturesOfMany, ArrowKeysSelectTheNextAndTheLastRow) {
  Click(3);
  EXPECT_TRUE(Move(RowMove::kDown));
  EXPECT_THAT(GetSelected(), ElementsAre(4));
  Move(RowMove::kUp);
  Move(RowMove::kUp);
  EXPECT_THAT(GetSelected(), ElementsAre(2));
}

TEST_F(RowGesturesOfMany, ArrowKeysStopAtTheEnds) {
  Click(0);
  EXPECT_FALSE(Move(RowMove::kUp));
  EXPECT_THAT(GetSelected(), ElementsAre(0));
  Click(kRowCount - 1);
  EXPECT_FALSE(Move(RowMove::kDown));
  EXPECT_THAT(GetSelected(), ElementsAre(kRowCount - 1));
}

TEST_F(RowGesturesOfMany, PageKeysPassAPageAndStopAtTheEnds) {
  Click(3);
  Move(RowMove::kPageDown);
  EXPECT_THAT(GetSelected(), ElementsAre(3 + kPageRows));
  Move(RowMove::kPageUp);
  EXPECT_THAT(GetSelected(), ElementsAre(3));
  Move(RowMove::kPageUp);
  EXPECT_THAT(GetSelected(), ElementsAre(0));
  Click(kRowCount - 2);
  Move(RowMove::kPageDown);
  EXPECT_THAT(GetSelected(), ElementsAre(kRowCount - 1));
}

TEST_F(RowGesturesOfMany, HomeAndEndSelectTheFirstAndTheLastRow) {
  Click(3);
  Move(RowMove::kLast);
  EXPECT_THAT(GetSelected(), ElementsAre(kRowCount - 1));
  Move(RowMove::kFirst);
  EXPECT_THAT(GetSelected(), ElementsAre(0));
}

TEST_F(RowGesturesOfMany, TheFirstKeyOfATableGoesToItsFirstRow) {
  for (const RowMove move : {RowMove::kUp, RowMove::kDown, RowMove::kPageUp, RowMove::kPageDown}) {
    gestures.Reset();
    Move(move);
    EXPECT_THAT(GetSelected(), ElementsAre(0));
  }
}

TEST_F(RowGesturesOfMany, TheEndKeyGoesToTheLastRowFromNowhereToo) {
  Move(RowMove::kLast);
  EXPECT_THAT(GetSelected(), ElementsAre(kRowCount - 1));
}

TEST_F(RowGesturesOfMany, KeysDoNothingInATableWithoutRows) {
  EXPECT_FALSE(gestures.Move(selection, RowMove::kDown, kPlain, 0, kPageRows));
  EXPECT_FALSE(gestures.Move(selection, RowMove::kLast, kPlain, 0, kPageRows));
  EXPECT_EQ(gestures.GetCurrent(), std::nullopt);
  EXPECT_FALSE(Space());
}

TEST_F(RowGesturesOfMany, KeysWithShiftSelectTheRangeFromTheAnchor) {
  Click(3);
  Move(RowMove::kDown, kModifierShift);
  EXPECT_TRUE(Move(RowMove::kDown, kModifierShift));
  EXPECT_THAT(GetSelected(), ElementsAre(3, 4, 5));
  Move(RowMove::kUp, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(3, 4));
  Move(RowMove::kFirst, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(0, 1, 2, 3));
}

TEST_F(RowGesturesOfMany, KeysWithControlMoveWithoutSelecting) {
  Click(3);
  EXPECT_FALSE(Move(RowMove::kDown, kModifierControl));
  EXPECT_FALSE(Move(RowMove::kDown, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
  EXPECT_THAT(gestures.GetCurrent(), Optional(5));
}

TEST_F(RowGesturesOfMany, ARangeAfterMovingWithControlStillBeginsAtTheAnchor) {
  Click(3);
  Move(RowMove::kDown, kModifierControl);
  Move(RowMove::kDown, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(3, 4, 5));
}

TEST_F(RowGesturesOfMany, KeysWithShiftAndControlAddTheRange) {
  Click(3);
  Click(10, kModifierControl);
  Move(RowMove::kDown, kBoth);
  EXPECT_THAT(GetSelected(), ElementsAre(3, 10, 11));
}

TEST_F(RowGesturesOfMany, ARangeByKeysFromNowhereBeginsAtTheFirstRow) {
  Move(RowMove::kDown, kModifierShift);
  Move(RowMove::kDown, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(0, 1));
}

TEST_F(RowGesturesOfMany, ARangeAfterOnlyMovingBeginsWhereTheMoveEnded) {
  Move(RowMove::kDown, kModifierControl);
  Move(RowMove::kDown, kModifierControl);
  Move(RowMove::kDown, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(1, 2));
}

TEST_F(RowGesturesOfMany, SpaceSelectsTheCurrentRowAlone) {
  Click(3);
  Move(RowMove::kDown, kModifierControl);
  EXPECT_TRUE(Space());
  EXPECT_THAT(GetSelected(), ElementsAre(4));
}

TEST_F(RowGesturesOfMany, SpaceWithControlTogglesTheCurrentRow) {
  Click(3);
  Move(RowMove::kDown, kModifierControl);
  Move(RowMove::kDown, kModifierControl);
  EXPECT_TRUE(Space(kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3, 5));
  EXPECT_TRUE(Space(kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(RowGesturesOfMany, SelectingAllSelectsEachRow) {
  EXPECT_TRUE(gestures.SelectAll(selection, kRowCount));
  EXPECT_EQ(selection.Count(), kRowCount);
  EXPECT_FALSE(gestures.SelectAll(selection, kRowCount));
  EXPECT_FALSE(gestures.SelectAll(selection, 0));
}

TEST_F(RowGesturesOfMany, SelectingAllKeepsTheCurrentRow) {
  Click(3);
  gestures.SelectAll(selection, kRowCount);
  EXPECT_THAT(gestures.GetCurrent(), Optional(3));
}

TEST_F(RowGesturesOfOne, KeysMoveTheSelectionWhateverKeysAreHeld) {
  Click(3);
  Move(RowMove::kDown, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(4));
  Move(RowMove::kDown, kModifierControl);
  EXPECT_THAT(GetSelected(), ElementsAre(5));
}

TEST_F(RowGesturesOfOne, NotAllCanBeSelected) {
  Click(3);
  EXPECT_FALSE(gestures.SelectAll(selection, kRowCount));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

}  // namespace
