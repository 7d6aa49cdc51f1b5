#include "module/SequenceIndexHandler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Exceptions.h"
#include "module/ModuleFixture.h"
#include "support/LocalizedKeys.h"

namespace Vantrel {
namespace {

using Handler = ModuleFixture;
using qelcore::Ref;

constexpr std::string_view kNoSequence = "Sequence Index: (no sequence)";

TEST_F(Handler, IsNotCreatedWhileTheFeatureIsOffAndNothingIsRegistered) {
  standalone::SwitchFeature("SequenceIndex", false);
  const hostcalls::Recording recording;
  EXPECT_EQ(CreateSequenceIndexHandler(qelcore::UTF8String("id")), nullptr);
  EXPECT_EQ(host->OpenPanel(), nullptr);
  EXPECT_TRUE(recording.GetCalls().empty());
  EXPECT_TRUE(host->GetFramework().GetWindowClasses().empty());
  EXPECT_TRUE(host->GetFramework().GetWindowEntries().empty());
  EXPECT_TRUE(host->GetFramework().GetWindowMenus().empty());
}

TEST_F(Handler, TheFeatureIsAskedForAtEachCall) {
  standalone::SwitchFeature("SequenceIndex", false);
  EXPECT_EQ(CreateSequenceIndexHandler(qelcore::UTF8String("id")), nullptr);
  standalone::SwitchFeature("SequenceIndex", true);
  EXPECT_NE(CreateSequenceIndexHandler(qelcore::UTF8String("id")), nullptr);
}

TEST_F(Handler, RegistersItsWindowClassWindowAndMenuThenFinishesItsSetUp) {
  const hostcalls::Recording recording;
  const auto handler = GetHandler();
  ASSERT_NE(handler, nullptr);
  EXPECT_EQ(recording.GetCalls(),
            (Calls{"AddWindowClass(SequenceIndexWindow, SequenceIndexHandler, 1)",
                   "AddWindow(SequenceIndexWindow, 0, Sequence Index, 0)",
                   "AddWindowMenuID(SequenceIndex, Sequence Index, Vantrel_Wing_Menu)",
                   "PostSharedPtrInit()"}))
      << "and subscribes to no station";
}

TEST_F(Handler, IsListedInTheWindowMenuWhileItLives) {
  GetHandler();
  ASSERT_EQ(host->GetFramework().GetWindowEntries().size(), 1U);
  EXPECT_EQ(host->GetFramework().GetWindowEntries().front().title, "Sequence Index");
  host->GetFramework().DropHandlers();
  EXPECT_TRUE(host->GetFramework().GetWindowEntries().empty());
}

TEST_F(Handler, HasTheIDThatItsFactoryWasGiven) {
  const auto handler = CreateSequenceIndexHandler(qelcore::UTF8String("another id"));
  EXPECT_EQ(handler->GetHandlerID(), "another id");
}

TEST_F(Handler, WithdrawsItsWindowClassOnceAndBeforeItsViewGoes) {
  GetHandler()->CreateTabViewSelf(MakeFrame());
  const std::weak_ptr<SequenceIndexView> view = GetHandler()->GetView();
  bool wasViewAlive = false;
  const hostcalls::Hook hook("RemoveWindowClass", [&] { wasViewAlive = !view.expired(); });
  const hostcalls::Recording recording;
  host->GetFramework().DropHandlers();
  EXPECT_EQ(recording.GetCalls({"RemoveWindowClass"}), Calls{"RemoveWindowClass(SequenceIndexWindow)"});
  EXPECT_TRUE(wasViewAlive);
  EXPECT_TRUE(view.expired());
}

TEST_F(Handler, AFailedConstructionLeavesNoWindowClass) {
  const hostcalls::Hook fault("AddWindowMenuID", [] { throw std::bad_alloc(); });
  EXPECT_THROW(CreateSequenceIndexHandler(qelcore::UTF8String("id")), std::bad_alloc);
  EXPECT_TRUE(host->GetFramework().GetWindowClasses().empty());
  EXPECT_TRUE(host->GetFramework().GetWindowEntries().empty());
}

TEST_F(Handler, KnowsNoCommandsOfItsOwn) {
  bool isEnabled = true;
  for (const UIF::CommandID id : {36001U, 36002U, 36003U, 1U}) {
    EXPECT_FALSE(GetHandler()->FindCommandStatus(id, isEnabled));
    EXPECT_FALSE(GetHandler()->ObeyCommand(UIF::Command(id)));
  }
  EXPECT_TRUE(isEnabled);
}

TEST_F(Handler, WorksInThePanelsCommandContext) {
  EXPECT_EQ(GetHandler()->GetCommandContextName(), "SequenceIndex");
}

TEST_F(Handler, LetsAWorkspaceBringThePanelBackAndKeepsTheHostsOtherAnswers) {
  EXPECT_TRUE(GetHandler()->ShouldRestoreWithWorkspace());
  EXPECT_FALSE(GetHandler()->ShouldHideWhenClosed());
  EXPECT_TRUE(GetHandler()->ShouldSaveStateWhenDestroyed());
  EXPECT_TRUE(GetHandler()->AllowClose());
}

TEST_F(Handler, IsFoundWhileItLives) {
  EXPECT_EQ(SequenceIndexHandler::Find(), nullptr);
  const auto handler = GetHandler();
  EXPECT_EQ(SequenceIndexHandler::Find(), handler);
}

class OtherHandler final : public HSL::Handler {
 public:
  OtherHandler() : HSL::Handler(qelcore::UTF8String(HSL::kSequenceIndexHandlerID), "Other", 0) {}
  std::shared_ptr<UIF::TabView> CreateTabView(const std::shared_ptr<UIF::WorkspaceFrame>&) override {
    return nullptr;
  }
};

TEST_F(Handler, AHandlerOfAnotherClassIsNotTakenForIt) {
  const auto other = qelcore::memory::MakeShareable<OtherHandler>();
  other->PostSharedPtrInit();
  ASSERT_NE(HSL::Handler::FindHandler(HSL::kSequenceIndexHandlerID), nullptr);
  EXPECT_EQ(SequenceIndexHandler::Find(), nullptr);
}

// The tab view

TEST_F(Handler, CreatesTheTabViewInOrder) {
  const auto active = AddSequence(MakeOneClip("Reel 1"));
  host->GetProject().ActivateSequence(active);
  const auto handler = GetHandler();
  const hostcalls::Recording recording;
  const auto tab = handler->CreateTabViewSelf(MakeFrame());
  const auto Add = [](const qelcore::messaging::StationID& station) {
    return "AddWeakPtrListener(" + std::string(station.View()) + ")";
  };
  const std::string info = Add(MZ::kStation_Info);
  const std::string activation = Add(MZ::kStation_SequenceActivation);
  const std::string project = Add(GetProjectStation());
  auto calls = recording.GetCalls({"AddWeakPtrListener", "Create tab", "SetName"});
  // Less what the view's contents and the host's own part of realising the tab do.
  const std::string trackItems = Add(MZ::kStation_TrackItemActivation);
  std::erase_if(calls, [&](const std::string& call) {
    const bool isOfContents = call.starts_with("AddWeakPtrListener") && call != info &&
                              call != activation && call != trackItems && call != project;
    return isOfContents || call == "SetName(Sequence Index: (no sequence))";
  });
  EXPECT_EQ(calls, (Calls{info, activation, trackItems, project,
                          "Create tab(SequenceIndexHandler, Sequence Index: (no sequence), true)",
                          "SetName(Sequence Index: Reel 1)", info, activation, project}));
  EXPECT_EQ(tab, handler->GetView());
}

TEST_F(Handler, HasNoViewBeforeTheFirstTabView) {
  EXPECT_EQ(GetHandler()->GetView(), nullptr);
}

TEST_F(Handler, ViewAndHandlerBothListenToTheStationsOnce) {
  const auto tab = host->OpenPanel();
  EXPECT_EQ(CountListeners(MZ::kStation_Info), 2U);
  EXPECT_EQ(CountListeners(MZ::kStation_SequenceActivation), 2U);
  EXPECT_EQ(CountListeners(MZ::kStation_TrackItemActivation), 1U);
  EXPECT_EQ(CountListeners(GetProjectStation()), 2U);
}

TEST_F(Handler, WithoutAnActiveSequenceTheTabSaysSo) {
  EXPECT_EQ(host->OpenPanel()->GetName(), kNoSequence);
}

TEST_F(Handler, WithAnActiveSequenceTheTabCarriesItsName) {
  host->GetProject().ActivateSequence(AddSequence(MakeOneClip("Reel 1")));
  EXPECT_EQ(host->OpenPanel()->GetName(), "Sequence Index: Reel 1");
}

TEST_F(Handler, AViewOpenedWhileAWorkspaceLoadsHasTheTitleButNoSequenceYet) {
  const auto active = AddSequence(MakeOneClip("Reel 1"));
  host->GetProject().ActivateSequence(active);
  host->GetFramework().SetWorkspaceIsBeingLoaded(true);
  const auto tab = host->OpenPanel();
  host->GetFramework().SetWorkspaceIsBeingLoaded(false);
  EXPECT_EQ(tab->GetName(), "Sequence Index: Reel 1");
  const auto& view = *GetHandler()->GetView();
  EXPECT_FALSE(view.GetTree()->GetSequence());
  host.Settle();
  EXPECT_EQ(view.GetStatusText()->GetValue(), "0 Items");
  host->GetProject().ActivateSequence(active);
  host.Settle();
  EXPECT_EQ(view.GetTree()->GetSequence(), active);
  EXPECT_EQ(view.GetTree()->CountRows(), 1U);
}

TEST_F(Handler, TheWingMenuOfItsViewIsTheOneItRegistered) {
  const auto tab = host->OpenPanel();
  ASSERT_EQ(host->GetFramework().GetWindowMenus().size(), 1U);
  EXPECT_EQ(tab->GetWingMenuID(), host->GetFramework().GetWindowMenus().front().wingMenuID);
}

TEST_F(Handler, ASecondTabViewReplacesTheFirstAndReleasesIt) {
  const auto handler = GetHandler();
  std::weak_ptr<UIF::TabView> first = handler->CreateTabViewSelf(MakeFrame());
  EXPECT_FALSE(first.expired()) << "the handler keeps it";
  const auto second = handler->CreateTabViewSelf(MakeFrame());
  EXPECT_TRUE(first.expired());
  EXPECT_EQ(second, handler->GetView());
}

TEST_F(Handler, WithoutAProjectTheViewExistsButIsNotRealised) {
  const auto handler = GetHandler();
  hostcalls::activeProjectInstead = Ref<BE::IProject>();
  const hostcalls::Recording recording;
  try {
    handler->CreateTabViewSelf(MakeFrame());
    FAIL() << "nothing was raised";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "BE::INotification");
  }
  ASSERT_NE(handler->GetView(), nullptr);
  EXPECT_FALSE(handler->GetView()->GetTree());
  EXPECT_EQ(recording.Count("Create tab"), 0U);
  EXPECT_EQ(CountListeners(MZ::kStation_Info), 1U) << "only the view's own";
}

TEST_F(Handler, HandlerAndViewDoNotKeepEachOtherAlive) {
  std::weak_ptr<SequenceIndexHandler> handler = GetHandler();
  std::weak_ptr<UIF::TabView> view = host->OpenPanel();
  host->ClosePanel();
  EXPECT_FALSE(view.expired()) << "the handler keeps the view it created";
  host->GetFramework().DropHandlers();
  EXPECT_TRUE(handler.expired());
  EXPECT_TRUE(view.expired());
}

// The title

TEST_F(Handler, TheTitleIsTheSequencesNameOrSaysThatThereIsNone) {
  EXPECT_EQ(MakeTabViewTitle(AddSequence(MakeOneClip("Cut 3"))), "Sequence Index: Cut 3");
  EXPECT_EQ(MakeTabViewTitle({}), kNoSequence);
}

TEST_F(Handler, TitlesAreLocalisedOnce) {
  const auto reel = AddSequence(MakeOneClip("Reel"));
  for (int i = 0; i < 2; ++i) {
    CreateSequenceIndexHandler(qelcore::UTF8String("id"));
    MakeTabViewTitle(reel);
    MakeTabViewTitle({});
  }
  for (const char* const key :
       {"$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTitle=Sequence Index#{comment}QELMX-4248997",
        "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTabViewTitle=Sequence Index: @0#{comment}"
        "QELMX-4248997",
        "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTabViewTitleNoSeq=Sequence Index: (no sequence)"
        "#{comment}QELMX-4248997"}) {
    EXPECT_EQ(hostcalls::LocalizedKeys::Get().Count(key), 1U) << key;
  }
}

TEST_F(Handler, ANameThatLooksLikeAnArgumentIsLeftAlone) {
  EXPECT_EQ(MakeTabViewTitle(AddSequence(MakeOneClip("@0 and @1"))), "Sequence Index: @0 and @1");
}

class Title : public ModuleFixture {
 protected:
  Title() { host->GetProject().ActivateSequence(reel); }
  std::string Get() const { return std::string(panel->GetName().View()); }

