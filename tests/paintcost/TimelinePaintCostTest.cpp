#include <gtest/gtest.h>

#include "desktop/DesktopFixture.h"
#include "scaling/AllocationWatch.h"
#include "standalone/desktop/TimelineView.h"

namespace standalone {
namespace {

class TimelinePaintCost : public DesktopFixture {
 protected:
  std::uint64_t Measure(int clips) {
    auto draft = drafts::MakeSequence("Long");
    auto& track = drafts::AddTrack(draft);
    for (int i = 0; i < clips; ++i) drafts::AddClip(track, "clip", 2 * i, 2 * i + 2);
    TimelineView view;
    view.resize(1200, 260);
    Show(view);
    view.SetSequence(OpenSequence(std::move(draft)));
    Grab(*view.viewport());
    const scaling::AllocationWatch watch;
    Grab(*view.viewport());
    return watch.Take().count;
  }
};

TEST_F(TimelinePaintCost, PaintingCostsTheSameHoweverManyClipsThereAre) {
  // The ruler's labels, some more or less at another scale, are what there is to count.
  EXPECT_LE(Measure(100'000), 2 * Measure(20'000));
}

}  // namespace
}  // namespace standalone
