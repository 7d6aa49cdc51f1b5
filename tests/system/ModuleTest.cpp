#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "host/HSL/Handler.h"
#include "host/HSL/Module.h"
#include "host/MZ/Messages.h"
#include "host/UIF/ShortcutManager.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/assembly/StandaloneHost.h"
#include "standalone/framework/ModuleLoader.h"
#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/Answers.h"
#include "support/Drafts.h"
#include "system/Libraries.h"

// The module as it is shipped: its library, loaded, used and unloaded by the host.

namespace {

using standalone::GetRegisteredFeatures;
using standalone::GetRegisteredHandlerFactories;
using standalone::GetRegisteredModuleFactories;
using standalone::LoadedModule;
using standalone::WindowEntry;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kFeature = "SequenceIndex";
constexpr UIF::CommandID kExportCommand = 36003;

standalone::SequenceDraft MakeCut() {
  auto draft = drafts::MakeSequence("Cut");
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "Opening", 0, 50);
  drafts::AddClip(track, "Interview", 50, 120);
  return draft;
}

std::size_t CountRows(const UIF::TabView& panel) {
  for (const auto& child : panel.GetChildViews()) {
    const auto* tree = dynamic_cast<const qelui::controls::UI_MultiColumnTree*>(child.Get());
    if (tree != nullptr) return tree->CountRows();
  }
  ADD_FAILURE() << "the panel has no table";
  return 0;
}

/// A file in the folder for temporary files, removed afterwards.
class OutputFile {
 public:
  OutputFile()
      : path(std::filesystem::temp_directory_path() / ("index-" + std::to_string(getpid()) + ".csv")) {}
  ~OutputFile() { std::filesystem::remove(path); }
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  bool ConfirmExport(standalone::ExportChoice& choice) const {
    choice = {qelcore::UTF8String(path.parent_path().native()),
              qelcore::UTF8String(path.stem().native()), qelcore::UTF8String(path.extension().native()),
              false};
    return true;
  }
  std::string Read() const {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
  }

 private:
  std::filesystem::path path;
};

class ShippedModule : public testing::Test {
 protected:
  ShippedModule() { standalone::SwitchFeature(kFeature, true); }

  qelcore::Ref<BE::ISequence> AddCut() {
    return host.GetProject().AddDocument(drafts::MakeDocument(MakeCut())).front();
  }
  /// Opens the panel, shows the cut, exports it and closes the panel.
  void UsePanel(const qelcore::Ref<BE::ISequence>& cut);

  standalone::StandaloneHost host;
};

void ShippedModule::UsePanel(const qelcore::Ref<BE::ISequence>& cut) {
  const OutputFile file;
  Answers answers;
  answers.exportAnswer = [&](standalone::ExportChoice& choice) { return file.ConfirmExport(choice); };
  auto panel = host.OpenPanel();
  ASSERT_NE(panel, nullptr);
  host.GetProject().ActivateSequence(cut);
  host.GetRuntime().Drain();
  EXPECT_EQ(CountRows(*panel), 2u);
  EXPECT_TRUE(panel->ObeyCommand(UIF::Command(kExportCommand)));
  EXPECT_THAT(file.Read(), HasSubstr("Interview"));
  panel.reset();
  host.ClosePanel();
  EXPECT_THAT(host.GetRuntime().GetLog().TakeFailures(), IsEmpty());
}

TEST_F(ShippedModule, BringsItsFeatureItsFactoriesAndItsCommandContext) {
  const LoadedModule module(MODULE_LIBRARY);
  EXPECT_THAT(GetRegisteredFeatures(), ElementsAre(Field(&standalone::FeatureEntry::name, kFeature)));
  EXPECT_THAT(GetRegisteredHandlerFactories(), ElementsAre(HSL::kSequenceIndexHandlerID));
  EXPECT_THAT(GetRegisteredModuleFactories(), ElementsAre(HSL::kSequenceIndexModuleID));
  const auto context = UIF::ShortcutManager::Instance().GetContext(kFeature);
  ASSERT_NE(context, nullptr);
  EXPECT_EQ(context->GetTitle(), "Sequence Index Panel");
  EXPECT_EQ(module.GetModule().GetModuleID(), HSL::kSequenceIndexModuleID);
}

TEST_F(ShippedModule, ItsFeatureIsAHiddenBetaThatIsOffByDefault) {
  const LoadedModule module(MODULE_LIBRARY);
  const auto feature = GetRegisteredFeatures().at(0);
  EXPECT_EQ(feature.stage, 2u);
  EXPECT_EQ(feature.visibility, 0u);
  EXPECT_EQ(feature.changes, 1u);
  EXPECT_EQ(feature.defaultEnablement, 0u);
}

