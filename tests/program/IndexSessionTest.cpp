#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "host/BE/Model.h"
#include "host/HSL/Handler.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Messaging.h"
#include "standalone/app/IndexSession.h"
#include "standalone/model/VisitableSequence.h"
#include "standalone/runtime/Guard.h"
#include "support/Drafts.h"
#include "support/Process.h"

/// What commands rely on: whatever goes wrong inside the panel reaches them.
namespace {

using standalone::IndexSession;

/// A sequence whose project has gone: it has the interfaces that panels subscribe to, and visiting it
/// fails.
class LostSequence final : public BE::ISequence,
                           public BE::ISequenceContent,
                           public BE::ISequenceTrackGroups,
                           public standalone::VisitableSequence {
 public:
  void AddRef() const noexcept override { ++count; }
  void Release() const noexcept override {
    if (--count == 0) delete this;
  }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == BE::ISequence::kInterfaceID) return static_cast<BE::ISequence*>(this);
    if (id == BE::ISequenceContent::kInterfaceID) return static_cast<BE::ISequenceContent*>(this);
    if (id == BE::ISequenceTrackGroups::kInterfaceID)
      return static_cast<BE::ISequenceTrackGroups*>(this);
    if (id == standalone::VisitableSequence::kInterfaceID) {
      return static_cast<standalone::VisitableSequence*>(this);
    }
    return nullptr;
  }
  void VisitChildren(const BE::SequenceVisitor&) const override {
    throw std::runtime_error("the project's disk is gone");
  }
  qelcore::UTF8String GetName() const override { return qelcore::UTF8String("Lost"); }
  qelmediatypes::TickTime GetVideoFrameDuration() const override { return {}; }
  qelmediatypes::TickTime GetAudioFrameDuration() const override { return {}; }
  qelcore::messaging::StationID GetStationID() const override {
    return qelcore::messaging::StationID("lost");
  }

 private:
  mutable std::atomic<int> count{0};
};

/// What another panel's handler does while the panels are being opened.
enum class Neighbour { kNothing, kReports, kThrows };
Neighbour neighbour = Neighbour::kNothing;

/// A failure that is neither the host's nor one of the standard library's.
class NeighboursFailure final : public std::exception {
 public:
  const char* what() const noexcept override { return "the neighbour burns"; }
};

std::shared_ptr<HSL::Handler> MakeNeighbour(const qelcore::UTF8String&) {
  if (neighbour == Neighbour::kThrows) throw NeighboursFailure();
  if (neighbour == Neighbour::kReports) {
    standalone::ReportFailure("neighbour", std::make_exception_ptr(NeighboursFailure()));
  }
  return nullptr;
}

/// Opens a session beside a neighbour and returns the sentence of the failure.
std::string FailToOpen(Neighbour behaviour) {
  static const bool isRegistered = (HSL::Handler::RegisterFactory("Neighbour", &MakeNeighbour), true);
  EXPECT_TRUE(isRegistered);
  neighbour = behaviour;
  std::string sentence;
  try {
    const IndexSession session;
    ADD_FAILURE() << "the failure passed";
  } catch (const std::runtime_error& failure) {
    sentence = failure.what();
  }
  neighbour = Neighbour::kNothing;
  return sentence;
}

standalone::DocumentDraft MakeDocument() {
  standalone::DocumentDraft document;
  auto& sequence = document.sequences.emplace_back(drafts::MakeSequence("Cut"));
  drafts::AddClip(drafts::AddTrack(sequence), "A", 0, 50);
  document.timelineCount = 1;
  return document;
}

TEST(IndexSession, AFailedBuildNeverPassesAsAnEmptyTable) {
  IndexSession session;
  session.ShowDocument(MakeDocument());
  qelcore::messaging::BroadcastMessageOnMainThread(
      MZ::kStation_SequenceActivation,
      MZ::SequenceActivatedMessage(qelcore::Ref<BE::ISequence>(new LostSequence)));
  try {
    session.Search("A");
    FAIL() << "the failure passed";
  } catch (const std::runtime_error& failure) {
    const std::string sentence = failure.what();
    EXPECT_NE(sentence.find("can't be built"), std::string::npos) << sentence;
    EXPECT_NE(sentence.find("the project's disk is gone"), std::string::npos) << sentence;
  }
}

TEST(IndexSession, AFailureOnceThePanelIsOpenClosesItBeforeItsModuleGoes) {
  EXPECT_NE(FailToOpen(Neighbour::kReports).find("the neighbour burns"), std::string::npos);
}

TEST(IndexSession, AFailureOfAForeignTypeLeavesAsItsSentence) {
  EXPECT_EQ(FailToOpen(Neighbour::kThrows), "the neighbour burns");
}

TEST(IndexSession, WritesWhatThePanelShows) {
  const process::Folder folder;
  IndexSession session;
  session.ShowDocument(MakeDocument());
  session.Export(folder / "cut.csv");
  EXPECT_EQ(process::ReadFile(folder / "cut.csv"),
            "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions\n"
            "1,0,A,V1,00:00:00:00,00:00:02:00,,\n");
}

TEST(IndexSession, ADocumentWithoutTimelineIsAFailure) {
  IndexSession session;
  EXPECT_THROW(session.ShowDocument({}), std::runtime_error);
}

std::ptrdiff_t CountThreads() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST(IndexSession, NeedsNoFurtherThreadWhenNoMediaFilesWillBeRead) {
  const std::ptrdiff_t before = CountThreads();
  constexpr bool kIsProbing = false;
  IndexSession session(kIsProbing);
  session.ShowDocument(MakeDocument());
  EXPECT_EQ(session.GetTree().CountRows(), 1U);
  EXPECT_EQ(CountThreads(), before);
}

TEST(IndexSession, OneFollowsAnother) {
  for (int i = 0; i < 3; ++i) {
    IndexSession session;
    session.ShowDocument(MakeDocument());
  }
}

}  // namespace
