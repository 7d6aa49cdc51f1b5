#include <gmock/gmock.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTest>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/desktop/ReportView.h"
#include "standalone/desktop/SequenceList.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

bool IsTaken(QWidget& widget, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(key)));
  event.setAccepted(true);
  QApplication::sendEvent(&widget, &event);
  return event.isAccepted();
}

class Sequences : public DesktopFixture {
 protected:
  Sequences() {
    list->resize(300, 200);
    Show(*list);
    Fill();
  }
  void Fill() { list->Show(documents, reel); }
  SequenceList::Actions MakeActions() {
    return {[this](const Sequence& sequence) { Keep("activate ", sequence); },
            [this](const Sequence& sequence) { Keep("close ", sequence); },
            [this](const std::filesystem::path& file) { done.push_back("close " + file.native()); }};
  }
  void Keep(const char* what, const Sequence& sequence) {
    done.push_back(what + std::string(sequence->GetName().View()));
    // As the window does, at once.
    Fill();
  }
  QTreeWidgetItem* Find(const char* name) const {
    const auto found = list->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.front();
  }
  QPoint At(const char* name) const { return list->visualItemRect(Find(name)).center(); }
  /// Opens the menu of an item and chooses from it.
  void ChooseFromMenu(const char* name, std::function<void(QMenu&)> act) {
    WhenNested([act] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      act(*menu);
    });
    const QPoint place = At(name);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &event);
  }
  static void Trigger(QMenu& menu, const char* text) {
    for (QAction* const action : menu.actions()) {
      if (action->text() == text) {
        menu.setActiveAction(action);
        QTest::keyClick(&menu, Qt::Key_Return);
        return;
      }
    }
    ADD_FAILURE() << text;
    menu.close();
  }

  Sequence cut = AddSequence(drafts::MakeOneClip("Cut"));
  Sequence reel = AddSequence(drafts::MakeOneClip("Reel"));
  std::vector<OpenDocument> documents{{"/cuts/one.otio", {cut, reel}, {}, {}, {}},
                                      {"/cuts/two.xml", {}, {}, {}, {}}};
  std::vector<std::string> done;
  std::unique_ptr<SequenceList> list = std::make_unique<SequenceList>(MakeActions());
};

TEST_F(Sequences, FilesStandWithTheirSequences) {
  ASSERT_EQ(list->topLevelItemCount(), 2);
  const QTreeWidgetItem* const file = list->topLevelItem(0);
  EXPECT_EQ(ToText(file->text(0)), "one.otio");
  EXPECT_EQ(ToText(file->toolTip(0)), "/cuts/one.otio");
  EXPECT_TRUE(file->isExpanded());
  ASSERT_EQ(file->childCount(), 2);
  EXPECT_EQ(ToText(file->child(0)->text(0)), "Cut");
}

TEST_F(Sequences, TheActiveOneIsMarkedForEyesAndForAssistivePrograms) {
  EXPECT_TRUE(Find("Reel")->font(0).bold());
  EXPECT_FALSE(Find("Cut")->font(0).bold());
  EXPECT_EQ(list->currentItem(), Find("Reel"));
  auto* const face = QAccessible::queryAccessibleInterface(list.get());
  EXPECT_EQ(ToText(face->text(QAccessible::Name)), "Sequences");
  EXPECT_EQ(face->role(), QAccessible::Tree);
  EXPECT_EQ(ToText(Find("Reel")->data(0, Qt::AccessibleDescriptionRole).toString()), "active");
}

TEST_F(Sequences, ADoubleClickOrEnterActivates) {
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, At("Cut"));
  EXPECT_THAT(done, IsEmpty());
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, At("Cut"));
  QTest::keyClick(list.get(), Qt::Key_Return);
  EXPECT_THAT(done, ElementsAre("activate Cut", "activate Reel"));
}

TEST_F(Sequences, EnterOnAFileActivatesNothing) {
  list->setCurrentItem(Find("one.otio"));
  QTest::keyClick(list.get(), Qt::Key_Return);
  EXPECT_THAT(done, IsEmpty());
}

TEST_F(Sequences, DeleteClosesASequenceOrAFile) {
  list->setCurrentItem(Find("Cut"));
  QTest::keyClick(list.get(), Qt::Key_Delete);
  list->setCurrentItem(Find("two.xml"));
  QTest::keyClick(list.get(), Qt::Key_Delete);
  EXPECT_THAT(done, ElementsAre("close Cut", "close /cuts/two.xml"));
}

