#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "documents/SessionFixture.h"
#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "standalone/timeline/MessageListener.h"

namespace standalone {
namespace {

using qelcore::messaging::Message;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// What becomes of open files when something else happens meanwhile.
class DocumentChanges : public DocumentSessionTest {
 protected:
  static std::shared_ptr<MessageListener> Listen(const qelcore::messaging::StationID& station,
                                                 MessageListener::Function function) {
    auto listener = MessageListener::Make(std::move(function));
    qelcore::messaging::AddWeakPtrListener(station, listener);
    return listener;
  }
  static qelcore::messaging::StationID ContentStation(const qelcore::Ref<BE::ISequence>& sequence) {
    return qelcore::RequireInterface<BE::ISequenceContent>(sequence)->GetStationID();
  }
  auto GetFormat() {
    const auto active = host->GetProject().GetActiveSequence();
    return MZ::SequencePlayback::GetVideoTimeDisplayFormat(active, 1).count;
  }
};

TEST_F(DocumentChanges, AnotherTimeFormatIsThatOfAllFiles) {
  using Count = qelmediatypes::TimeDisplay::Count;
  Open(Write("a.otio", MakeFile({"One"})));
  const Count asTheSequenceSays = GetFormat();
  session->SetTimeFormat(TimeFormat::kFrames);
  host.Settle();
  EXPECT_EQ(GetFormat(), Count::kFrames);
  session->SetTimeFormat(std::nullopt);
  host.Settle();
  EXPECT_EQ(GetFormat(), asTheSequenceSays);
}

TEST_F(DocumentChanges, AFileThatIsReadForTheFirstTimeTakesTheFormatSetMeanwhile) {
  session->Open(Write("a.otio", MakeFile({"One"})));
  host.GetPool().RunOne();
  session->SetTimeFormat(TimeFormat::kFrames);
  host.Settle();
  EXPECT_EQ(GetFormat(), qelmediatypes::TimeDisplay::Count::kFrames);
  EXPECT_THAT(session->GetDocuments(), SizeIs(1));
}

TEST_F(DocumentChanges, ACancelledFileIsNotReadForAnotherFormat) {
  session->Open(Write("a.otio", MakeFile({"One"})));
  session->Cancel();
  session->SetTimeFormat(TimeFormat::kFrames);
  host.Settle();
  EXPECT_THAT(session->GetDocuments(), IsEmpty());
}

TEST_F(DocumentChanges, TheFormatThatTimesHaveAlreadyReadsNothing) {
  Open(Write("a.otio", MakeFile({"One"})));
  session->SetTimeFormat(std::nullopt);
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentChanges, OpeningAnOpenFileWhoseSequencesWereClosedShowsItAgain) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  host->GetProject().CloseSequence(host->GetProject().GetActiveSequence());
  EXPECT_EQ(GetActiveName(), "");
  Open(file);
  EXPECT_EQ(GetActiveName(), "One");
}

TEST_F(DocumentChanges, OpeningAnOpenFileKeepsTheTimelineThatIsSeen) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  host->GetProject().ActivateSequence(host->GetProject().GetSequences()[1]);
  Open(file);
  EXPECT_EQ(GetActiveName(), "Two");
}

TEST_F(DocumentChanges, NestedSequencesAreThoseOfTheFileAsItIsNow) {
  Open(Write("b.otio", MakeFile({"Other"}, 10, "", "Other inner")));
  const auto file = Write("a.otio", MakeFile({"One"}, 10, "", "Inner"));
  Open(file);
  EXPECT_THAT(GetNestedNames(), ElementsAre("Other inner", "Inner"));
  Write("a.otio", MakeFile({"One"}, 10, "", "Another inner"));
  Reload(file);
  EXPECT_THAT(GetNestedNames(), ElementsAre("Other inner", "Another inner"));
  Write("a.otio", MakeFile({"One"}));
  Reload(file);
  EXPECT_THAT(GetNestedNames(), ElementsAre("Other inner"));
  session->Close(folder / "b.otio");
  EXPECT_THAT(GetNestedNames(), IsEmpty());
}

