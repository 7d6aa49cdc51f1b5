#include <gmock/gmock.h>

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>
#include <algorithm>

#include "desktop/DesktopWindowFixture.h"
#include "standalone/desktop/ExportDialog.h"
#include "standalone/desktop/OptionsDialog.h"
#include "standalone/window/MainQueueNotifier.h"

// The window goes at every moment: nothing that comes later may miss it.

namespace standalone {
namespace {

using testing::IsEmpty;

class DesktopWindowEnd : public DesktopWindowFixture {
 protected:
  /// Ends the window, and then everything that was under way.
  void End() {
    window.reset();
    SettleAll();
    EXPECT_THAT(host.TakeFailures(), IsEmpty());
    EXPECT_FALSE(host->GetPanel());
  }
  std::filesystem::path WriteCut() {
    return Write("Cut.otio", MakeTimelineFile("Cut", {"First", "Second"}));
  }
};

TEST_F(DesktopWindowEnd, BeforeAFileIsRead) {
  window->OpenFiles({WriteCut()});
  ASSERT_GT(host.GetPool().CountWaiting(), 0U);
  End();
  EXPECT_THAT(host->GetProject().GetSequences(), IsEmpty());
}

TEST_F(DesktopWindowEnd, WhenAFileIsReadAndNotYetShown) {
  window->OpenFiles({WriteCut()});
  host.GetPool().RunUntilEmpty();
  End();
  EXPECT_THAT(host->GetProject().GetSequences(), IsEmpty());
}

TEST_F(DesktopWindowEnd, AfterEachStepOfOpening) {
  options.isProbing = true;
  const auto file = WriteCut();
  for (int steps = 0; steps < 12; ++steps) {
    MakeWindow();
    SettleAll();
    window->OpenFiles({file});
    for (int i = 0; i < steps; ++i) {
      if (!host.GetPool().RunOne()) host.GetMainQueue().RunOne();
    }
    End();
  }
}

TEST_F(DesktopWindowEnd, WhileMediaFilesAreRead) {
  options.isProbing = true;
  MakeWindow();
  window->OpenFiles({SOURCE_FOLDER "/samples/demo.otio"});
  while (window->GetSession().GetDocuments().empty()) {
    ASSERT_TRUE(host.GetPool().RunOne() || host.GetMainQueue().RunOne());
  }
  ASSERT_TRUE(window->GetSession().IsBusy());
  End();
}

TEST_F(DesktopWindowEnd, DuringABuild) {
  window->OpenFiles({WriteCut()});
  while (!GetActive()) ASSERT_TRUE(host.GetPool().RunOne() || host.GetMainQueue().RunOne());
  ASSERT_GT(host.GetPool().CountWaiting(), 0U);
  End();
}

TEST_F(DesktopWindowEnd, WhenABuildIsDoneAndNotYetShown) {
  OpenCut();
  Choose({"Edit", "Find"});
  QTest::keyClicks(QApplication::focusWidget(), "s");
  host.GetPool().RunUntilEmpty();
  End();
}

TEST_F(DesktopWindowEnd, DuringPlayback) {
  OpenCut();
  window->GetTransport().PlayOrStop();
  const auto player = FindPlayer(GetActive());
  ASSERT_TRUE(player->IsPlaying());
  End();
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(DesktopWindowEnd, DuringTheExportDialog) {
  OpenCut();
  WhenNested([&] {
    EXPECT_NE(FindDialog<ExportDialog>(), nullptr);
    window.reset();
  });
  FindAction({"File", "Export Sequence Index…"})->trigger();
  EXPECT_EQ(window, nullptr);
  End();
}

TEST_F(DesktopWindowEnd, DuringTheFilterDialog) {
  OpenCut();
  WhenNested([&] {
    EXPECT_NE(FindDialog<OptionsDialog>(), nullptr);
    window.reset();
  });
  FindAction({"Edit", "Filters…"})->trigger();
  EXPECT_EQ(window, nullptr);
  End();
}

TEST_F(DesktopWindowEnd, WhileTheColumnsMenuIsOpen) {
  OpenCut();
  WhenNested([&] {
    EXPECT_NE(FindDialog<QMenu>(), nullptr);
    window.reset();
  });
  GetTable()->OpenColumnMenu();
  EXPECT_EQ(window, nullptr);
  End();
}

TEST_F(DesktopWindowEnd, WhileFilesAreChosen) {
  FindAction({"File", "Open…"})->trigger();
  EXPECT_NE(FindDialog<QFileDialog>(), nullptr);
  End();
  EXPECT_EQ(FindDialog<QFileDialog>(), nullptr);
}

TEST_F(DesktopWindowEnd, WhileHelpIsShown) {
  for (const char* const entry : {"Keyboard Shortcuts", "About"}) {
    MakeWindow();
    FindAction({"Help", entry})->trigger();
    EXPECT_NE(FindDialog<QMessageBox>(), nullptr);
    End();
    EXPECT_EQ(FindDialog<QMessageBox>(), nullptr);
  }
}

TEST_F(DesktopWindowEnd, AfterItsPanelWasClosed) {
  OpenCut();
  window->GetPanelDock()->close();
  window.reset();
  End();
}

TEST_F(DesktopWindowEnd, FilesThatWereChosenAreOpened) {
  const auto file = WriteCut();
  FindAction({"File", "Open…"})->trigger();
  auto* const dialog = FindDialog<QFileDialog>();
  ASSERT_NE(dialog, nullptr);
  dialog->selectFile(QString::fromStdString(file.native()));
  static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
  emit dialog->filesSelected({QString::fromStdString(file.native())});
  SettleAll();
  EXPECT_EQ(GetTitle(), "Cut — Cut.otio — Sequence Index");
}

TEST_F(DesktopWindowEnd, ReadingIsShownAndCanBeCancelled) {
  EXPECT_TRUE(window->GetLoadingBar().isHidden());
  window->OpenFiles({WriteCut()});
  host.GetPool().RunOne();
  while (window->GetLoadingBar().isHidden()) ASSERT_TRUE(host.GetMainQueue().RunOne());
  auto* const cancel = Find<QToolButton>(window->GetLoadingBar());
  ASSERT_NE(cancel, nullptr);
  cancel->click();
  SettleAll();
  EXPECT_TRUE(window->GetLoadingBar().isHidden());
  EXPECT_THAT(window->GetSession().GetDocuments(), IsEmpty());
}

TEST_F(DesktopWindowEnd, ClosingItCancelsWhatIsRead) {
  window->OpenFiles({WriteCut()});
  window->close();
  SettleAll();
  EXPECT_THAT(window->GetSession().GetDocuments(), IsEmpty());
}

}  // namespace
}  // namespace standalone
