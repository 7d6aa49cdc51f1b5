#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;

class SearchField : public ViewFixture {
 protected:
  SearchField() { CreateContents(); }

  void Type(const char* text) { view->GetSearchField()->Type(UTF8String(text)); }
  /// How often the table was asked to search while `text` was typed.
  std::size_t CountSearches(const char* text) {
    const hostcalls::Recording recording;
    Type(text);
    return recording.Count("Schedule");
  }
  std::string GetSearchText() const { return std::string(view->GetSearchText().View()); }
};

TEST_F(SearchField, EachKeystrokeSearches) {
  EXPECT_EQ(CountSearches("w"), 1U);
  EXPECT_EQ(CountSearches("wi"), 1U);
  EXPECT_EQ(CountSearches(""), 1U);
}

TEST_F(SearchField, ACommittedTextThatWasTypedSearchesNoMore) {
  Type("wide");
  const hostcalls::Recording recording;
  view->GetSearchField()->Commit();
  EXPECT_EQ(recording.Count("Schedule"), 0U);
}

TEST_F(SearchField, ACommittedTextThatItsKeystrokesCouldNotHandOverSearches) {
  {
    const hostcalls::Hook fault("GetValueUTF8", [] { throw std::runtime_error("no text yet"); });
    EXPECT_EQ(CountSearches("wide"), 0U);
  }
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  const hostcalls::Recording recording;
  view->GetSearchField()->Commit();
  EXPECT_EQ(recording.Count("Schedule"), 1U);
  EXPECT_EQ(GetSearchText(), "wide");
}

TEST_F(SearchField, TheTextIsKeptInLowerCase) {
  Type("WIDE Shot 7");
  EXPECT_EQ(GetSearchText(), "wide shot 7");
}

TEST_F(SearchField, TheSameTextInAnotherCaseSearchesNoMore) {
  Type("wide");
  EXPECT_EQ(CountSearches("WIDE"), 0U);
  EXPECT_EQ(GetSearchText(), "wide");
  EXPECT_EQ(CountSearches("Wide"), 0U);
}

TEST_F(SearchField, ATextThatWasTypedInCapitalsIsTheSameInLowerCase) {
  EXPECT_EQ(CountSearches("WIDE"), 1U);
  EXPECT_EQ(CountSearches("wide"), 0U);
}

TEST_F(SearchField, LongerShorterAndOtherTextsAreNew) {
  Type("wide");
  EXPECT_EQ(CountSearches("widen"), 1U);
  EXPECT_EQ(CountSearches("wide"), 1U);
  EXPECT_EQ(CountSearches("wade"), 1U);
}

TEST_F(SearchField, BlanksAreNotTrimmed) {
  Type("wide");
  EXPECT_EQ(CountSearches("wide "), 1U);
  EXPECT_EQ(GetSearchText(), "wide ");
}

TEST_F(SearchField, LettersOfSeveralBytesAreKeptAsTheyAre) {
  Type("CAFÉ");
  EXPECT_EQ(GetSearchText(), "cafÉ");
  EXPECT_EQ(CountSearches("café"), 1U) << "É and é are different letters here";
}

TEST_F(SearchField, TheTableShowsTheRowsThatMatch) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "Wide", 0, 10);
  drafts::AddClip(track, "Close", 10, 20);
  host->GetProject().ActivateSequence(AddSequence(std::move(draft)));
  host.Settle();
  view->GetTree()->SetSequence(host->GetProject().GetActiveSequence());
  Type("WID");
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 1U);
  Type("");
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 2U);
}

TEST_F(SearchField, AKeystrokeAfterTheViewIsGoneDoesNothing) {
  const auto field = view->GetSearchField();
  view.reset();
  const hostcalls::Recording recording;
  field->Type(UTF8String("late"));
  field->Commit();
  EXPECT_EQ(recording.Count("Schedule"), 0U);
}

TEST_F(SearchField, AnotherViewStartsWithoutAText) {
  Type("wide");
  view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  CreateContents();
  EXPECT_EQ(GetSearchText(), "");
  EXPECT_TRUE(view->GetSearchField()->GetValueUTF8().Empty());
}

}  // namespace
}  // namespace Vantrel
