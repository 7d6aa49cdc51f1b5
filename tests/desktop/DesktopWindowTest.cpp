#include "standalone/desktop/DesktopWindow.h"

#include <gmock/gmock.h>

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>

#include "desktop/DesktopWindowFixture.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DesktopWindowTest : public DesktopWindowFixture {
 protected:
  std::vector<std::string> GetEntries(const QStringList& path) {
    std::vector<std::string> entries;
    const QAction* const menu = path.isEmpty() ? nullptr : FindAction(path);
    for (const QAction* const action : menu ? menu->menu()->actions() : window->menuBar()->actions()) {
      if (!action->isSeparator()) entries.push_back(ToText(action->text().remove('&')));
    }
    return entries;
  }
  std::string GetKeys(const QStringList& path) {
    const QAction* const action = FindAction(path);
    return action == nullptr ? "no entry" : ToText(action->shortcut().toString());
  }
};

TEST_F(DesktopWindowTest, TheMenusStandInTheirUsualOrder) {
  EXPECT_THAT(GetEntries({}), ElementsAre("File", "Edit", "View", "Playback", "Window", "Help"));
  EXPECT_THAT(GetEntries({"File"}),
              ElementsAre("Open…", "Open Recent", "Reload", "Export Sequence Index…", "Close Sequence",
                          "Close File", "Quit"));
  EXPECT_THAT(GetEntries({"View"}),
              ElementsAre("Theme", "Row Scale", "Time Display", "Zoom Timeline In", "Zoom Timeline Out",
                          "Zoom Timeline to All"));
  EXPECT_THAT(GetEntries({"Window"}),
              ElementsAre("Sequence Index", "Sequences", "Import Report", "Experimental Features"));
}

TEST_F(DesktopWindowTest, TheUsualKeysDoTheUsualThings) {
  EXPECT_EQ(GetKeys({"File", "Open…"}), "Ctrl+O");
  EXPECT_EQ(GetKeys({"File", "Reload"}), "Ctrl+R");
  EXPECT_EQ(GetKeys({"File", "Export Sequence Index…"}), "Ctrl+E");
  EXPECT_EQ(GetKeys({"File", "Close Sequence"}), "Ctrl+W");
  EXPECT_EQ(GetKeys({"File", "Close File"}), "Ctrl+Shift+W");
  EXPECT_EQ(GetKeys({"File", "Quit"}), "Ctrl+Q");
  EXPECT_EQ(GetKeys({"Edit", "Find"}), "Ctrl+F");
  EXPECT_EQ(GetKeys({"Edit", "Filters…"}), "Ctrl+Shift+F");
  EXPECT_EQ(GetKeys({"View", "Row Scale", "Higher"}), "Ctrl++");
  EXPECT_EQ(GetKeys({"View", "Row Scale", "Lower"}), "Ctrl+-");
  EXPECT_EQ(GetKeys({"View", "Row Scale", "Lowest"}), "Ctrl+0");
  EXPECT_EQ(GetKeys({"Playback", "Go to Time"}), "Ctrl+G");
  EXPECT_EQ(GetKeys({"Help", "Keyboard Shortcuts"}), "F1");
}

TEST_F(DesktopWindowTest, AnOpenedFileIsShownEverywhere) {
  EXPECT_EQ(GetTitle(), "Sequence Index");
  EXPECT_EQ(GetPanelTitle(), "Sequence Index: (no sequence)");
  OpenCut();
  EXPECT_EQ(GetTitle(), "Cut — Cut.otio — Sequence Index");
  EXPECT_EQ(GetPanelTitle(), "Sequence Index: Cut");
  EXPECT_EQ(CountRows(), 2U);
  EXPECT_EQ(window->GetTimeline().GetSequence(), GetActive());
  EXPECT_TRUE(window->GetTransport().isEnabled());
  EXPECT_EQ(window->GetSequenceList().topLevelItemCount(), 1);
}

TEST_F(DesktopWindowTest, SeveralFilesAreOpenedOneAfterTheOther) {
  const auto first = Write("a.otio", MakeTimelineFile("A", {"Clip"}));
  const auto second = Write("b.otio", MakeTimelineFile("B", {"Clip"}));
  window->OpenFiles({first, second});
  SettleAll();
  EXPECT_EQ(window->GetSession().GetDocuments().size(), 2U);
  EXPECT_EQ(GetTitle(), "B — b.otio — Sequence Index");
}

TEST_F(DesktopWindowTest, ASequenceIsActivatedInTheListAndTheTitlesFollow) {
  OpenCut("A");
  OpenCut("B");
  auto& list = window->GetSequenceList();
  emit list.itemActivated(list.topLevelItem(0)->child(0), 0);
  SettleAll();
  EXPECT_EQ(GetTitle(), "A — A.otio — Sequence Index");
  EXPECT_EQ(GetPanelTitle(), "Sequence Index: A");
}

