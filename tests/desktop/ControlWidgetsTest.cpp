#include "standalone/window/ControlWidgets.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "host/UIF/Decals.h"
#include "host/qelui/Controls.h"
#include "host/qelui/Events.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/window/TreeWidget.h"

namespace standalone {
namespace {

using namespace qelui::controls;
using qelcore::Ref;
using qelcore::UTF8String;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window with the widget of one control, and another widget that can have the focus.
class ControlWidgets : public DesktopFixture {
 protected:
  template <typename Widget, typename Control>
  Widget* Make(const Ref<Control>& control) {
    auto* const widget = dynamic_cast<Widget*>(MakeControlWidget(control, &window));
    EXPECT_NE(widget, nullptr);
    widget->setGeometry(10, 10, 240, 24);
    elsewhere.setGeometry(10, 50, 100, 24);
    Show(window);
    widget->setFocus();
    return widget;
  }
  template <typename Function>
  static qelui::ui::SharedMessageFunction Callback(Function function) {
    return std::make_shared<const qelui::ui::MessageFunction>(std::move(function));
  }
  static std::string GetRole(QWidget& widget) {
    const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return std::to_string(face->role());
  }
  static std::string GetName(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
  }

  QWidget window;
  QLineEdit elsewhere{&window};
};

class SearchField : public ControlWidgets {
 protected:
  SearchField() {
    field->NotifyWhenChangedInteractively(Callback([this](const auto&) { Keep("typed "); }));
    field->NotifyWhenChanged(Callback([this](const auto&) { Keep("committed "); }));
    widget = Make<QLineEdit>(field);
  }
  void Keep(const std::string& what) {
    changes.push_back(what + std::string(field->GetValueUTF8().View()));
  }

