#include <gtest/gtest.h>

#include "host/BE/VisitSequence.h"
#include "host/MZ/Clips.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "support/Drafts.h"

namespace {

/// What people read about a media that is offline for that reason.
std::string DescriptionFor(const std::string& reason) {
  const standalone::Runtime runtime;
  standalone::ProjectModel model;
  auto draft = drafts::MakeSequence();
  auto& media = drafts::AddClip(drafts::AddTrack(draft), "A", 0, 10).media;
  media.isOffline = true;
  media.offlineReason = reason;
  std::string description;
  BE::VisitSequence(model.AddDocument(drafts::MakeDocument(draft)).front(),
                    [&](qelcore::IUnknown& node) {
                      auto* const item = qelcore::FindInterface<BE::ITrackItem>(&node);
                      if (item != nullptr && item->GetClip()) {
                        const auto offline = item->GetClip()->GetMedia()->GetOfflineReason();
                        description = MZ::Utilities::GetOfflineReasonDescription(offline).View();
                      }
                      return BE::VisitorStatus::kContinue;
                    });
  return description;
}

TEST(OfflineReason, IsDescribedInItsOwnWords) {
  EXPECT_EQ(DescriptionFor("Drive is not mounted"), "Drive is not mounted");
}

TEST(OfflineReason, ThatNobodyGaveIsThatTheFileWasNotFound) {
  EXPECT_EQ(DescriptionFor(""), "Media file not found");
}

TEST(OfflineReason, ThatIsMissingHasNoDescription) {
  EXPECT_EQ(MZ::Utilities::GetOfflineReasonDescription({}), "");
}

}  // namespace
