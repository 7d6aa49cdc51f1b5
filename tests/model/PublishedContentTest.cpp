#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "model/ModelFixture.h"

namespace {

using qelcore::Ref;

/// A sequence whose clips all carry the edition in their texts.
standalone::SequenceDraft MakeEdition(int edition) {
  auto draft = drafts::MakeSequence("Edition " + std::to_string(edition));
  auto& track = drafts::AddTrack(draft);
  for (std::int64_t i = 0; i < 100; ++i) {
    auto& clip = drafts::AddClip(track, draft.name, 10 * i, 10 * i + 10);
    clip.comment = draft.name;
    clip.videoInfo = draft.name;
    clip.tailTransition = {draft.name, false};
    clip.headTransition = {draft.name, false};
    drafts::AddEffect(clip, draft.name);
  }
  return draft;
}

/// Reads everything that an item leads to; true when all of it is of one edition.
bool IsOfOneEdition(const Ref<BE::ITrackItem>& item) {
  const auto clip = item->GetClip();
  const auto name = clip->GetName();
  const auto masterClip = BE::TrackItemUtils::GetMasterClip(item);
  const auto projectItem = BE::MasterClipUtils::GetProjectItem(masterClip);
  const auto components = qelcore::RequireInterface<BE::IComponentOwner>(clip);
  const std::u16string wide(name.View().begin(), name.View().end());
  return masterClip->GetName() == name && masterClip->GetMedia() == clip->GetMedia() &&
         projectItem->GetColumnProperty("Column.PropertyText.Comment") == name &&
         MZ::FindClip::GetVideoInfo(item) == name &&
         components->GetComponent(0)->GetDisplayName() == wide &&
         BE::TrackItemUtils::GetHeadTransition(item)->GetDisplayName() == wide &&
         qelcore::QueryInterface<BE::ITrack>(item->GetTrack());
}

std::vector<Ref<BE::ITrackItem>> CollectUnderReadLock(const Ref<BE::ISequence>& sequence) {
  BE::GetBackendReadLock().Lock();
  auto clips = CollectClips(sequence);
  BE::GetBackendReadLock().Unlock();
  return clips;
}

class PublishedContent : public ModelTest {};

TEST_F(PublishedContent, AnItemStaysReadableAfterItsSequenceWasReplacedAndDropped) {
  auto sequence = model.Add(MakeEdition(1));
  auto items = CollectClips(sequence);
  model.project.ReplaceSequence(sequence, MakeEdition(2));
  EXPECT_EQ(items.front()->GetClip()->GetName(), "Edition 1");
  const auto last = items.back();
  items.clear();
  EXPECT_TRUE(IsOfOneEdition(last));
  EXPECT_EQ(CollectClips(sequence).front()->GetClip()->GetName(), "Edition 2");
}

TEST_F(PublishedContent, AnyNodeKeepsWhatItReaches) {
  auto sequence = model.Add(MakeEdition(1));
  const qelcore::Ref<BE::IMasterClip> masterClip =
      BE::TrackItemUtils::GetMasterClip(CollectClips(sequence).front());
  const auto projectItem = BE::MasterClipUtils::GetProjectItem(masterClip);
  model.project.ReplaceSequence(sequence, MakeEdition(2));
  EXPECT_EQ(masterClip->GetMedia()->GetAddress(), "/media/Edition 1.mov");
  EXPECT_EQ(projectItem->GetColumnProperty("Column.PropertyText.Comment"), "Edition 1");
}

TEST_F(PublishedContent, AVisitKeepsSeeingTheContentItBeganWith) {
  const auto sequence = model.Add(MakeEdition(1));
  std::size_t clips = 0;
  BE::VisitSequence(sequence, [&](qelcore::IUnknown& node) {
    if (auto* const item = qelcore::FindInterface<BE::ITrackItem>(&node)) {
      if (item->GetType() == BE::kTrackItemType_Clip) ++clips;
      if (clips == 1) model.project.ReplaceSequence(sequence, drafts::MakeSequence());
    }
    return BE::VisitorStatus::kContinue;
  });
  EXPECT_EQ(clips, 100U);
}

TEST_F(PublishedContent, AReaderSeesOneEditionWhileTheSequenceIsReplaced) {
  const auto sequence = model.Add(MakeEdition(0));
  std::atomic<bool> isEditing{true};
  std::atomic<int> mixed{0};
  std::atomic<int> passes{0};
  std::vector<std::thread> readers;
  for (int i = 0; i < 2; ++i) {
    readers.emplace_back([&] {
      while (isEditing) {
        const auto items = CollectUnderReadLock(sequence);
        const auto first = items.front()->GetClip()->GetName();
        for (const auto& item : items) {
          if (item->GetClip()->GetName() != first || !IsOfOneEdition(item)) ++mixed;
        }
        ++passes;
      }
    });
  }
  for (int edition = 1; edition < 200 || passes < 10; ++edition) {
    model.project.ReplaceSequence(sequence, MakeEdition(edition));
  }
  isEditing = false;
  for (auto& reader : readers) reader.join();
  EXPECT_EQ(mixed, 0);
}

TEST_F(PublishedContent, TheLastReferenceMayBeGivenBackOnAnyThread) {
  auto sequence = model.Add(MakeEdition(1));
  auto items = CollectClips(sequence);
  model.project.ReplaceSequence(sequence, MakeEdition(2));
  std::thread([items = std::move(items)]() mutable { items.clear(); }).join();
}

}  // namespace