TEST_F(ShippedModule, WithItsFeatureOffThereIsNoHandlerNoPanelAndNoMenuEntry) {
  const LoadedModule module(MODULE_LIBRARY);
  standalone::SwitchFeature(kFeature, false);
  EXPECT_EQ(host.OpenPanel(), nullptr);
  EXPECT_EQ(HSL::Handler::FindHandler(HSL::kSequenceIndexHandlerID), nullptr);
  EXPECT_THAT(host.GetFramework().GetWindowClasses(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowEntries(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowMenus(), IsEmpty());
}

TEST_F(ShippedModule, WithItsFeatureOnItIsListedInTheWindowMenuAsLongAsItsHandlerLives) {
  const LoadedModule module(MODULE_LIBRARY);
  host.GetFramework().ProvideHandlers();
  EXPECT_THAT(host.GetFramework().GetWindowEntries(),
              ElementsAre(Field(&WindowEntry::title, qelcore::UTF8String("Sequence Index"))));
  EXPECT_THAT(host.GetFramework().GetWindowMenus(),
              ElementsAre(Field(&standalone::WindowMenu::wingMenuID, "Vantrel_Wing_Menu")));
  host.GetFramework().DropHandlers();
  EXPECT_THAT(host.GetFramework().GetWindowEntries(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowMenus(), IsEmpty());
}

TEST_F(ShippedModule, OpensOnePanelThatTheHostHolds) {
  const LoadedModule module(MODULE_LIBRARY);
  const std::weak_ptr<UIF::TabView> panel = host.OpenPanel();
  EXPECT_EQ(host.OpenPanel(), panel.lock());
  EXPECT_EQ(host.GetPanel()->GetName(), "Sequence Index: (no sequence)");
  host.ClosePanel();
  host.GetFramework().DropHandlers();
  EXPECT_TRUE(panel.expired());
}

TEST_F(ShippedModule, HasNoPanelOfAnUnknownWindowType) {
  const LoadedModule module(MODULE_LIBRARY);
  EXPECT_EQ(host.OpenPanel("UnknownWindow"), nullptr);
}

TEST_F(ShippedModule, ShowsAndExportsTheActiveSequence) {
  const LoadedModule module(MODULE_LIBRARY);
  UsePanel(AddCut());
}

TEST_F(ShippedModule, UnloadedItLeavesNothingBehind) {
  LoadedModule module(MODULE_LIBRARY);
  UsePanel(AddCut());
  module.Unload();
  EXPECT_FALSE(IsKnownToLinker(MODULE_LIBRARY));
  EXPECT_FALSE(IsMapped(MODULE_LIBRARY));
  EXPECT_THAT(GetRegisteredFeatures(), IsEmpty());
  EXPECT_THAT(GetRegisteredHandlerFactories(), IsEmpty());
  EXPECT_THAT(GetRegisteredModuleFactories(), IsEmpty());
  EXPECT_EQ(UIF::ShortcutManager::Instance().GetContext(kFeature), nullptr);
  EXPECT_THAT(host.GetFramework().GetWindowClasses(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowMenus(), IsEmpty());
  EXPECT_EQ(host.OpenPanel(), nullptr);
}

TEST_F(ShippedModule, UnloadedItsExpiredListenersAreGoneFromTheStations) {
  const auto& stations = host.GetRuntime().GetStations();
  LoadedModule module(MODULE_LIBRARY);
  UsePanel(AddCut());
  EXPECT_GT(stations.CountListeners(MZ::kStation_Info), 0u);
  module.Unload();
  EXPECT_EQ(stations.CountListeners(MZ::kStation_Info), 0u);
  EXPECT_EQ(stations.CountListeners(MZ::kStation_SequenceActivation), 0u);
  EXPECT_EQ(stations.CountListeners(MZ::kStation_TrackItemActivation), 0u);
}

TEST_F(ShippedModule, LoadedAgainItWorksAgain) {
  const auto cut = AddCut();
  for (int round = 0; round < 3; ++round) {
    LoadedModule module(MODULE_LIBRARY);
    UsePanel(cut);
    module.Unload();
  }
}

TEST_F(ShippedModule, MayBeUnloadedWhileABuildIsStillPending) {
  const auto cut = AddCut();
  for (int round = 0; round < 20; ++round) {
    LoadedModule module(MODULE_LIBRARY);
    ASSERT_NE(host.OpenPanel(), nullptr);
    host.GetProject().ActivateSequence(cut);
    host.ClosePanel();
    module.Unload();
    ASSERT_FALSE(IsMapped(MODULE_LIBRARY));
  }
  EXPECT_THAT(host.GetRuntime().GetLog().TakeFailures(), IsEmpty());
}

TEST_F(ShippedModule, GoesWithTheObjectThatLoadedIt) {
  { const LoadedModule module(MODULE_LIBRARY); }
  EXPECT_FALSE(IsMapped(MODULE_LIBRARY));
}

/// The address and thread sanitizers hold on to freed memory.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsKeepingFreedMemory = true;
#else
constexpr bool kIsKeepingFreedMemory = false;
#endif

/// The memory of this process that is resident, in bytes.
std::size_t GetResidentMemory() {
  std::size_t total = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

TEST_F(ShippedModule, TwoHundredLivesLeaveNoMemoryBehind) {
  constexpr int kWarmUp = 20;
  constexpr int kCycles = 200;
  constexpr std::size_t kAllowance = 1 << 20;
  const auto cut = AddCut();
  std::size_t before = 0;
  for (int cycle = 0; cycle < kWarmUp + kCycles; ++cycle) {
    if (cycle == kWarmUp) before = GetResidentMemory();
    LoadedModule module(MODULE_LIBRARY);
    UsePanel(cut);
    module.Unload();
    ASSERT_FALSE(IsMapped(MODULE_LIBRARY)) << "cycle " << cycle;
  }
  if (!kIsKeepingFreedMemory) {
    EXPECT_LT(GetResidentMemory(), before + kAllowance);
  }
}

}  // namespace
