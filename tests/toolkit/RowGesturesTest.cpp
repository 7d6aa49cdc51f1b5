#include "standalone/toolkit/RowGestures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/qelui/Events.h"
#include "toolkit/RowGesturesFixture.h"

namespace {

using qelui::ui::kModifierAlt;
using qelui::ui::kModifierControl;
using qelui::ui::kModifierShift;
using standalone::RowMove;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr std::uint32_t kBoth = kModifierShift | kModifierControl;

TEST_F(RowGesturesOfMany, AClickSelectsOneRowAlone) {
  EXPECT_TRUE(Click(3));
  EXPECT_TRUE(Click(5));
  EXPECT_THAT(GetSelected(), ElementsAre(5));
  EXPECT_THAT(gestures.GetCurrent(), Optional(5));
}

TEST_F(RowGesturesOfMany, AClickOnTheOnlySelectedRowChangesNothing) {
  Click(3);
  EXPECT_FALSE(Click(3));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(RowGesturesOfMany, AClickOnOneOfSeveralSelectedRowsLeavesItAlone) {
  Click(3);
  Click(6, kModifierShift);
  EXPECT_TRUE(Click(4));
  EXPECT_THAT(GetSelected(), ElementsAre(4));
}

TEST_F(RowGesturesOfMany, AltIsNoModifierOfSelecting) {
  Click(3);
  Click(5, kModifierAlt);
  EXPECT_THAT(GetSelected(), ElementsAre(5));
}

TEST_F(RowGesturesOfMany, AClickWithControlTogglesARow) {
  Click(3);
  EXPECT_TRUE(Click(5, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3, 5));
  EXPECT_TRUE(Click(3, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(5));
  EXPECT_THAT(gestures.GetCurrent(), Optional(3));
}

TEST_F(RowGesturesOfMany, AClickWithShiftSelectsTheRangeFromTheAnchorInEitherDirection) {
  Click(10);
  EXPECT_TRUE(Click(12, kModifierShift));
  EXPECT_THAT(GetSelected(), ElementsAre(10, 11, 12));
  EXPECT_TRUE(Click(8, kModifierShift));
  EXPECT_THAT(GetSelected(), ElementsAre(8, 9, 10));
  EXPECT_THAT(gestures.GetCurrent(), Optional(8));
}

TEST_F(RowGesturesOfMany, ARangeReplacesWhatWasSelectedElsewhere) {
  Click(2);
  Click(10, kModifierControl);
  Click(12, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(10, 11, 12));
}

TEST_F(RowGesturesOfMany, ARowToggledIsTheAnchorOfTheNextRange) {
  Click(2);
  Click(10, kModifierControl);
  Click(10, kModifierControl);
  Click(12, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(10, 11, 12));
}

TEST_F(RowGesturesOfMany, AClickWithShiftAndControlAddsTheRange) {
  Click(2);
  Click(10, kModifierControl);
  EXPECT_TRUE(Click(12, kBoth));
  EXPECT_THAT(GetSelected(), ElementsAre(2, 10, 11, 12));
  EXPECT_TRUE(Click(9, kBoth));
  EXPECT_THAT(GetSelected(), ElementsAre(2, 9, 10, 11, 12));
}

TEST_F(RowGesturesOfMany, WithoutAnAnchorAClickWithShiftSelectsItsRowAndBeginsThere) {
  Click(4, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(4));
  Click(6, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(4, 5, 6));
}

TEST_F(RowGesturesOfMany, AClickBelowTheLastRowDeselects) {
  Click(3);
  EXPECT_TRUE(Click(kBelow));
  EXPECT_THAT(GetSelected(), IsEmpty());
  EXPECT_FALSE(Click(kBelow));
}

TEST_F(RowGesturesOfMany, AClickBelowTheLastRowWithAModifierDeselectsNothing) {
  Click(3);
  EXPECT_FALSE(Click(kBelow, kModifierShift));
  EXPECT_FALSE(Click(kBelow, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(RowGesturesOfMany, ADragSelectsTheRangeFromWhereItBegan) {
  Click(10);
  EXPECT_TRUE(DragTo(12));
  EXPECT_THAT(GetSelected(), ElementsAre(10, 11, 12));
  EXPECT_TRUE(DragTo(9));
  EXPECT_THAT(GetSelected(), ElementsAre(9, 10));
  EXPECT_FALSE(DragTo(9));
  EXPECT_THAT(gestures.GetCurrent(), Optional(9));
}

TEST_F(RowGesturesOfMany, ADragWithControlAddsTheRange) {
  Click(2);
  Click(10, kModifierControl);
  DragTo(12, kModifierControl);
  EXPECT_THAT(GetSelected(), ElementsAre(2, 10, 11, 12));
}

TEST_F(RowGesturesOfMany, ADragWithControlFromARowItDeselectedSelectsNone) {
  Click(2);
  Click(10, kModifierControl);
  Click(10, kModifierControl);
  EXPECT_FALSE(DragTo(12, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(2));
}

TEST_F(RowGesturesOfMany, TheContextMenuSelectsARowThatIsNot) {
  Click(3);
  EXPECT_TRUE(gestures.ContextClick(selection, 5));
  EXPECT_THAT(GetSelected(), ElementsAre(5));
}

TEST_F(RowGesturesOfMany, TheContextMenuKeepsASelectionItIsPartOf) {
  Click(3);
  Click(6, kModifierShift);
  EXPECT_FALSE(gestures.ContextClick(selection, 4));
  EXPECT_THAT(GetSelected(), ElementsAre(3, 4, 5, 6));
  EXPECT_THAT(gestures.GetCurrent(), Optional(4));
}

TEST_F(RowGesturesOfMany, TheContextMenuBelowTheLastRowKeepsTheSelection) {
  Click(3);
  EXPECT_FALSE(gestures.ContextClick(selection, kBelow));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(RowGesturesOfMany, KeysStartWhereAProgramSelected) {
  gestures.SetCurrent(8);
  Move(RowMove::kDown);
  EXPECT_THAT(GetSelected(), ElementsAre(9));
  gestures.SetCurrent(20);
  Click(22, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(20, 21, 22));
}

TEST_F(RowGesturesOfMany, ResetTheyHaveNoCurrentRowAndNoAnchor) {
  Click(8);
  gestures.Reset();
  EXPECT_EQ(gestures.GetCurrent(), std::nullopt);
  selection.Clear();
  Click(10, kModifierShift);
  EXPECT_THAT(GetSelected(), ElementsAre(10));
}

TEST_F(RowGesturesOfOne, AClickSelectsItsRowAloneWhateverKeysAreHeld) {
  for (const std::uint32_t modifiers : {kPlain, kModifierShift, kModifierControl, kBoth}) {
    Click(3);
    Click(5, modifiers);
    EXPECT_THAT(GetSelected(), ElementsAre(5)) << modifiers;
  }
}

TEST_F(RowGesturesOfOne, AClickWithControlDoesNotDeselect) {
  Click(3);
  EXPECT_FALSE(Click(3, kModifierControl));
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(RowGesturesOfOne, AClickBelowTheLastRowAlwaysDeselects) {
  Click(3);
  EXPECT_TRUE(Click(kBelow, kModifierControl));
  EXPECT_THAT(GetSelected(), IsEmpty());
}

TEST_F(RowGesturesOfOne, ADragTakesTheSelectionAlong) {
  Click(3);
  EXPECT_TRUE(DragTo(6, kModifierShift));
  EXPECT_THAT(GetSelected(), ElementsAre(6));
}

}  // namespace