  Ref<UI_SearchBox> field{new UI_SearchBox(true, false)};
  QLineEdit* widget = nullptr;
  std::vector<std::string> changes;
};

TEST_F(SearchField, EachKeystrokeTypes) {
  QTest::keyClicks(widget, "ab");
  EXPECT_THAT(changes, ElementsAre("typed a", "typed ab"));
  QTest::keyClick(widget, Qt::Key_Backspace);
  EXPECT_EQ(changes.back(), "typed a");
}

TEST_F(SearchField, LettersBeyondASCIIAreTypedInUTF8) {
  widget->insert("é😀");
  EXPECT_THAT(changes, ElementsAre("typed é😀"));
}

TEST_F(SearchField, EnterAndLeavingTheFieldCommit) {
  QTest::keyClicks(widget, "a");
  QTest::keyClick(widget, Qt::Key_Return);
  EXPECT_THAT(changes, ElementsAre("typed a", "committed a"));
  QTest::keyClicks(widget, "b");
  elsewhere.setFocus();
  EXPECT_THAT(changes, ElementsAre("typed a", "committed a", "typed ab", "committed ab"));
}

TEST_F(SearchField, EscapeEmptiesItAndThenIsForTheWindow) {
  QTest::keyClicks(widget, "ab");
  changes.clear();
  QTest::keyClick(widget, Qt::Key_Escape);
  EXPECT_THAT(changes, ElementsAre("typed "));
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  again.setAccepted(true);
  QApplication::sendEvent(widget, &again);
  EXPECT_FALSE(again.isAccepted());
}

TEST_F(SearchField, TheClearButtonEmptiesIt) {
  QTest::keyClicks(widget, "ab");
  changes.clear();
  auto* const clear = widget->findChild<QToolButton*>();
  ASSERT_NE(clear, nullptr);
  QTest::mouseClick(clear, Qt::LeftButton);
  EXPECT_THAT(changes, ElementsAre("typed "));
}

TEST_F(SearchField, OnlyAFieldThatIsToHaveAClearButtonHasOne) {
  const Ref<UI_SearchBox> other(new UI_SearchBox(false, false));
  EXPECT_FALSE(Make<QLineEdit>(other)->isClearButtonEnabled());
  EXPECT_TRUE(widget->isClearButtonEnabled());
}

TEST_F(SearchField, ATextThatTheProgramTypesIsShownWithoutASecondChange) {
  field->Type(UTF8String("new"));
  EXPECT_EQ(ToText(widget->text()), "new");
  EXPECT_THAT(changes, ElementsAre("typed new"));
}

TEST_F(SearchField, ItIsNamedForAssistivePrograms) {
  EXPECT_EQ(GetName(*widget), "Search");
  EXPECT_EQ(GetRole(*widget), std::to_string(QAccessible::EditableText));
}

TEST_F(SearchField, ADisabledFieldIsDisabledOnScreen) {
  field->UI_SetEnabled(false);
  EXPECT_FALSE(widget->isEnabled());
  field->UI_SetEnabled(true);
  EXPECT_TRUE(widget->isEnabled());
}

TEST_F(SearchField, AFailingCallbackIsLoggedAndTheTextStays) {
  field->NotifyWhenChangedInteractively(
      Callback([](const auto&) { throw std::runtime_error("no such text"); }));
  QTest::keyClicks(widget, "a");
  EXPECT_EQ(field->GetValueUTF8().View(), "a");
  EXPECT_THAT(host.TakeFailures(), ElementsAre(HasSubstr("no such text")));
}

TEST_F(SearchField, AWidgetOutlivesItsControlDisabled) {
  field = {};
  host.Settle();
  EXPECT_FALSE(widget->isEnabled());
  widget->setText("anything");
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(SearchField, AControlOutlivesItsWidget) {
  delete widget;
  field->Type(UTF8String("new"));
  field->UI_SetEnabled(false);
  EXPECT_THAT(changes, ElementsAre("typed new"));
}

class PictureButton : public ControlWidgets {
 protected:
  PictureButton() {
    button->NotifyWhenChanged(Callback([this](const qelui::ui::Message& message) {
      clicks.push_back(dynamic_cast<const UI_ButtonChangedMessage&>(message).GetModKeys());
    }));
    images =
        ImageHandler::Create({UIF::kUIFFilterNotificationOffDecal, UIF::kUIFFilterNotificationOnDecal});
    button->SetImageHandler(images);
    widget = Make<QToolButton>(button);
    widget->resize(24, 24);
  }
  int CountPixels(const qelui::ColorRGBA& color) {
    const QImage image = Grab(*widget);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == ToQColor(color) ? 1 : 0;
    }
    return count;
  }

  Ref<UI_PictureButton> button{new UI_PictureButton()};
  std::shared_ptr<ImageHandler> images;
  QToolButton* widget = nullptr;
  std::vector<std::uint32_t> clicks;
};

TEST_F(PictureButton, AClickIsHandedOnWithTheModifierKeys) {
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::mouseClick(widget, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_THAT(clicks, ElementsAre(0U, 4U));
}

TEST_F(PictureButton, TheSpaceBarClicksWithTheModifierKeys) {
  QTest::keyClick(widget, Qt::Key_Space);
  QTest::keyClick(widget, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_THAT(clicks, ElementsAre(0U, qelui::ui::kModifierControl));
}

TEST_F(PictureButton, ItsPictureIsThatOfItsState) {
  const auto& colors = GetThemeColors();
  EXPECT_EQ(CountPixels(colors.accent), 0);
  images->SetImageState(1);
  button->UI_Invalidate();
  EXPECT_GT(CountPixels(colors.accent), 20);
}

TEST_F(PictureButton, ADisabledOneIsDimAndNotClicked) {
  images->SetImageState(1);
  button->UI_SetEnabled(false);
  EXPECT_EQ(CountPixels(GetThemeColors().accent), 0);
  EXPECT_GT(CountPixels(GetThemeColors().disabledText), 20);
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(PictureButton, ItIsNamedAfterItsPicture) {
  button->UI_SetToolTip(UTF8String("Control + Click to clear all filters"), 200);
  EXPECT_EQ(GetName(*widget), "Filters");
  EXPECT_EQ(ToText(widget->accessibleDescription()), "Control + Click to clear all filters");
  images->SetImageState(1);
  button->UI_Invalidate();
  EXPECT_EQ(GetName(*widget), "Filters, active");
}

TEST_F(PictureButton, WithoutPicturesItIsEmpty) {
  button->SetImageHandler(nullptr);
  button->UI_Invalidate();
  EXPECT_EQ(CountPixels(GetThemeColors().text), 0);
}

class Slider : public ControlWidgets {
 protected:
  explicit Slider(bool isJumping = true)
      : slider(new UI_Slider(SliderDirection::kHorizontal, isJumping)) {
    slider->NotifyWhenChangedInteractively(
        Callback([this](const auto&) { dragged.push_back(slider->GetValue()); }));
    slider->NotifyWhenChanged(
        Callback([this](const auto&) { committed.push_back(slider->GetValue()); }));
    widget = Make<QSlider>(slider);
    widget->resize(80, 24);
  }

  Ref<UI_Slider> slider;
  QSlider* widget = nullptr;
  std::vector<double> dragged;
  std::vector<double> committed;
};

TEST_F(Slider, ItsEndAndItsMiddleAreExact) {
  QTest::keyClick(widget, Qt::Key_End);
  EXPECT_EQ(dragged.back(), 1.0);
  widget->setValue(widget->maximum() / 2);
  EXPECT_EQ(dragged.back(), 0.5);
  QTest::keyClick(widget, Qt::Key_Home);
  EXPECT_EQ(dragged.back(), 0.0);
}

TEST_F(Slider, DraggingTellsEachStepAndLettingGoCommits) {
  QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, {40, 12});
  QTest::mouseMove(widget, {79, 12});
  EXPECT_EQ(dragged.back(), 1.0);
  EXPECT_THAT(committed, testing::Not(testing::Contains(1.0)));
  QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, {79, 12});
  EXPECT_EQ(committed.back(), 1.0);
}

TEST_F(Slider, AClickBesideTheKnobPutsItThere) {
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, {40, 12});
  EXPECT_NEAR(slider->GetValue(), 0.5, 0.02);
}

TEST_F(Slider, KeysCommitAtOnce) {
  QTest::keyClick(widget, Qt::Key_Right);
  ASSERT_THAT(dragged, ElementsAre(0.02));
  EXPECT_EQ(committed, dragged);
}

TEST_F(Slider, AValueThatTheProgramSetsIsShownWithoutASecondChange) {
  slider->SetValue(0.25);
  slider->UI_Invalidate();
  EXPECT_EQ(widget->value(), 250);
  slider->SetRange(0, 0.5);
  slider->UI_Invalidate();
  EXPECT_EQ(widget->value(), 500);
  EXPECT_THAT(dragged, IsEmpty());
}

TEST_F(Slider, ItIsNamedAfterItsTooltip) {
  slider->UI_SetToolTip(UTF8String("Scale displayed rows"), 200);
  EXPECT_EQ(GetName(*widget), "Scale displayed rows");
  EXPECT_EQ(GetRole(*widget), std::to_string(QAccessible::Slider));
}

TEST_F(Slider, AnEmptyRangeHasItsKnobAtTheBeginning) {
  slider->SetRange(3, 3);
  slider->UI_Invalidate();
  EXPECT_EQ(widget->value(), 0);
}

TEST_F(Slider, AVerticalOneIsLowestAtTheBottom) {
  const Ref<UI_Slider> upright(new UI_Slider(SliderDirection::kVertical, true));
  auto* const shown = Make<QSlider>(upright);
  shown->resize(24, 80);
  QTest::mouseClick(shown, Qt::LeftButton, Qt::NoModifier, {12, 2});
  EXPECT_EQ(upright->GetValue(), 1.0);
  QTest::mouseClick(shown, Qt::LeftButton, Qt::NoModifier, {12, 78});
  EXPECT_EQ(upright->GetValue(), 0.0);
}

class SteppingSlider : public Slider {
 protected:
  SteppingSlider() : Slider(false) {}
};

TEST_F(SteppingSlider, AClickBesideTheKnobGoesAStepThatWay) {
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, {70, 12});
  EXPECT_EQ(slider->GetValue(), 0.1);
}

class Checkbox : public ControlWidgets {
 protected:
  Checkbox() {
    box->SetLabel(UTF8String("Cut & paste"));
    box->NotifyWhenChanged(Callback([this](const auto&) { values.push_back(box->GetValue()); }));
    widget = Make<QCheckBox>(box);
  }

