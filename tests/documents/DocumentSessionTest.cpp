#include "standalone/documents/DocumentSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "documents/SessionFixture.h"
#include "standalone/model/PlayerNode.h"

namespace standalone {
namespace {

using qelcore::Ref;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(DocumentSessionTest, OpeningShowsTheFirstTimelineAndListsTheOthers) {
  Open(Write("a.otio", MakeFile({"One", "Two"})));
  EXPECT_THAT(GetNames(), ElementsAre("One", "Two"));
  EXPECT_EQ(GetActiveName(), "One");
  ASSERT_EQ(session->GetDocuments().size(), 1U);
  EXPECT_EQ(session->GetDocuments()[0].sequences.size(), 2U);
  EXPECT_FALSE(session->IsBusy());
  EXPECT_GT(journal.progressCount, 0);
}

TEST_F(DocumentSessionTest, TheTimelineIsShownBeforeItsMediaFilesAreRead) {
  Write("clip.mov", "no picture at all");
  const auto file = Write("a.otio", MakeFile({"One"}, 10, "clip.mov"));
  session->Open(file);
  RunOneStep();
  EXPECT_EQ(GetActiveName(), "One");
  EXPECT_TRUE(session->IsBusy());
  host.Settle();
  EXPECT_FALSE(session->IsBusy());
  auto calls = journal.Take();
  std::erase(calls, "no media");
  EXPECT_THAT(calls, ElementsAre("changed a.otio", "changed a.otio", "ended a.otio"));
}

TEST_F(DocumentSessionTest, AFileThatIsReadAgainIsShownOnceWithWhatItsMediaTell) {
  Write("clip.mov", "no picture at all");
  const auto file = Write("a.otio", MakeFile({"One"}, 10, "clip.mov"));
  Open(file);
  journal.Take();
  Write("a.otio", MakeFile({"Other"}, 20, "clip.mov"));
  session->Reload(file);
  RunOneStep();
  EXPECT_THAT(journal.Take(), IsEmpty());
  EXPECT_EQ(GetActiveName(), "One");
  host.Settle();
  EXPECT_EQ(GetActiveName(), "Other");
  EXPECT_THAT(journal.Take(), ElementsAre("changed a.otio", "ended a.otio"));
}

TEST_F(DocumentSessionTest, MediaFilesThatAreNotThereChangeNothing) {
  Open(Write("a.otio", MakeFile({"One"}, 10, "clip.mov")));
  EXPECT_THAT(journal.Take(), ElementsAre("changed a.otio", "ended a.otio"));
}

TEST_F(DocumentSessionTest, WithoutProbingNothingIsPublishedTwice) {
  LoadingOptions options;
  options.isProbing = false;
  Start(options);
  Write("clip.mov", "no picture at all");
  Open(Write("a.otio", MakeFile({"One"}, 10, "clip.mov")));
  EXPECT_THAT(journal.Take(), ElementsAre("changed a.otio", "ended a.otio"));
}

TEST_F(DocumentSessionTest, FilesAreReadOneAfterTheOther) {
  session->Open(Write("a.otio", MakeFile({"One"})));
  session->Open(Write("b.otio", MakeFile({"Two"})));
  host.Settle();
  EXPECT_THAT(GetNames(), ElementsAre("One", "Two"));
  EXPECT_EQ(GetActiveName(), "Two");
}

TEST_F(DocumentSessionTest, AFileThatCantBeReadIsReportedWithItsLine) {
  Open(Write("bad.otio", "{\n\"OTIO_SCHEMA\": oops"));
  EXPECT_THAT(journal.Take(), ElementsAre("failed bad.otio", "ended bad.otio"));
  EXPECT_EQ(journal.lastLine, 2U);
  EXPECT_THAT(session->GetDocuments(), IsEmpty());
  EXPECT_THAT(GetNames(), IsEmpty());
}

TEST_F(DocumentSessionTest, AMissingFileIsReported) {
  Open(folder / "none.otio");
  EXPECT_THAT(journal.Take(), ElementsAre("failed none.otio", "ended none.otio"));
}

TEST_F(DocumentSessionTest, ReadingAgainKeepsSequencesAndPlayhead) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  const auto before = host->GetProject().GetSequences();
  FindPlayer(before[0])->SetCurrentPosition(drafts::Frame(5));
  Write("a.otio", MakeFile({"Two", "One", "Three"}, 20));
  Reload(file);
  const OpenDocument& document = session->GetDocuments()[0];
  ASSERT_EQ(document.sequences.size(), 3U);
  EXPECT_EQ(document.sequences[0], before[1]);
  EXPECT_EQ(document.sequences[1], before[0]);
  EXPECT_EQ(GetActiveName(), "One");
  EXPECT_EQ(FindPlayer(before[0])->GetCurrentPosition(), drafts::Frame(5));
}

TEST_F(DocumentSessionTest, OpeningAnOpenFileReadsItAgain) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  Open(file);
  Open(folder / "." / "a.otio");
  EXPECT_THAT(GetNames(), ElementsAre("One"));
  EXPECT_EQ(session->GetDocuments().size(), 1U);
}