  Ref<BE::ISequence> reel = AddSequence(MakeOneClip("Reel"));
  Ref<BE::ISequence> other = AddSequence(MakeOneClip("Other"));
  std::shared_ptr<SequenceIndexHandler> handler = GetHandler();
  std::shared_ptr<UIF::TabView> panel = host->OpenPanel();
};

TEST_F(Title, FollowsAnActivation) {
  host->GetProject().ActivateSequence(other);
  EXPECT_EQ(Get(), "Sequence Index: Other");
}

TEST_F(Title, IgnoresAnActivationOfNone) {
  panel->SetName(qelcore::UTF8String("as it was"));
  handler->ReceiveMessage(MZ::SequenceActivatedMessage({}));
  EXPECT_EQ(Get(), "as it was");
}

TEST_F(Title, FollowsAChangedName) {
  host->GetProject().ReplaceSequence(reel, MakeOneClip("Renamed"));
  EXPECT_EQ(Get(), "Sequence Index: Renamed");
}

TEST_F(Title, AChangeWithoutSequenceGivesTheNoSequenceTitle) {
  handler->ReceiveMessage(BE::SequenceChangedMessage({}));
  EXPECT_EQ(Get(), kNoSequence);
}

TEST_F(Title, AChangeOfAnotherSequenceIsFollowedToo) {
  handler->ReceiveMessage(BE::SequenceChangedMessage(other));
  EXPECT_EQ(Get(), "Sequence Index: Other");
}

TEST_F(Title, KeepsTheNameOfTheClosedSequence) {
  host->GetProject().CloseSequence(reel);
  EXPECT_EQ(Get(), "Sequence Index: Reel");
  handler->ReceiveMessage(MZ::SequenceClosedMessage(other));
  EXPECT_EQ(Get(), "Sequence Index: Other");
}

TEST_F(Title, IgnoresAClosedMessageWithoutSequence) {
  panel->SetName(qelcore::UTF8String("as it was"));
  handler->ReceiveMessage(MZ::SequenceClosedMessage({}));
  EXPECT_EQ(Get(), "as it was");
}

TEST_F(Title, AClosedProjectGivesTheNoSequenceTitle) {
  handler->ReceiveMessage(BE::ProjectClosedMessage());
  EXPECT_EQ(Get(), kNoSequence);
}

class OtherMessage final : public qelcore::messaging::Message {
 public:
  OtherMessage() : Message(4711) {}
};

TEST_F(Title, OtherMessagesLeaveItAlone) {
  const hostcalls::Recording recording;
  handler->ReceiveMessage(OtherMessage());
  handler->ReceiveMessage(MZ::SequenceOpenedMessage(other, true));
  handler->ReceiveMessage(BE::TrackGroupChangedMessage());
  EXPECT_EQ(recording.Count("SetName"), 0U);
  EXPECT_EQ(Get(), "Sequence Index: Reel");
}

TEST_F(Handler, WithoutAViewMessagesDoNothing) {
  const auto handler = GetHandler();
  const auto sequence = AddSequence(MakeOneClip("Reel"));
  const hostcalls::Recording recording;
  handler->ReceiveMessage(BE::ProjectClosedMessage());
  handler->ReceiveMessage(BE::SequenceChangedMessage(sequence));
  handler->ReceiveMessage(MZ::SequenceActivatedMessage(sequence));
  handler->ReceiveMessage(MZ::SequenceClosedMessage(sequence));
  EXPECT_TRUE(recording.GetCalls().empty());
}

TEST_F(Handler, AMessageAfterItIsGoneIsDropped) {
  auto tab = host->OpenPanel();
  host->GetFramework().DropHandlers();
  tab->SetName(qelcore::UTF8String("as it was"));
  host->GetProject().ActivateSequence(AddSequence(MakeOneClip("Reel")));
  EXPECT_EQ(tab->GetName(), "as it was");
}

}  // namespace
}  // namespace Vantrel
