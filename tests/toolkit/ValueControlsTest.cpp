#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelcore::UTF8String;
using qelui::controls::CheckboxValue;
using qelui::controls::SliderDirection;
using qelui::controls::UI_Checkbox;
using qelui::controls::UI_CheckboxChangedMessage;
using qelui::controls::UI_Slider;
using qelui::controls::UI_SliderChangedMessage;
using qelui::controls::UI_StaticText;
using qelui::ui::Message;
using qelui::ui::MessageFunction;
using testing::ElementsAre;
using testing::IsEmpty;

/// What the controls of a test told.
class ValueControl : public testing::Test {
 protected:
  template <typename ExpectedMessage>
  qelui::ui::SharedMessageFunction Note(const std::string& word) {
    return std::make_shared<const MessageFunction>([this, word](const Message& message) {
      EXPECT_NE(dynamic_cast<const ExpectedMessage*>(&message), nullptr);
      notes.push_back(word);
    });
  }
  /// How often `operation` has `control` drawn anew.
  template <typename Operation>
  static int CountDrawings(qelui::ui::UI_Node& control, Operation operation) {
    int drawings = 0;
    control.UI_SetWatcher([&] { ++drawings; });
    operation();
    control.UI_SetWatcher({});
    return drawings;
  }

  standalone::Runtime runtime;
  std::vector<std::string> notes;
};

class StaticText : public ValueControl {
 protected:
  Ref<UI_StaticText> text{new UI_StaticText()};
};

TEST_F(StaticText, IsEmptyAtFirst) {
  EXPECT_TRUE(text->GetValue().Empty());
}

TEST_F(StaticText, ShowsAnotherTextAndIsDrawnAnew) {
  EXPECT_EQ(CountDrawings(*text, [&] { text->SetValue(UTF8String("12 Items")); }), 1);
  EXPECT_EQ(text->GetValue(), "12 Items");
}

TEST_F(StaticText, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(text->SetValue({}), "UI_StaticText::SetValue");
  EXPECT_STOPS_OFF_MAIN_THREAD(text->GetValue(), "UI_StaticText::GetValue");
}

class Slider : public ValueControl {
 protected:
  Slider() {
    slider->NotifyWhenChangedInteractively(Note<UI_SliderChangedMessage>("step"));
    slider->NotifyWhenChanged(Note<UI_SliderChangedMessage>("commit"));
  }
  Ref<UI_Slider> slider{new UI_Slider(SliderDirection::kHorizontal, true)};
};

TEST_F(Slider, StandsAtZeroOfARangeFromZeroToOneAtFirst) {
  EXPECT_EQ(slider->GetMinimum(), 0);
  EXPECT_EQ(slider->GetMaximum(), 1);
  EXPECT_EQ(slider->GetValue(), 0);
}

TEST_F(Slider, KnowsItsDirectionAndWhatAClickDoes) {
  EXPECT_EQ(slider->GetDirection(), SliderDirection::kHorizontal);
  EXPECT_TRUE(slider->IsJumpingToPointer());
  const Ref other(new UI_Slider(SliderDirection::kVertical, false));
  EXPECT_EQ(other->GetDirection(), SliderDirection::kVertical);
  EXPECT_FALSE(other->IsJumpingToPointer());
}

TEST_F(Slider, ItsValueIsKeptInItsRange) {
  slider->SetRange(-2, 3);
  for (const auto& [given, taken] :
       {std::pair{-3.0, -2.0}, {-2.0, -2.0}, {0.5, 0.5}, {3.0, 3.0}, {4.0, 3.0}}) {
    slider->SetValue(given);
    EXPECT_EQ(slider->GetValue(), taken);
  }
  slider->SetValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(slider->GetValue(), -2);
}

TEST_F(Slider, AnotherRangeTakesTheValueAlong) {
  slider->SetValue(0.5);
  slider->SetRange(2, 3);
  EXPECT_EQ(slider->GetValue(), 2);
  slider->SetRange(0, 1);
  EXPECT_EQ(slider->GetValue(), 1);
}

TEST_F(Slider, ARangeThatEndsBeforeItBeginsHasOneValue) {
  slider->SetRange(5, 4);
  EXPECT_EQ(slider->GetMinimum(), 5);
  EXPECT_EQ(slider->GetMaximum(), 5);
  EXPECT_EQ(slider->GetValue(), 5);
}

TEST_F(Slider, DraggingIsAStepAndLettingGoAChange) {
  slider->DragTo(0.25);
  slider->DragTo(0.5);
  slider->Commit();
  EXPECT_THAT(notes, ElementsAre("step", "step", "commit"));
  EXPECT_EQ(slider->GetValue(), 0.5);
}