TEST_F(Sequences, TheMenuDoesTheSame) {
  ChooseFromMenu("Cut", [](QMenu& menu) { Trigger(menu, "&Activate"); });
  ChooseFromMenu("Cut", [](QMenu& menu) { Trigger(menu, "&Close Sequence"); });
  ChooseFromMenu("two.xml", [](QMenu& menu) { Trigger(menu, "&Close File"); });
  ChooseFromMenu("Cut", [](QMenu& menu) { menu.close(); });
  EXPECT_THAT(done, ElementsAre("activate Cut", "close Cut", "close /cuts/two.xml"));
}

TEST_F(Sequences, AListFilledAnewUnderItsMenuClosesWhatTheMenuWasOpenedFor) {
  ChooseFromMenu("Cut", [this](QMenu& menu) {
    documents.front().sequences = {reel};
    Fill();
    Trigger(menu, "&Close Sequence");
  });
  EXPECT_THAT(done, ElementsAre("close Cut"));
}

TEST_F(Sequences, AListThatGoesUnderItsMenuDoesNothing) {
  WhenNested([this] { list.reset(); });
  const QPoint place = At("Cut");
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
  QApplication::sendEvent(list->viewport(), &event);
  EXPECT_EQ(list, nullptr);
  EXPECT_THAT(done, IsEmpty());
}

TEST_F(Sequences, PlaybackKeysAreLeftToTheWindow) {
  for (const int key : {Qt::Key_J, Qt::Key_K, Qt::Key_L, Qt::Key_Space}) {
    EXPECT_FALSE(IsTaken(*list, key)) << key;
  }
  EXPECT_TRUE(IsTaken(*list, Qt::Key_C));
}

class Report : public DesktopFixture {
 protected:
  Report() {
    document.notes.push_back({"track V1", 12, "Clip <1> has a negative duration."});
    document.report.push_back({"", 0, "Not shown: 3 markers."});
  }
  OpenDocument document;
  ReportView view;
};

TEST_F(Report, NotesStandInGroupsWithTheirPlaces) {
  view.Show(&document);
  ASSERT_EQ(view.topLevelItemCount(), 2);
  EXPECT_EQ(ToText(view.topLevelItem(0)->text(0)), "Items");
  EXPECT_EQ(ToText(view.topLevelItem(0)->child(0)->text(0)),
            "Clip <1> has a negative duration.\ntrack V1, line 12");
  EXPECT_EQ(ToText(view.topLevelItem(1)->child(0)->text(0)), "Not shown: 3 markers.");
  EXPECT_EQ(view.CountLines(), 2);
}

TEST_F(Report, TroubleWithTheFileStandsFirst) {
  document.trouble = "The file ends in the middle.";
  view.Show(&document);
  EXPECT_EQ(ToText(view.topLevelItem(0)->text(0)), "The file as it is now can't be read");
  EXPECT_EQ(view.CountLines(), 3);
}

TEST_F(Report, NothingIsShownOfNoDocument) {
  view.Show(&document);
  view.Show(nullptr);
  EXPECT_EQ(view.topLevelItemCount(), 0);
  EXPECT_EQ(view.CountLines(), 0);
}

TEST_F(Report, ALongSentenceIsBrokenIntoLines) {
  document.notes.front().sentence = std::string(40, 'a') + " " + std::string(40, 'b');
  view.resize(420, 300);
  Show(view);
  view.Show(&document);
  Settle();
  const auto* const item = view.topLevelItem(0)->child(0);
  const int narrow = view.visualItemRect(item).height();
  view.resize(1200, 300);
  Settle();
  ASSERT_GT(view.columnWidth(0), 900);
  EXPECT_LT(view.visualItemRect(item).height(), narrow);
}

TEST_F(Report, ItIsNamedAndLeavesPlaybackKeysToTheWindow) {
  EXPECT_EQ(ToText(QAccessible::queryAccessibleInterface(&view)->text(QAccessible::Name)),
            "Import report");
  view.Show(&document);
  EXPECT_FALSE(IsTaken(view, Qt::Key_Space));
  EXPECT_FALSE(IsTaken(view, Qt::Key_L));
}

}  // namespace
}  // namespace standalone
