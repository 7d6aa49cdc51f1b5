#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>
#include <QTimer>

#include "standalone/toolkit/DialogProvider.h"
#include "standalone/window/PopupMenu.h"
#include "table/ColumnLayout.h"
#include "table/SequenceIndexTree.h"
#include "window/WindowFixture.h"

namespace standalone {
namespace {

/// Menus of the module's own header row, on the screen.
class ColumnMenu : public WindowFixture {
 protected:
  /// Answers menus as a window does.
  class PopupProvider final : public DialogProvider {
   public:
    PopupProvider() { SetDialogProvider(this); }
    ~PopupProvider() override { SetDialogProvider(nullptr); }
    std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node& node,
                                 qelui::Point position) override {
      return standalone::ChooseFromMenu(items, node, position);
    }
    std::optional<MZ::SequenceIndex::Options> EditOptions(const MZ::SequenceIndex::Options&) override {
      return std::nullopt;
    }
    bool ChooseExport(ExportChoice&) override { return false; }
  };

  ColumnMenu() {
    Vantrel::GetColumnLayoutStore().clear();
    tree = qelcore::Ref(new Vantrel::SequenceIndexTree({}, 0, kRowHeight));
    tree->SetWantsKeyboardFocus(true);
    widget = Show(tree, {900, 220});
  }
  /// When the menu is open, does `act` with it.
  template <typename Function>
  void WhenOpen(Function&& act) {
    QTimer::singleShot(0, widget.get(), [this, act] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      ++menuCount;
      menuPlace = widget->GetHeader().mapFromGlobal(menu->pos());
      act(*menu);
    });
  }
  void ChooseItem(const QString& text) {
    WhenOpen([text](QMenu& menu) {
      for (QAction* const action : menu.actions()) {
        if (action->text() == text) menu.setActiveAction(action);
      }
      QTest::keyClick(&menu, Qt::Key_Return);
    });
  }
  void PressContextButton(QPoint place) {
    QTest::mousePress(widget->GetHeader().viewport(), Qt::RightButton, Qt::NoModifier, place);
    Settle();
  }
  std::size_t CountColumns() const { return tree->GetHeaderRow()->GetCountOfColumns(); }

  PopupProvider provider;
  qelcore::Ref<Vantrel::SequenceIndexTree> tree;
  std::unique_ptr<TreeWidget> widget;
  int menuCount = 0;
  QPoint menuPlace;
};

TEST_F(ColumnMenu, ThePressOfTheContextButtonOpensItAndAChoiceShowsAColumn) {
  ChooseItem("End Time");
  PressContextButton({60, 10});
  EXPECT_EQ(menuCount, 1);
  EXPECT_EQ(menuPlace, QPoint(60, 10));
  EXPECT_EQ(CountColumns(), 10U);
  EXPECT_EQ(widget->GetHeader().count(), 10);
}

TEST_F(ColumnMenu, ShownColumnsHaveACheckMark) {
  QStringList checked;
  WhenOpen([&](QMenu& menu) {
    for (QAction* const action : menu.actions()) {
      if (action->isChecked()) checked.append(action->text());
    }
    menu.close();
  });
  PressContextButton({60, 10});
  EXPECT_EQ(checked.join("|").toStdString(),
            "#|Clip Name|Duration|Effects|Label Color|Start Time|Track|Transitions");
  EXPECT_EQ(CountColumns(), 9U);
}

TEST_F(ColumnMenu, TheMenuKeyOpensItAndEscapeLeavesAllAsItWas) {
  WhenOpen([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
  QTest::keyClick(widget.get(), Qt::Key_Menu);
  EXPECT_EQ(menuCount, 1);
  EXPECT_EQ(CountColumns(), 9U);
}

TEST_F(ColumnMenu, AllColumnsCanBeHiddenAndBroughtBack) {
  for (const char* name :
       {"#", "Label Color", "Clip Name", "Track", "Start Time", "Duration", "Effects", "Transitions"}) {
    ChooseItem(name);
    PressContextButton({60, 10});
  }
  EXPECT_EQ(CountColumns(), 1U);
  EXPECT_TRUE(widget->GetColumns().GetShown().empty());
  ChooseItem("Show Default Columns");
  PressContextButton({60, 10});
  EXPECT_EQ(CountColumns(), 9U);
}

TEST_F(ColumnMenu, TheWindowMayGoWhileTheMenuIsOpen) {
  WhenOpen([&](QMenu&) { widget.reset(); });
  QMouseEvent event(QEvent::MouseButtonPress, QPointF(50, 10), QPointF(50, 10), Qt::RightButton,
                    Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(widget->GetHeader().viewport(), &event);
  EXPECT_EQ(menuCount, 1);
  EXPECT_EQ(CountColumns(), 9U);
}

}  // namespace
}  // namespace standalone
