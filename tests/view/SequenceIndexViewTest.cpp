#include "view/SequenceIndexView.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "support/Process.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using View = ViewFixture;
using qelcore::Ref;

TEST_F(View, HasNoControlsAndDefaultOptionsBeforeItsContentsExist) {
  EXPECT_FALSE(view->GetSearchField());
  EXPECT_FALSE(view->GetFilterButton());
  EXPECT_FALSE(view->GetStatusText());
  EXPECT_FALSE(view->GetRowScaleSlider());
  EXPECT_FALSE(view->GetUpdateSelectionCheckbox());
  EXPECT_FALSE(view->GetTree());
  EXPECT_TRUE(view->GetSearchText().Empty());
  EXPECT_EQ(view->GetOptions(), MZ::SequenceIndex::Options());
}

TEST_F(View, TheReservedCommandsAreKnownAndDisabled) {
  for (const UIF::CommandID id : {36001U, 36002U}) {
    bool isEnabled = true;
    EXPECT_TRUE(view->FindCommandStatus(id, isEnabled));
    EXPECT_FALSE(isEnabled);
  }
}

TEST_F(View, TheExportCommandIsKnownAndEnabled) {
  bool isEnabled = false;
  EXPECT_TRUE(view->FindCommandStatus(36003, isEnabled));
  EXPECT_TRUE(isEnabled);
}

TEST_F(View, OtherCommandsAreUnknown) {
  for (const UIF::CommandID id : {0U, 36000U, 36004U}) {
    bool isEnabled = true;
    EXPECT_FALSE(view->FindCommandStatus(id, isEnabled));
    EXPECT_TRUE(isEnabled) << "left as it was";
    EXPECT_FALSE(view->ObeyCommand(UIF::Command(id)));
  }
}

TEST_F(View, TheReservedCommandsAreSwallowed) {
  const hostcalls::Recording recording;
  EXPECT_TRUE(view->ObeyCommand(UIF::Command(36001)));
  EXPECT_TRUE(view->ObeyCommand(UIF::Command(36002)));
  EXPECT_TRUE(recording.GetCalls().empty());
  EXPECT_EQ(answers.exportCount, 0);
}

TEST_F(View, CommandsThatItDoesNotHandleGoToTheBase) {
  const hostcalls::Recording recording;
  for (const UIF::CommandID id : {36000U, 36001U, 36002U, 36003U}) {
    view->ObeyCommand(UIF::Command(id));
  }
  EXPECT_EQ(recording.GetCalls(), (Calls{"Base obeys(36000)", "Base obeys(36003)"}))
      << "without a sequence there is nothing to export";
}

TEST_F(View, BringsItsWingMenu) {
  EXPECT_EQ(view->GetWingMenuID(), "Vantrel_Wing_Menu");
}

TEST_F(View, IsOnDutyWhileTheUserWorksInIt) {
  view->NowOnDuty();
  EXPECT_TRUE(view->IsOnDuty());
  view->NowOffDuty();
  EXPECT_FALSE(view->IsOnDuty());
}

// Export

class ViewExport : public ViewFixture {
 protected:
  void ShowSequence() {
    view->SubscribeToStations();
    CreateContents();
    host->GetProject().ActivateSequence(AddSequence(MakeOneClip("Reel 1")));
    host.Settle();
  }
  bool Obey() { return view->ObeyCommand(UIF::Command(36003)); }

  /// The path that is handed to the file layer when the dialog answers these texts.
  std::string GetPathHandedOver(std::string_view chosenFolder, std::string_view fileName,
                                std::string_view extension) {
    answers.exportAnswer = [=](standalone::ExportChoice& choice) {
      choice.folder = qelcore::UTF8String(chosenFolder);
      choice.fileName = qelcore::UTF8String(fileName);
      choice.extension = qelcore::UTF8String(extension);
      return true;
    };
    const hostcalls::Recording recording;
    const hostcalls::Hook fault("Create file", [] { throw std::runtime_error("looked at"); });
    EXPECT_THROW(Obey(), std::runtime_error);
    const auto calls = recording.GetCalls({"Create file"});
    return calls.empty() ? "" : calls.front();
  }

  const process::Folder folder;
};

TEST_F(ViewExport, WithoutATableIsNotHandledAndAsksNothing) {
  EXPECT_FALSE(view->ExportSequenceIndex());
  EXPECT_FALSE(Obey());
  EXPECT_EQ(answers.exportCount, 0);
}

