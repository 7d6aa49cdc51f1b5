#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "desktop/DesktopWindowFixture.h"
#include "standalone/desktop/ExportDialog.h"
#include "standalone/desktop/OptionsDialog.h"
#include "standalone/toolkit/TreeControl.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

class DesktopWindowPanel : public DesktopWindowFixture {
 protected:
  QToolButton* FindButton(const QString& name) {
    for (auto* const button : window->GetPanelDock()->findChildren<QToolButton*>()) {
      if (button->accessibleName() == name) return button;
    }
    return nullptr;
  }
  /// Moves the focus and presses a key there.
  void Press(QWidget& widget, Qt::Key key) {
    widget.setFocus();
    QTest::keyClick(QApplication::focusWidget(), key);
    SettleAll();
  }
  int GetSpeed() { return FindPlayer(GetActive())->GetSpeed(); }
  bool HasText(const QString& text) {
    for (const auto* const label : window->findChildren<QLabel*>()) {
      if (label->text() == text) return true;
    }
    return false;
  }
};

TEST_F(DesktopWindowPanel, TheWindowMenuClosesAndOpensIt) {
  OpenCut();
  EXPECT_TRUE(FindAction({"Window", "Sequence Index"})->isChecked());
  Choose({"Window", "Sequence Index"});
  EXPECT_EQ(window->GetPanelDock(), nullptr);
  EXPECT_EQ(host->GetPanel(), nullptr);
  EXPECT_FALSE(FindAction({"Window", "Sequence Index"})->isChecked());
  Choose({"Window", "Sequence Index"});
  EXPECT_EQ(GetPanelTitle(), "Sequence Index: Cut");
  EXPECT_EQ(CountRows(), 2U);
}

TEST_F(DesktopWindowPanel, ItsButtonClosesIt) {
  FindButton("Close panel")->click();
  SettleAll();
  EXPECT_EQ(window->GetPanelDock(), nullptr);
  EXPECT_EQ(GetTable(), nullptr);
}

TEST_F(DesktopWindowPanel, ItOpensWhereItWasClosed) {
  window->addDockWidget(Qt::RightDockWidgetArea, window->GetPanelDock());
  SettleAll();
  window->resizeDocks({window->GetPanelDock()}, {930}, Qt::Horizontal);
  SettleAll();
  const int width = window->GetPanelDock()->width();
  Choose({"Window", "Sequence Index"});
  Choose({"Window", "Sequence Index"});
  EXPECT_EQ(window->dockWidgetArea(window->GetPanelDock()), Qt::RightDockWidgetArea);
  EXPECT_EQ(window->GetPanelDock()->width(), width);
}

TEST_F(DesktopWindowPanel, ItsPlaceIsKeptForTheNextRun) {
  window->addDockWidget(Qt::RightDockWidgetArea, window->GetPanelDock());
  SettleAll();
  window->close();
  MakeWindow();
  EXPECT_EQ(window->dockWidgetArea(window->GetPanelDock()), Qt::RightDockWidgetArea);
}

TEST_F(DesktopWindowPanel, ItHasTheLargerPartOfAWindowAtFirst) {
  EXPECT_GT(window->GetPanelDock()->height(), window->height() / 3);
  EXPECT_GT(window->GetTimeline().height(), window->height() / 4);
}

TEST_F(DesktopWindowPanel, ItExistsOnlyWhileItsFeatureIsOn) {
  OpenCut();
  const QStringList feature = {"Window", "Experimental Features", "Sequence Index"};
  ASSERT_NE(FindAction(feature), nullptr);
  EXPECT_TRUE(FindAction(feature)->isChecked());
  Choose(feature);
  EXPECT_EQ(window->GetPanelDock(), nullptr);
  EXPECT_EQ(FindAction({"Window", "Sequence Index"}), nullptr);
  window->OpenIndexPanel();
  EXPECT_EQ(window->GetPanelDock(), nullptr);
  EXPECT_FALSE(FindAction(feature)->isChecked());
  Choose(feature);
  EXPECT_EQ(GetPanelTitle(), "Sequence Index: Cut");
  EXPECT_EQ(CountRows(), 2U);
  EXPECT_NE(FindAction({"Window", "Sequence Index"}), nullptr);
}

TEST_F(DesktopWindowPanel, ItsMenuOffersExportAndWhatIsKeptForLater) {
  QMenu* const menu = FindButton("Panel menu")->menu();
  std::vector<std::pair<std::string, bool>> entries;
  // Opened twice, it is the same.
  for (int i = 0; i < 2; ++i) emit menu->aboutToShow();
  for (const QAction* const action : menu->actions()) {
    entries.emplace_back(ToText(action->text()), action->isEnabled());
  }
  EXPECT_THAT(entries, ElementsAre(Pair("Reserved (36001)", false), Pair("Reserved (36002)", false),
                                   Pair("Export Sequence Index…", true)));
}

TEST_F(DesktopWindowPanel, FindGoesToTheSearchField) {
  window->GetTimeline().setFocus();
  Choose({"Edit", "Find"});
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(ToText(QApplication::focusWidget()->accessibleName()), "Search");
}

TEST_F(DesktopWindowPanel, FindOpensAPanelThatIsClosed) {
  Choose({"Window", "Sequence Index"});
  Choose({"Edit", "Find"});
  EXPECT_NE(window->GetPanelDock(), nullptr);
}

TEST_F(DesktopWindowPanel, WhatIsTypedIsSearchedFor) {
  OpenCut();
  Choose({"Edit", "Find"});
  QTest::keyClicks(QApplication::focusWidget(), "second");
  SettleAll();
  EXPECT_EQ(CountRows(), 1U);
}