TEST_F(DocumentChanges, AReadThatWasOvertakenIsNeverShown) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  Open(file);
  journal.Take();
  Write("a.otio", MakeFile({"Old"}));
  session->Reload(file);
  host.GetPool().RunOne();
  Write("a.otio", MakeFile({"New"}));
  session->Reload(file);
  host.Settle();
  EXPECT_EQ(GetActiveName(), "New");
  EXPECT_THAT(journal.Take(), ElementsAre("ended a.otio", "changed a.otio", "ended a.otio"));
}

TEST_F(DocumentChanges, ATroubleOfAnOpenFileTellsItsLine) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  Open(file);
  Write("a.otio", "{\n\"OTIO_SCHEMA\": oops");
  Reload(file);
  EXPECT_EQ(session->GetDocuments()[0].troubleLine, 2U);
  Write("a.otio", MakeFile({"One"}));
  Reload(file);
  EXPECT_EQ(session->GetDocuments()[0].troubleLine, 0U);
}

TEST_F(DocumentChanges, ClosingAFileActivatesNoneOfItsOtherTimelines) {
  Open(Write("b.otio", MakeFile({"Three"})));
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  const auto sequences = host->GetProject().GetSequences();
  host->GetProject().ActivateSequence(sequences[2]);
  host->GetProject().ActivateSequence(sequences[1]);
  bool isOtherActivated = false;
  const auto listener = Listen(MZ::kStation_SequenceActivation, [&](const Message& message) {
    const auto& active = static_cast<const MZ::SequenceActivatedMessage&>(message).GetSequence();
    if (active == sequences[2]) isOtherActivated = true;
  });
  session->Close(file);
  EXPECT_FALSE(isOtherActivated);
  EXPECT_EQ(GetActiveName(), "Three");
}

TEST_F(DocumentChanges, WhoHearsOfNewContentsMayCloseTheFile) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  const auto listener = Listen(ContentStation(host->GetProject().GetSequences()[0]),
                               [&](const Message&) { session->Close(file); });
  Write("a.otio", MakeFile({"One", "Two", "New"}));
  Reload(file);
  EXPECT_THAT(GetNames(), IsEmpty());
  EXPECT_THAT(session->GetDocuments(), IsEmpty());
  EXPECT_FALSE(session->IsBusy());
  EXPECT_THAT(host.TakeFailures(), IsEmpty());
}

TEST_F(DocumentChanges, WhoHearsThatASequenceWasClosedMayCloseTheFile) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  const auto listener = Listen(MZ::kStation_Info, [&](const Message& message) {
    if (dynamic_cast<const MZ::SequenceClosedMessage*>(&message) != nullptr) session->Close(file);
  });
  host->GetProject().ActivateSequence(host->GetProject().GetSequences()[1]);
  Write("a.otio", MakeFile({"One"}));
  Reload(file);
  EXPECT_THAT(GetNames(), IsEmpty());
  EXPECT_FALSE(session->IsBusy());
  EXPECT_THAT(host.TakeFailures(), IsEmpty());
}

TEST_F(DocumentChanges, AFailureOfTheObserverKeepsNoFileWaiting) {
  journal.onChange = [] { throw std::runtime_error("no room in the list"); };
  session->Open(Write("a.otio", MakeFile({"One"})));
  session->Open(Write("b.otio", MakeFile({"Two"})));
  host.Settle();
  EXPECT_THAT(GetNames(), ElementsAre("One", "Two"));
  EXPECT_FALSE(session->IsBusy());
  EXPECT_THAT(host.TakeFailures(), ElementsAre(HasSubstr("no room"), HasSubstr("no room")));
}

TEST_F(DocumentChanges, TheSessionMayEndWhileItTells) {
  journal.onChange = [&] { session.reset(); };
  session->Open(Write("a.otio", MakeFile({"One"})));
  session->Open(Write("b.otio", MakeFile({"Two"})));
  host.Settle();
  EXPECT_THAT(journal.Take(), ElementsAre("changed a.otio"));
  EXPECT_THAT(host.TakeFailures(), IsEmpty());
}

TEST_F(DocumentChanges, AnObserverMayOpenAFileWhenAStepHasEnded) {
  const auto second = Write("b.otio", MakeFile({"Two"}));
  journal.onChange = [&] {
    journal.onChange = nullptr;
    session->Open(second);
  };
  Open(Write("a.otio", MakeFile({"One"})));
  EXPECT_THAT(GetNames(), ElementsAre("One", "Two"));
}

}  // namespace
}  // namespace standalone