TEST_F(DesktopWindowTest, ClosingASequenceShowsTheOneBefore) {
  OpenCut("A");
  OpenCut("B");
  Choose({"File", "Close Sequence"});
  EXPECT_EQ(GetTitle(), "A — A.otio — Sequence Index");
  Choose({"File", "Close Sequence"});
  EXPECT_EQ(GetTitle(), "Sequence Index");
  EXPECT_FALSE(window->GetTransport().isEnabled());
  Choose({"File", "Close Sequence"});
  EXPECT_THAT(GetSentence(), IsEmpty());
}

TEST_F(DesktopWindowTest, ClosingAFileTakesItOutOfTheList) {
  OpenCut("A");
  OpenCut("B");
  Choose({"File", "Close File"});
  EXPECT_EQ(window->GetSequenceList().topLevelItemCount(), 1);
  EXPECT_EQ(GetTitle(), "A — A.otio — Sequence Index");
  Choose({"File", "Close File"});
  Choose({"File", "Close File"});
  EXPECT_EQ(window->GetSequenceList().topLevelItemCount(), 0);
}

TEST_F(DesktopWindowTest, OpenedFilesAreRemembered) {
  const auto first = OpenCut("A");
  const auto second = OpenCut("B");
  EXPECT_THAT(GetEntries({"File", "Open Recent"}),
              ElementsAre(second.native(), first.native(), "Clear List"));
  Choose({"File", "Close File"});
  Choose({"File", "Open Recent", QString::fromStdString(second.native())});
  EXPECT_EQ(GetTitle(), "B — B.otio — Sequence Index");
  Choose({"File", "Open Recent", "Clear List"});
  EXPECT_THAT(GetEntries({"File", "Open Recent"}), ElementsAre("Clear List"));
  EXPECT_FALSE(FindAction({"File", "Open Recent", "Clear List"})->isEnabled());
}

TEST_F(DesktopWindowTest, DroppedFilesAreOpened) {
  QMimeData files;
  files.setUrls(
      {QUrl::fromLocalFile(QString::fromStdString(Write("a.otio", MakeTimelineFile("A", {"Clip"})))),
       QUrl("https://example.org/b.otio")});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &drop);
  SettleAll();
  EXPECT_EQ(GetTitle(), "A — a.otio — Sequence Index");
}