  Ref<UI_Checkbox> box{new UI_Checkbox()};
  QCheckBox* widget = nullptr;
  std::vector<CheckboxValue> values;
};

TEST_F(Checkbox, ClicksAndTheSpaceBarChangeIt) {
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, {8, 12});
  EXPECT_TRUE(widget->isChecked());
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_FALSE(widget->isChecked());
  EXPECT_THAT(values, ElementsAre(CheckboxValue::kChecked, CheckboxValue::kUnchecked));
}

TEST_F(Checkbox, AValueThatTheProgramSetsIsShownWithoutAChange) {
  box->SetValue(CheckboxValue::kMixed);
  box->UI_Invalidate();
  EXPECT_EQ(widget->checkState(), Qt::PartiallyChecked);
  box->SetValue(CheckboxValue::kChecked);
  box->UI_Invalidate();
  EXPECT_EQ(widget->checkState(), Qt::Checked);
  EXPECT_FALSE(widget->isTristate());
  EXPECT_THAT(values, IsEmpty());
}

TEST_F(Checkbox, AMixedOneBecomesChecked) {
  box->SetValue(CheckboxValue::kMixed);
  box->UI_Invalidate();
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_EQ(widget->checkState(), Qt::Checked);
}

TEST_F(Checkbox, AnAmpersandInItsLabelIsShown) {
  EXPECT_EQ(ToText(widget->text()), "Cut && paste");
  EXPECT_EQ(GetName(*widget), "Cut & paste");
}