TEST_F(DesktopWindowPanel, FiltersAreChosenInTheirDialog) {
  bool isShown = false;
  WhenNested([&] {
    auto* const dialog = FindDialog<OptionsDialog>();
    isShown = dialog != nullptr;
    if (dialog != nullptr) dialog->reject();
  });
  Choose({"Edit", "Filters…"});
  EXPECT_TRUE(isShown);
}

TEST_F(DesktopWindowPanel, RowsAreMadeHigherAndLower) {
  OpenCut();
  const float lowest = GetTable()->GetTree()->GetRowHeight();
  Choose({"View", "Row Scale", "Higher"});
  const float higher = GetTable()->GetTree()->GetRowHeight();
  EXPECT_GT(higher, lowest);
  Choose({"View", "Row Scale", "Higher"});
  Choose({"View", "Row Scale", "Lower"});
  EXPECT_FLOAT_EQ(GetTable()->GetTree()->GetRowHeight(), higher);
  Choose({"View", "Row Scale", "Lowest"});
  EXPECT_EQ(GetTable()->GetTree()->GetRowHeight(), lowest);
}

TEST_F(DesktopWindowPanel, TransportKeysPlayFromTableTimelineAndList) {
  OpenCut();
  for (QWidget* const widget :
       {static_cast<QWidget*>(GetTable()), static_cast<QWidget*>(&window->GetTimeline()),
        static_cast<QWidget*>(&window->GetSequenceList())}) {
    Press(*widget, Qt::Key_L);
    EXPECT_EQ(GetSpeed(), 1) << widget->accessibleName().toStdString();
    Press(*widget, Qt::Key_L);
    EXPECT_EQ(GetSpeed(), 2);
    Press(*widget, Qt::Key_K);
    EXPECT_EQ(GetSpeed(), 0);
    Press(*widget, Qt::Key_J);
    EXPECT_LE(GetSpeed(), 0);
    Press(*widget, Qt::Key_K);
  }
}

TEST_F(DesktopWindowPanel, TheTimelineTakesTheOtherTransportKeys) {
  OpenCut();
  QWidget& timeline = window->GetTimeline();
  Press(timeline, Qt::Key_Right);
  EXPECT_EQ(GetTime(), "00:00:00:01");
  Press(timeline, Qt::Key_Left);
  EXPECT_EQ(GetTime(), "00:00:00:00");
  Press(timeline, Qt::Key_Down);
  EXPECT_EQ(GetTime(), "00:00:01:00");
  Press(timeline, Qt::Key_Up);
  EXPECT_EQ(GetTime(), "00:00:00:00");
  Press(timeline, Qt::Key_End);
  EXPECT_EQ(GetTime(), "00:00:02:00");
  Press(timeline, Qt::Key_Home);
  EXPECT_EQ(GetTime(), "00:00:00:00");
  Press(timeline, Qt::Key_Space);
  EXPECT_EQ(GetSpeed(), 1);
  Press(timeline, Qt::Key_Space);
  EXPECT_EQ(GetSpeed(), 0);
}

TEST_F(DesktopWindowPanel, LettersTypedIntoAFieldAreNoTransportKeys) {
  OpenCut();
  Choose({"Edit", "Find"});
  QTest::keyClicks(QApplication::focusWidget(), "jkl ");
  SettleAll();
  EXPECT_EQ(GetSpeed(), 0);
  EXPECT_EQ(GetTime(), "00:00:00:00");
}

TEST_F(DesktopWindowPanel, ThePlayheadsMoveSelectsTheRowsThere) {
  OpenCut();
  window->GetTimeline().setFocus();
  Choose({"Playback", "Next Cut"});
  const auto selected = GetTable()->GetTree()->GetSelectedRows();
  ASSERT_EQ(selected.size(), 1U);
  EXPECT_EQ(GetTable()->GetTree()->GetRowIndex(selected.front()), 1U);
}

TEST_F(DesktopWindowPanel, SelectedRowsAreSelectedInTheTimelineOnRequest) {
  OpenCut();
  GetTable()->setFocus();
  GetTable()->GetTree()->GetControl().Click(1, 0);
  SettleAll();
  EXPECT_FALSE(HasText("1 selected in the timeline"));
  QTest::keyClick(Find<QCheckBox>(*window->GetPanelDock()), Qt::Key_Space);
  GetTable()->setFocus();
  GetTable()->GetTree()->GetControl().Click(0, 0);
  SettleAll();
  EXPECT_TRUE(HasText("1 selected in the timeline"));
  EXPECT_EQ(GetTime(), "00:00:00:00");
}

TEST_F(DesktopWindowPanel, TheWindowExportsWhatTheCommandLineExports) {
  Open(SOURCE_FOLDER "/samples/demo.otio");
  window->GetDialogs().SetExportFolder(QString::fromStdString(folder.GetPath().native()));
  WhenNested([&] {
    auto* const dialog = FindDialog<ExportDialog>();
    ASSERT_NE(dialog, nullptr);
    Find<QCheckBox>(*dialog)->setChecked(false);
    dialog->accept();
  });
  Choose({"File", "Export Sequence Index…"});
  const auto file = folder / "The Last Ferry.csv";
  EXPECT_EQ(process::ReadFile(file),
            process::ReadFile(SOURCE_FOLDER "/tests/program/fixtures/demo-default.csv"));
}

TEST_F(DesktopWindowPanel, WithoutThePanelAnExportIsRefusedWithASentence) {
  Choose({"Window", "Sequence Index"});
  Choose({"File", "Export Sequence Index…"});
  EXPECT_THAT(GetSentence(), HasSubstr("closed"));
}

}  // namespace
}  // namespace standalone
