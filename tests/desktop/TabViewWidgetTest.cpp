#include "standalone/window/TabViewWidget.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <string>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/window/TreeWidget.h"
#include "support/Answers.h"
#include "view/SequenceIndexView.h"

namespace standalone {
namespace {

/// The panel of the module in a window, beside another widget that can have the focus.
class Panel : public DesktopFixture {
 protected:
  Panel() {
    view->SubscribeToStations();
    view->Create("handler", qelcore::UTF8String("Sequence Index"),
                 std::make_shared<UIF::WorkspaceFrame>(qelui::Rect{0, 0, 900, 300}), true);
    host.Settle();
    elsewhere.setGeometry(0, 400, 100, 24);
    window.resize(900, 440);
    panel = new TabViewWidget(view, &window);
    panel->setGeometry(0, 0, 900, 300);
    Show(window);
  }
  static SequenceDraft MakeTwoClips() {
    auto draft = drafts::MakeSequence("Reel");
    auto& track = drafts::AddTrack(draft);
    drafts::AddClip(track, "Harbour", 0, 50);
    drafts::AddClip(track, "Ferry", 50, 80);
    return draft;
  }
  template <typename Widget>
  Widget& Find() const {
    for (auto* const widget : panel->findChildren<Widget*>(Qt::FindDirectChildrenOnly)) return *widget;
    throw std::runtime_error("no such widget");
  }
  std::size_t CountRows() const { return view->GetTree()->CountRows(); }

  Answers answers;
  Sequence sequence = OpenSequence(MakeTwoClips());
  std::shared_ptr<Vantrel::SequenceIndexView> view =
      qelcore::memory::MakeShareable<Vantrel::SequenceIndexView>(
          std::shared_ptr<Vantrel::SequenceIndexHandler>());
  QWidget window;
  QLineEdit elsewhere{&window};
  TabViewWidget* panel = nullptr;
};

TEST_F(Panel, EveryControlHasAWidgetInItsPlace) {
  const auto& controls = view->GetChildViews();
  ASSERT_EQ(controls.size(), 6U);
  for (const auto& control : controls) {
    const QWidget* const widget = panel->FindWidget(*control);
    ASSERT_NE(widget, nullptr);
    const auto place = control->UI_GetBounds();
    EXPECT_EQ(QRectF(widget->geometry()), QRectF(place.left, place.top, place.width, place.height));
    EXPECT_TRUE(widget->isVisible());
  }
  EXPECT_EQ(Find<QLineEdit>().geometry(), QRect(12, 12, 240, 24));
}

TEST_F(Panel, ResizingLaysTheTableOutAgain) {
  panel->resize(1000, 350);
  EXPECT_EQ(Find<TreeWidget>().geometry(), QRect(12, 42, 976, 296));
  EXPECT_EQ(Find<QLineEdit>().geometry(), QRect(12, 12, 240, 24));
}

TEST_F(Panel, TheBackgroundIsTheThemes) {
  EXPECT_EQ(Grab(*panel).pixelColor(4, 4), ToQColor(GetThemeColors().tabBackground));
  const ThemeChoice light(ThemeName::kLight);
  EXPECT_EQ(Grab(*panel).pixelColor(4, 4), ToQColor(GetThemeColors().tabBackground));
}

TEST_F(Panel, TypingSearches) {
  ASSERT_EQ(CountRows(), 2U);
  QTest::keyClicks(&Find<QLineEdit>(), "FERRY");
  host.Settle();
  EXPECT_EQ(CountRows(), 1U);
  QTest::keyClick(&Find<QLineEdit>(), Qt::Key_Escape);
  host.Settle();
  EXPECT_EQ(CountRows(), 2U);
}

TEST_F(Panel, TheSlidersEndGivesTheHighestRowsAndItsMiddleThoseBetween) {
  QTest::keyClick(&Find<QSlider>(), Qt::Key_End);
  EXPECT_EQ(view->GetTree()->GetRowHeight(), 70);
  Find<QSlider>().setValue(500);
  EXPECT_EQ(view->GetTree()->GetRowHeight(), 47.5);
}

TEST_F(Panel, AClickOnTheFilterButtonAsksAndOneWithControlClears) {
  answers.optionsAnswer = [](MZ::SequenceIndex::Options options) {
    options.filterToggles[1] = true;
    return options;
  };
  auto& button = Find<QToolButton>();
  QTest::mouseClick(&button, Qt::LeftButton);
  host.Settle();
  EXPECT_EQ(ToText(button.accessibleName()), "Filters, active");
  EXPECT_THAT(ToText(button.toolTip()), testing::HasSubstr("Active Filters: <br>Audio"));
  EXPECT_EQ(CountRows(), 0U);
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space, Qt::ControlModifier);
  host.Settle();
  EXPECT_EQ(ToText(button.accessibleName()), "Filters");
  EXPECT_EQ(answers.optionsCount, 1);
  EXPECT_EQ(CountRows(), 2U);
}

TEST_F(Panel, ThePanelIsOnDutyWhileTheFocusIsInIt) {
  elsewhere.setFocus();
  EXPECT_FALSE(view->IsOnDuty());
  Find<TreeWidget>().setFocus();
  EXPECT_TRUE(view->IsOnDuty());
  Find<QLineEdit>().setFocus();
  EXPECT_TRUE(view->IsOnDuty());
  elsewhere.setFocus();
  EXPECT_FALSE(view->IsOnDuty());
}

TEST_F(Panel, APressThatComesBeforeTheFocusIsDoneOnDuty) {
  elsewhere.setFocus();
  auto& table = Find<TreeWidget>();
  const QPointF place = table.GetCellArea(1, 0).center();
  QMouseEvent press(QEvent::MouseButtonPress, place, table.viewport()->mapToGlobal(place),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(table.viewport(), &press);
  EXPECT_TRUE(elsewhere.hasFocus());
  EXPECT_TRUE(view->IsOnDuty());
}

TEST_F(Panel, AProgramInTheBackgroundLeavesItOnDuty) {
  Find<QLineEdit>().setFocus();
  Find<QLineEdit>().clearFocus();
  EXPECT_EQ(QApplication::focusWidget(), nullptr);
  EXPECT_TRUE(view->IsOnDuty());
}

TEST_F(Panel, AWidgetThatGoesEndsTheDuty) {
  Find<TreeWidget>().setFocus();
  delete panel;
  EXPECT_FALSE(view->IsOnDuty());
}

TEST_F(Panel, AWidgetOutlivesItsView) {
  Find<TreeWidget>().setFocus();
  view.reset();
  host.Settle();
  panel->resize(700, 200);
  Grab(*panel);
  EXPECT_FALSE(Find<QLineEdit>().isEnabled());
}

TEST_F(Panel, TheTabKeyReachesTheControlsInTheirOrder) {
  std::vector<QWidget*> wanted{&Find<QLineEdit>(), &Find<QToolButton>(), &Find<QSlider>(),
                               &Find<QCheckBox>(), &Find<TreeWidget>()};
  wanted.front()->setFocus();
  std::vector<QWidget*> reached{QApplication::focusWidget()};
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached.push_back(QApplication::focusWidget());
  }
  EXPECT_EQ(reached, wanted);
}

TEST_F(Panel, EveryWidgetIsNamedForAssistivePrograms) {
  EXPECT_EQ(ToText(panel->accessibleName()), "Sequence Index");
  for (const auto& control : view->GetChildViews()) {
    QWidget* const widget = panel->FindWidget(*control);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
        << widget->metaObject()->className();
  }
}

}  // namespace
}  // namespace standalone