TEST_F(Checkbox, OnceTheControlIsGoneAClickChangesNothing) {
  box = {};
  host.Settle();
  EXPECT_FALSE(widget->isEnabled());
  widget->setEnabled(true);
  widget->click();
  EXPECT_FALSE(widget->isChecked());
}

TEST_F(ControlWidgets, ATextIsShownAsItStands) {
  const Ref<UI_StaticText> text(new UI_StaticText());
  text->SetValue(UTF8String("<b>3</b> of 12"));
  auto* const widget = Make<QLabel>(text);
  EXPECT_EQ(ToText(widget->text()), "<b>3</b> of 12");
  EXPECT_EQ(widget->textFormat(), Qt::PlainText);
  text->SetValue(UTF8String("12 Items"));
  EXPECT_EQ(ToText(widget->text()), "12 Items");
  EXPECT_EQ(GetName(*widget), "12 Items");
}

TEST_F(ControlWidgets, ATableHasItsOwnWidget) {
  const Ref<UI_MultiColumnTree> tree(new UI_MultiColumnTree(0, 20));
  tree->SetHeaderRow(Ref(new UI_MultiColumnTreeHeaderRow(tree.Get())));
  EXPECT_NE(Make<TreeWidget>(tree), nullptr);
}

TEST_F(ControlWidgets, AControlOfAnotherKindHasNone) {
  class Other final : public qelui::ui::UI_SubView {};
  EXPECT_EQ(MakeControlWidget(Ref(new Other()), &window), nullptr);
}

TEST_F(ControlWidgets, ATooltipFollowsTheControl) {
  const Ref<UI_Checkbox> box(new UI_Checkbox());
  auto* const widget = Make<QCheckBox>(box);
  EXPECT_TRUE(widget->toolTip().isEmpty());
  box->UI_SetToolTip(UTF8String("one\ntwo"), 200);
  EXPECT_THAT(ToText(widget->toolTip()), HasSubstr("one<br>two"));
}

}  // namespace
}  // namespace standalone
