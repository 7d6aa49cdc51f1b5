#include "host/BE/VisitSequence.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "host/BE/MediaTypes.h"
#include "host/qelcore/Exceptions.h"
#include "model/ModelFixture.h"
#include "standalone/model/VisitableSequence.h"

namespace {

using BE::VisitorStatus;
using standalone::TrackKind;

/// One letter a node: S sequence, G group, T track, I item.
char LetterOf(qelcore::IUnknown& node) {
  if (qelcore::FindInterface<BE::ISequence>(&node) != nullptr) return 'S';
  if (qelcore::FindInterface<BE::ITrackGroup>(&node) != nullptr) return 'G';
  if (qelcore::FindInterface<BE::ITrack>(&node) != nullptr) return 'T';
  if (qelcore::FindInterface<BE::ITrackItem>(&node) != nullptr) return 'I';
  return '?';
}

/// What a visit sees when it leaves out the children of nodes with one letter.
std::string VisitWithout(const qelcore::Ref<BE::ISequence>& sequence, char closed) {
  std::string seen;
  BE::VisitSequence(sequence, [&](qelcore::IUnknown& node) {
    seen += LetterOf(node);
    return seen.back() == closed ? VisitorStatus::kDoNotDescend : VisitorStatus::kContinue;
  });
  return seen;
}

class VisitSequence : public ModelTest {
 protected:
  static standalone::SequenceDraft MakeDraft() {
    auto draft = drafts::MakeSequence();
    drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "Sound", 0, 10);
    drafts::AddClip(drafts::AddTrack(draft), "Low", 0, 10);
    drafts::AddTrack(draft);
    return draft;
  }
};

TEST_F(VisitSequence, GoesFromTheSequenceOverGroupsAndTracksToTheItems) {
  EXPECT_EQ(VisitWithout(model.Add(MakeDraft()), '-'), "SGTIITIGTII");
}

TEST_F(VisitSequence, ShowsTheVideoGroupBeforeTheAudioGroup) {
  std::vector<BE::MediaType> groups;
  BE::VisitSequence(model.Add(MakeDraft()), [&](qelcore::IUnknown& node) {
    if (auto* const group = qelcore::FindInterface<BE::ITrackGroup>(&node)) {
      groups.push_back(group->GetIdentifier());
    }
    return VisitorStatus::kContinue;
  });
  EXPECT_EQ(groups, (std::vector{BE::kMediaType_Video, BE::kMediaType_Audio}));
}

TEST_F(VisitSequence, LeavesOutTheChildrenOfANodeThatIsNotEntered) {
  const auto sequence = model.Add(MakeDraft());
  EXPECT_EQ(VisitWithout(sequence, 'S'), "S");
  EXPECT_EQ(VisitWithout(sequence, 'G'), "SGG");
  EXPECT_EQ(VisitWithout(sequence, 'T'), "SGTTGT");
  EXPECT_EQ(VisitWithout(sequence, 'I'), "SGTIITIGTII");
}

TEST_F(VisitSequence, AnExceptionOfTheVisitorLeavesTheVisit) {
  const auto sequence = model.Add(MakeDraft());
  const auto visit = [&] {
    BE::VisitSequence(sequence, [](qelcore::IUnknown& node) -> VisitorStatus {
      if (LetterOf(node) == 'I') throw std::runtime_error("bad item");
      return VisitorStatus::kContinue;
    });
  };
  EXPECT_THROW(visit(), std::runtime_error);
}

TEST_F(VisitSequence, AnEmptySequenceRaisesTheErrorThatNamesTheInterface) {
  try {
    BE::VisitSequence({}, [](qelcore::IUnknown&) { return VisitorStatus::kContinue; });
    FAIL() << "nothing was raised";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "BE::ISequence");
  }
}

class ForeignSequence : public Fake<BE::ISequence> {
 public:
  qelcore::UTF8String GetName() const override { return {}; }
  qelmediatypes::TickTime GetVideoFrameDuration() const override { return drafts::Frame(1); }
  qelmediatypes::TickTime GetAudioFrameDuration() const override { return drafts::Frame(1); }
};

/// Shows what stands below another sequence.
class BorrowingSequence final : public ForeignSequence, public standalone::VisitableSequence {
 public:
  explicit BorrowingSequence(qelcore::Ref<BE::ISequence> lender) : lender(std::move(lender)) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == VisitableSequence::kInterfaceID) return static_cast<VisitableSequence*>(this);
    return ForeignSequence::QueryInterface(id);
  }
  void VisitChildren(const BE::SequenceVisitor& visitor) const override {
    qelcore::FindInterface<VisitableSequence>(lender.Get())->VisitChildren(visitor);
  }

 private:
  qelcore::Ref<BE::ISequence> lender;
};

TEST_F(VisitSequence, OfASequenceThatCannotBeVisitedSeesItAlone) {
  EXPECT_EQ(VisitWithout(qelcore::Ref<BE::ISequence>(new ForeignSequence), '-'), "S");
}

TEST_F(VisitSequence, AnySequenceMayShowWhatLiesBelowIt) {
  const qelcore::Ref<BE::ISequence> borrowing(new BorrowingSequence(model.Add(MakeDraft())));
  EXPECT_EQ(VisitWithout(borrowing, '-'), "SGTIITIGTII");
}

}  // namespace
