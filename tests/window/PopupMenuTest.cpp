#include "standalone/window/PopupMenu.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "standalone/window/NodeWidgets.h"
#include "window/WindowFixture.h"

namespace standalone {
namespace {

class Popup : public WindowFixture {
 protected:
  static std::vector<MenuItem> MakeItems() {
    return {{qelcore::UTF8String("Cut & paste"), 7, false},
            {{}, 0, false},
            {qelcore::UTF8String("Track"), 9, true}};
  }
  template <typename Function>
  std::uint32_t Choose(Function&& act) {
    QTimer::singleShot(0, qApp, [this, act] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      place = menu->pos();
      act(*menu);
    });
    return ChooseFromMenu(MakeItems(), *tree, {30, 40});
  }

  qelcore::Ref<Tree> tree = MakeTree(3);
  std::unique_ptr<TreeWidget> widget = Show(tree);
  QPoint place;
};

TEST_F(Popup, ItemsStandInOrderWithTheirMarks) {
  Choose([](QMenu& menu) {
    const auto items = menu.actions();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0]->text().toStdString(), "Cut && paste");
    EXPECT_FALSE(items[0]->isChecked());
    EXPECT_TRUE(items[1]->isSeparator());
    EXPECT_TRUE(items[2]->isChecked());
    menu.close();
  });
}

TEST_F(Popup, TheChosenItemsCommandIsTheAnswer) {
  const std::uint32_t answer = Choose([](QMenu& menu) {
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                      menu.actionGeometry(menu.actions()[2]).center());
  });
  EXPECT_EQ(answer, 9U);
}

TEST_F(Popup, ADismissedMenuAnswersZero) {
  EXPECT_EQ(Choose([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }), 0U);
}

TEST_F(Popup, ItOpensAtThePlaceOfTheControl) {
  Choose([](QMenu& menu) { menu.close(); });
  EXPECT_EQ(place, widget->mapToGlobal(QPoint(30, 40)));
}

TEST_F(Popup, AControlThatNoWidgetShowsHasItsMenuAtThePointer) {
  const auto hidden = MakeTree(1);
  EXPECT_EQ(FindNodeWidget(*hidden), nullptr);
  QTimer::singleShot(0, qApp, [] { QApplication::activePopupWidget()->close(); });
  EXPECT_EQ(ChooseFromMenu(MakeItems(), *hidden, {}), 0U);
}

TEST_F(Popup, AWidgetThatGoesWithItsMenuOpenAnswersZero) {
  EXPECT_EQ(Choose([this](QMenu&) { widget.reset(); }), 0U);
}

TEST_F(Popup, AControlsWidgetIsKnownWhileItLives) {
  EXPECT_EQ(FindNodeWidget(*tree), widget.get());
  EXPECT_EQ(FindNodeWidget(*tree->GetHeaderRow()), widget->GetHeader().viewport());
  widget.reset();
  EXPECT_EQ(FindNodeWidget(*tree), nullptr);
  EXPECT_EQ(FindNodeWidget(*tree->GetHeaderRow()), nullptr);
}

}  // namespace
}  // namespace standalone