TEST_F(DesktopWindowTest, ADroppedTextIsNotTaken) {
  QMimeData text;
  text.setText("a.otio");
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QApplication::sendEvent(window.get(), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST_F(DesktopWindowTest, AFileThatCantBeOpenedIsSaidWithItsPlace) {
  const auto file = Open(Write("bad.otio", "{\n\"OTIO_SCHEMA\": 5,\n"));
  EXPECT_THAT(GetSentence(), testing::StartsWith(file.native() + ":"));
  OpenCut();
  EXPECT_THAT(GetSentence(), HasSubstr("bad.otio")) << "another file has nothing to do with it";
  process::WriteFile(file, MakeTimelineFile("Good", {"Clip"}));
  Open(file);
  EXPECT_THAT(GetSentence(), IsEmpty());
}

TEST_F(DesktopWindowTest, AFailureOfTheHostIsSaid) {
  host->GetRuntime().GetLog().ReportFailure("export", "The disk is full.");
  SettleAll();
  EXPECT_THAT(GetSentence(), HasSubstr("The disk is full."));
  EXPECT_THAT(host.TakeFailures(), testing::SizeIs(1));
}

TEST_F(DesktopWindowTest, ALongSentenceDoesNotMakeTheWindowWider) {
  const int width = window->minimumSizeHint().width();
  window->GetStatusLine().Say(QString("Something went wrong. ").repeated(100));
  Settle();
  EXPECT_EQ(window->minimumSizeHint().width(), width);
  EXPECT_LT(window->GetStatusLine().text().size(), 500);
}

TEST_F(DesktopWindowTest, AFileIsReadAgainOnRequestAndThePanelKeepsItsPlace) {
  const auto file = OpenCut();
  const PanelDock* const dock = window->GetPanelDock();
  const auto sequence = GetActive();
  process::WriteFile(file, MakeTimelineFile("Cut", {"First", "New", "Second"}));
  Choose({"File", "Reload"});
  EXPECT_EQ(CountRows(), 3U);
  EXPECT_EQ(window->GetPanelDock(), dock);
  EXPECT_EQ(GetActive(), sequence);
}

TEST_F(DesktopWindowTest, AFileThatBecameUnreadableLeavesWhatIsShownAndSaysSo) {
  const auto file = OpenCut();
  process::WriteFile(file, "{");
  Choose({"File", "Reload"});
  EXPECT_EQ(CountRows(), 2U);
  EXPECT_THAT(GetSentence(), HasSubstr("What is shown is what was read before."));
  EXPECT_GT(window->GetReport().CountLines(), 0);
  process::WriteFile(file, MakeTimelineFile("Cut", {"First"}));
  Choose({"File", "Reload"});
  EXPECT_EQ(CountRows(), 1U);
  EXPECT_THAT(GetSentence(), IsEmpty());
}

TEST_F(DesktopWindowTest, AChangedFileIsReadAgainByItself) {
  const auto file = OpenCut();
  process::WriteFile(file, MakeTimelineFile("Cut", {"First", "New", "Second"}));
  EXPECT_TRUE(WaitFor([&] {
    host.Settle();
    return CountRows() == 3;
  }));
}

TEST_F(DesktopWindowTest, AReplacedFileIsReadAgainByItselfEachTime) {
  const auto file = OpenCut();
  for (const std::size_t count : {3U, 1U}) {
    const auto other = Write("new", MakeTimelineFile("Cut", std::vector<std::string>(count, "Clip")));
    std::filesystem::rename(other, file);
    EXPECT_TRUE(WaitFor([&] {
      host.Settle();
      return CountRows() == count;
    }));
  }
}

TEST_F(DesktopWindowTest, TimesAreWrittenAsChosen) {
  OpenCut();
  EXPECT_TRUE(FindAction({"View", "Time Display", "As in the File"})->isChecked());
  Choose({"View", "Time Display", "Frames"});
  EXPECT_EQ(GetTime(), "0");
  EXPECT_TRUE(FindAction({"View", "Time Display", "Frames"})->isChecked());
  EXPECT_FALSE(FindAction({"View", "Time Display", "As in the File"})->isChecked());
  Choose({"View", "Time Display", "As in the File"});
  EXPECT_EQ(GetTime(), "00:00:00:00");
}

TEST_F(DesktopWindowTest, TheFormatThatTheProgramWasStartedWithIsTheOneChosen) {
  options.timeFormat = TimeFormat::kMilliseconds;
  MakeWindow();
  EXPECT_TRUE(FindAction({"View", "Time Display", "Milliseconds"})->isChecked());
}

TEST_F(DesktopWindowTest, TheThemeIsKeptForTheNextRun) {
  EXPECT_TRUE(FindAction({"View", "Theme", "Dark"})->isChecked());
  Choose({"View", "Theme", "Light"});
  EXPECT_EQ(GetTheme(), ThemeName::kLight);
  SetTheme(ThemeName::kDark);
  MakeWindow();
  EXPECT_EQ(GetTheme(), ThemeName::kLight);
  EXPECT_TRUE(FindAction({"View", "Theme", "Light"})->isChecked());
  Choose({"View", "Theme", "Dark"});
}

TEST_F(DesktopWindowTest, TheTimelineIsZoomedFromTheMenu) {
  OpenCut();
  const double all = window->GetTimeline().GetScale().GetTicksPerPixel();
  Choose({"View", "Zoom Timeline In"});
  EXPECT_LT(window->GetTimeline().GetScale().GetTicksPerPixel(), all);
  Choose({"View", "Zoom Timeline to All"});
  EXPECT_EQ(window->GetTimeline().GetScale().GetTicksPerPixel(), all);
  Choose({"View", "Zoom Timeline In"});
  Choose({"View", "Zoom Timeline Out"});
  EXPECT_DOUBLE_EQ(window->GetTimeline().GetScale().GetTicksPerPixel(), all);
}

TEST_F(DesktopWindowTest, ItIsPlayedFromTheMenu) {
  OpenCut();
  const auto player = FindPlayer(GetActive());
  Choose({"Playback", "Play or Stop"});
  EXPECT_EQ(player->GetSpeed(), 1);
  Choose({"Playback", "Play Faster"});
  EXPECT_EQ(player->GetSpeed(), 2);
  Choose({"Playback", "Play or Stop"});
  EXPECT_EQ(player->GetSpeed(), 0);
  Choose({"Playback", "Next Cut"});
  EXPECT_EQ(GetTime(), "00:00:01:00");
  Choose({"Playback", "Play Backwards"});
  EXPECT_EQ(player->GetSpeed(), -1);
  Choose({"Playback", "Play or Stop"});
  Choose({"Playback", "Previous Cut"});
  EXPECT_EQ(GetTime(), "00:00:00:00");
}

TEST_F(DesktopWindowTest, ATimeIsTypedAfterAskingForIt) {
  OpenCut();
  Choose({"Playback", "Go to Time"});
  QTest::keyClicks(QApplication::focusWidget(), "00:00:01:05");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  SettleAll();
  EXPECT_EQ(FindPlayer(GetActive())->GetCurrentPosition(), drafts::Frame(30));
}

TEST_F(DesktopWindowTest, QuitClosesTheWindow) {
  FindAction({"File", "Quit"})->trigger();
  EXPECT_FALSE(window->isVisible());
}

TEST_F(DesktopWindowTest, PlacesOfPanelsAreKeptForTheNextRun) {
  FindAction({"Window", "Import Report"})->trigger();
  Settle();
  window->resize(1400, 900);
  window->close();
  MakeWindow();
  EXPECT_FALSE(FindAction({"Window", "Import Report"})->isChecked());
  EXPECT_TRUE(FindAction({"Window", "Sequences"})->isChecked());
  EXPECT_EQ(window->size(), QSize(1400, 900));
}

}  // namespace
}  // namespace standalone
