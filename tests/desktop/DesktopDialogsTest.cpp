#include "standalone/desktop/DesktopDialogs.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/desktop/ExportDialog.h"
#include "standalone/desktop/OptionsDialog.h"
#include "support/Process.h"

namespace standalone {
namespace {

using MZ::SequenceIndex::Options;
using qelcore::UTF8String;

class Dialogs : public DesktopFixture {
 protected:
  template <typename Dialog>
  void WhenOpen(std::function<void(Dialog&)> act) {
    WhenNested([this, act] {
      auto* const dialog = window->findChild<Dialog*>();
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
    });
  }
  ExportChoice MakeChoice() const { return {{}, UTF8String("Harbour"), {}, true}; }

  process::Folder folder;
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  std::unique_ptr<DesktopDialogs> dialogs = std::make_unique<DesktopDialogs>(*window);
};

TEST_F(Dialogs, TheyAnswerForAsLongAsTheyLive) {
  EXPECT_EQ(GetDialogProvider(), dialogs.get());
  auto others = std::make_unique<DesktopDialogs>(*window);
  dialogs.reset();
  EXPECT_EQ(GetDialogProvider(), others.get());
  others.reset();
  EXPECT_EQ(GetDialogProvider(), nullptr);
}

TEST_F(Dialogs, ConfirmedOptionsAreTheAnswer) {
  WhenOpen<OptionsDialog>([](OptionsDialog& dialog) {
    EXPECT_TRUE(dialog.isModal());
    dialog.findChildren<QCheckBox*>().front()->click();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Options wanted;
  wanted.filterToggles[0] = true;
  EXPECT_EQ(dialogs->EditOptions(Options()), wanted);
  EXPECT_EQ(window->findChild<OptionsDialog*>(), nullptr);
}

TEST_F(Dialogs, CancelledOptionsAreNone) {
  WhenOpen<OptionsDialog>([](OptionsDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(dialogs->EditOptions(Options()), std::nullopt);
}

TEST_F(Dialogs, OptionsWhoseWindowGoesAreNone) {
  WhenOpen<OptionsDialog>([this](OptionsDialog&) { window.reset(); });
  EXPECT_EQ(dialogs->EditOptions(Options()), std::nullopt);
}

TEST_F(Dialogs, OptionsWhoseWindowGoesWithTheDialogsAreNone) {
  WhenOpen<OptionsDialog>([this](OptionsDialog&) {
    window.reset();
    dialogs.reset();
  });
  EXPECT_EQ(dialogs->EditOptions(Options()), std::nullopt);
}

TEST_F(Dialogs, AConfirmedExportIsTheAnswerAndItsFolderTheNextOnes) {
  dialogs->SetExportFolder(folder.GetPath().c_str());
  ExportChoice choice = MakeChoice();
  WhenOpen<ExportDialog>([](ExportDialog& dialog) { dialog.accept(); });
  EXPECT_TRUE(dialogs->ChooseExport(choice));
  EXPECT_EQ(choice.folder.View(), folder.GetPath().native());
  EXPECT_EQ(choice.extension.View(), ".csv");
  EXPECT_EQ(ToText(dialogs->GetExportFolder()), folder.GetPath().native());
  EXPECT_EQ(ToText(dialogs->TakeFileToOpen().value()), (folder / "Harbour.csv").native());
  EXPECT_EQ(dialogs->TakeFileToOpen(), std::nullopt);
}

TEST_F(Dialogs, AnExportThatIsNotToBeOpenedLeavesNoFileToOpen) {
  dialogs->SetExportFolder(folder.GetPath().c_str());
  ExportChoice choice = MakeChoice();
  WhenOpen<ExportDialog>([](ExportDialog& dialog) {
    dialog.findChild<QCheckBox*>()->click();
    dialog.accept();
  });
  EXPECT_TRUE(dialogs->ChooseExport(choice));
  EXPECT_FALSE(choice.isOpenedAfterwards);
  EXPECT_EQ(dialogs->TakeFileToOpen(), std::nullopt);
}

TEST_F(Dialogs, ACancelledExportChangesNothing) {
  dialogs->SetExportFolder(folder.GetPath().c_str());
  ExportChoice choice = MakeChoice();
  WhenOpen<ExportDialog>([](ExportDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_FALSE(dialogs->ChooseExport(choice));
  EXPECT_TRUE(choice.folder.Empty());
  EXPECT_EQ(dialogs->TakeFileToOpen(), std::nullopt);
}

TEST_F(Dialogs, AnExportWhoseWindowGoesIsCancelled) {
  dialogs->SetExportFolder(folder.GetPath().c_str());
  ExportChoice choice = MakeChoice();
  WhenOpen<ExportDialog>([this](ExportDialog&) {
    window.reset();
    dialogs.reset();
  });
  EXPECT_FALSE(dialogs->ChooseExport(choice));
}

TEST_F(Dialogs, AMenuIsShownToo) {
  class Node final : public qelui::ui::UI_SubView {};
  const auto node = qelcore::Ref(new Node());
  WhenNested([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down); });
  WhenNested([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return); });
  EXPECT_EQ(dialogs->ChooseFromMenu({{UTF8String("Track"), 9, true}}, *node, {}), 9U);
}

}  // namespace
}  // namespace standalone