TEST_F(Slider, DraggingBeyondItsEndIsOneStep) {
  slider->DragTo(2);
  slider->DragTo(3);
  EXPECT_THAT(notes, ElementsAre("step"));
  EXPECT_EQ(slider->GetValue(), 1);
}

TEST_F(Slider, AProgramsValuesAreSilent) {
  slider->SetValue(0.5);
  slider->SetRange(0, 2);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Slider, ADisabledOneIsNotDragged) {
  slider->UI_SetEnabled(false);
  slider->DragTo(0.5);
  slider->Commit();
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_EQ(slider->GetValue(), 0);
}

TEST_F(Slider, AnotherValueHasItDrawnAnew) {
  EXPECT_EQ(CountDrawings(*slider, [&] { slider->SetRange(0, 2); }), 1);
  EXPECT_EQ(CountDrawings(*slider, [&] { slider->SetValue(1); }), 1);
  EXPECT_EQ(CountDrawings(*slider, [&] { slider->DragTo(2); }), 1);
}

TEST_F(Slider, ACallbackMayLetGoOfItsSlider) {
  slider->NotifyWhenChangedInteractively(
      std::make_shared<const MessageFunction>([this](const Message&) { slider.Reset(); }));
  UI_Slider& dragged = *slider;
  dragged.DragTo(1);
  EXPECT_FALSE(slider);
}

TEST_F(Slider, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->SetRange(0, 1), "UI_Slider::SetRange");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->GetMinimum(), "UI_Slider::GetMinimum");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->GetMaximum(), "UI_Slider::GetMaximum");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->SetValue(0), "UI_Slider::SetValue");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->GetValue(), "UI_Slider::GetValue");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->DragTo(0), "UI_Slider::DragTo");
  EXPECT_STOPS_OFF_MAIN_THREAD(slider->Commit(), "UI_Slider::Commit");
}

class Checkbox : public ValueControl {
 protected:
  Checkbox() { box->NotifyWhenChanged(Note<UI_CheckboxChangedMessage>("changed")); }
  Ref<UI_Checkbox> box{new UI_Checkbox()};
};

TEST_F(Checkbox, IsUncheckedAndWithoutLabelAtFirst) {
  EXPECT_EQ(box->GetValue(), CheckboxValue::kUnchecked);
  EXPECT_TRUE(box->GetLabel().Empty());
}

TEST_F(Checkbox, CheckedIsOne) {
  EXPECT_EQ(static_cast<std::uint32_t>(CheckboxValue::kUnchecked), 0U);
  EXPECT_EQ(static_cast<std::uint32_t>(CheckboxValue::kChecked), 1U);
}

TEST_F(Checkbox, AClickChecksAndUnchecks) {
  box->Click();
  EXPECT_EQ(box->GetValue(), CheckboxValue::kChecked);
  box->Click();
  EXPECT_EQ(box->GetValue(), CheckboxValue::kUnchecked);
  EXPECT_THAT(notes, ElementsAre("changed", "changed"));
}

TEST_F(Checkbox, AClickChecksAMixedOne) {
  box->SetValue(CheckboxValue::kMixed);
  box->Click();
  EXPECT_EQ(box->GetValue(), CheckboxValue::kChecked);
}

TEST_F(Checkbox, AProgramsValuesAreSilent) {
  box->SetValue(CheckboxValue::kChecked);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Checkbox, ADisabledOneIgnoresClicks) {
  box->UI_SetEnabled(false);
  box->Click();
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_EQ(box->GetValue(), CheckboxValue::kUnchecked);
}

TEST_F(Checkbox, AnotherValueOrLabelHasItDrawnAnew) {
  EXPECT_EQ(CountDrawings(*box, [&] { box->SetLabel(UTF8String("Update")); }), 1);
  EXPECT_EQ(box->GetLabel(), "Update");
  EXPECT_EQ(CountDrawings(*box, [&] { box->SetValue(CheckboxValue::kMixed); }), 1);
  EXPECT_EQ(CountDrawings(*box, [&] { box->Click(); }), 1);
}

TEST_F(Checkbox, ACallbackMayLetGoOfItsBox) {
  box->NotifyWhenChanged(
      std::make_shared<const MessageFunction>([this](const Message&) { box.Reset(); }));
  UI_Checkbox& clicked = *box;
  clicked.Click();
  EXPECT_FALSE(box);
}

TEST_F(Checkbox, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(box->SetLabel({}), "UI_Checkbox::SetLabel");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->GetLabel(), "UI_Checkbox::GetLabel");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->SetValue(CheckboxValue::kChecked), "UI_Checkbox::SetValue");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->GetValue(), "UI_Checkbox::GetValue");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->Click(), "UI_Checkbox::Click");
}

}  // namespace