TEST_F(ViewExport, WithoutASequenceIsNotHandledAndAsksNothing) {
  CreateContents();
  EXPECT_FALSE(Obey());
  EXPECT_EQ(answers.exportCount, 0);
}

TEST_F(ViewExport, TheDialogStartsWithTheSequencesNameAndNothingElse) {
  ShowSequence();
  standalone::ExportChoice start;
  start.isOpenedAfterwards = false;
  answers.exportAnswer = [&](standalone::ExportChoice& choice) {
    start = choice;
    return false;
  };
  Obey();
  EXPECT_TRUE(start.folder.Empty());
  EXPECT_EQ(start.fileName, "Reel 1");
  EXPECT_TRUE(start.extension.Empty());
  EXPECT_TRUE(start.isOpenedAfterwards);
}

TEST_F(ViewExport, ACancelledDialogWritesNothingAndIsNotHandled) {
  ShowSequence();
  const hostcalls::Recording recording;
  EXPECT_FALSE(Obey());
  EXPECT_EQ(answers.exportCount, 1);
  EXPECT_EQ(recording.Count("Create file"), 0U);
  EXPECT_EQ(recording.Count("Base obeys"), 1U);
}

TEST_F(ViewExport, TheFolderIsJoinedWithABackslashUnlessItEndsWithOne) {
  ShowSequence();
  EXPECT_EQ(GetPathHandedOver("C:\\out", "Reel", ".csv"), "Create file(C:\\out\\Reel.csv, false)");
  EXPECT_EQ(GetPathHandedOver("C:\\out\\", "Reel", ".csv"), "Create file(C:\\out\\Reel.csv, false)");
  EXPECT_EQ(GetPathHandedOver("/out/", "Reel", ".csv"), "Create file(/out/\\Reel.csv, false)");
  EXPECT_EQ(GetPathHandedOver("", "Reel", ".csv"), "Create file(\\Reel.csv, false)");
}

TEST_F(ViewExport, TheExtensionIsAppendedAsItStands) {
  ShowSequence();
  EXPECT_EQ(GetPathHandedOver("f", "Reel.1", "csv"), "Create file(f\\Reel.1csv, false)");
  EXPECT_EQ(GetPathHandedOver("f", "Reel", ""), "Create file(f\\Reel, false)");
}

TEST_F(ViewExport, AWrittenFileIsHandledAndLandsInTheFolder) {
  ShowSequence();
  answers.exportAnswer = [&](standalone::ExportChoice& choice) {
    choice.folder = qelcore::UTF8String(folder.GetPath().native());
    choice.extension = qelcore::UTF8String(".csv");
    return true;
  };
  const hostcalls::Recording recording;
  EXPECT_TRUE(Obey());
  EXPECT_EQ(recording.Count("Base obeys"), 0U);
  std::ifstream stream(folder / "Reel 1.csv", std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(text,
            "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions\n"
            "1,0,Reel 1,V1,00:00:00:00,00:00:00:10,,\n");
}

TEST_F(ViewExport, AFailureOfTheFileLayerLeavesTheCommandAsTheHostsException) {
  ShowSequence();
  answers.exportAnswer = [&](standalone::ExportChoice& choice) {
    choice.folder = qelcore::UTF8String((folder / "missing").native());
    return true;
  };
  EXPECT_THROW(Obey(), qelcore::config::file_exception);
  EXPECT_EQ(answers.exportCount, 1) << "nothing else is asked or told";
}

TEST_F(ViewExport, SurvivesAPanelThatIsClosedWhileTheDialogIsOpen) {
  ShowSequence();
  SequenceIndexView& closed = *view;
  answers.exportAnswer = [&](standalone::ExportChoice& choice) {
    view.reset();
    choice.folder = qelcore::UTF8String(folder.GetPath().native());
    return true;
  };
  EXPECT_TRUE(closed.ObeyCommand(UIF::Command(36003)));
  EXPECT_TRUE(std::filesystem::exists(folder / "Reel 1"));
}

TEST_F(ViewExport, SurvivesAPanelThatIsClosedBeforeTheDialogIsCancelled) {
  ShowSequence();
  SequenceIndexView& closed = *view;
  answers.exportAnswer = [&](standalone::ExportChoice&) {
    view.reset();
    return false;
  };
  EXPECT_FALSE(closed.ObeyCommand(UIF::Command(36003)));
}

}  // namespace
}  // namespace Vantrel