TEST_F(DocumentSessionTest, SequencesThatAreGoneFromTheFileAreClosed) {
  const auto file = Write("a.otio", MakeFile({"One", "Two"}));
  Open(file);
  host->GetProject().ActivateSequence(host->GetProject().GetSequences()[1]);
  Write("a.otio", MakeFile({"One"}));
  Reload(file);
  EXPECT_THAT(GetNames(), ElementsAre("One"));
  EXPECT_EQ(GetActiveName(), "One");
}

TEST_F(DocumentSessionTest, AFileThatBecameUnreadableLeavesWhatIsShownAndSaysSo) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  Open(file);
  journal.Take();
  Write("a.otio", "");
  Reload(file);
  EXPECT_THAT(journal.Take(), ElementsAre("trouble a.otio", "ended a.otio"));
  EXPECT_THAT(GetNames(), ElementsAre("One"));
  EXPECT_FALSE(session->GetDocuments()[0].trouble.empty());

  Write("a.otio", MakeFile({"One"}));
  Reload(file);
  EXPECT_TRUE(session->GetDocuments()[0].trouble.empty());
}

TEST_F(DocumentSessionTest, AFileThatIsNotOpenIsNotReadAgain) {
  session->Reload(Write("a.otio", MakeFile({"One"})));
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentSessionTest, ANewerReadTakesThePlaceOfTheOneUnderWay) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  Open(file);
  session->Reload(file);
  Write("a.otio", MakeFile({"New"}));
  Reload(file);
  EXPECT_EQ(GetActiveName(), "New");
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentSessionTest, CancellingEndsTheStepAndForgetsWhatWaits) {
  session->Open(Write("a.otio", MakeFile({"One"})));
  session->Open(Write("b.otio", MakeFile({"Two"})));
  session->Cancel();
  host.Settle();
  EXPECT_THAT(GetNames(), IsEmpty());
  EXPECT_THAT(journal.Take(), ElementsAre("ended a.otio"));
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentSessionTest, ClosingTakesTheSequencesOutOfTheProject) {
  const auto first = Write("a.otio", MakeFile({"One", "Two"}));
  Open(first);
  Open(Write("b.otio", MakeFile({"Three"})));
  session->Close(first);
  EXPECT_THAT(GetNames(), ElementsAre("Three"));
  EXPECT_EQ(GetActiveName(), "Three");
  EXPECT_EQ(session->GetDocuments().size(), 1U);
}

TEST_F(DocumentSessionTest, ClosingWhileMediaFilesAreReadLeavesNothingBehind) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  session->Open(file);
  RunOneStep();
  session->Close(file);
  host.Settle();
  EXPECT_THAT(GetNames(), IsEmpty());
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentSessionTest, AnObserverMayCloseTheFileItHearsOf) {
  const auto file = Write("a.otio", MakeFile({"One"}));
  journal.onChange = [&] { session->Close(file); };
  Open(file);
  EXPECT_THAT(GetNames(), IsEmpty());
  EXPECT_THAT(session->GetDocuments(), IsEmpty());
  EXPECT_FALSE(session->IsBusy());
}

TEST_F(DocumentSessionTest, NothingIsHeardOfAfterTheSessionIsGone) {
  session->Open(Write("a.otio", MakeFile({"One"})));
  session.reset();
  host.Settle();
  EXPECT_THAT(journal.Take(), IsEmpty());
}

TEST_F(DocumentSessionTest, ASequenceLeadsToItsDocument) {
  Open(Write("a.otio", MakeFile({"One"})));
  Open(Write("b.otio", MakeFile({"Two"})));
  const auto sequences = host->GetProject().GetSequences();
  ASSERT_NE(session->FindDocument(sequences[1]), nullptr);
  EXPECT_EQ(session->FindDocument(sequences[1])->file.filename(), "b.otio");
  EXPECT_EQ(session->FindDocument(Ref<BE::ISequence>()), nullptr);
}

}  // namespace
}  // namespace standalone
