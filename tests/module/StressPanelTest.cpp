#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "module/ModuleFixture.h"

namespace Vantrel {
namespace {

using MZ::SequenceIndex::Options;
using qelcore::Ref;

constexpr unsigned kSteps = 1200;

standalone::SequenceDraft MakeClips(const std::string& name, unsigned count) {
  auto draft = drafts::MakeSequence(name);
  auto& track = drafts::AddTrack(draft);
  for (unsigned i = 0; i < count; ++i) drafts::AddClip(track, name, i * 10, i * 10 + 8);
  return draft;
}

/// The panel in the host's own hands: sequences opened, edited and closed, options changed, the panel
/// closed and opened again, in random order, while the pool builds.
class StressPanel : public testing::TestWithParam<unsigned> {
 protected:
  StressPanel() {
    standalone::SwitchFeature("SequenceIndex", true);
    for (int i = 0; i < 3; ++i) {
      sequences.push_back(standalone::ProjectModel::Current()
                              .AddDocument(drafts::MakeDocument(MakeClips(std::to_string(i), 20)))
                              .front());
    }
    answers.optionsAnswer = [this](const Options&) {
      if (random() % 3 == 0) return std::optional<Options>();
      Options options;
      options.isKeepingGaps = random() % 2 == 0;
      return std::optional(options);
    };
  }

  std::shared_ptr<SequenceIndexView> GetView() {
    return std::dynamic_pointer_cast<SequenceIndexView>(host.OpenPanel());
  }
  Ref<BE::ISequence> PickSequence() { return sequences[random() % sequences.size()]; }

  void Step() {
    switch (random() % 10) {
      case 0:
        return host.GetProject().ActivateSequence(PickSequence());
      case 1:
        return host.GetProject().CloseSequence(PickSequence());
      case 2:
      case 3: {
        const auto name = "edit " + std::to_string(++edits);
        return host.GetProject().ReplaceSequence(PickSequence(), MakeClips(name, random() % 30));
      }
      case 4:
        return GetView()->GetFilterButton()->Click(random() % 8);
      case 5:
        if (random() % 5 == 0) host.ClosePanel();
        return;
      case 6:
        return std::this_thread::sleep_for(std::chrono::microseconds(random() % 300));
      default:
        host.GetRuntime().GetMainQueue().RunOne();
    }
  }

  std::mt19937 random{GetParam()};
  standalone::StandaloneHost host;
  Answers answers;
  std::vector<Ref<BE::ISequence>> sequences;
  unsigned edits = 0;
};

TEST_P(StressPanel, EndsShowingTheActiveSequence) {
  for (unsigned i = 0; i < kSteps; ++i) Step();
  const auto shown = sequences.front();
  host.GetProject().ReplaceSequence(shown, MakeClips("last", 7));
  host.GetProject().ActivateSequence(shown);
  const auto view = GetView();
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  host.GetRuntime().Drain();
  EXPECT_EQ(view->GetName(), "Sequence Index: last");
  ASSERT_EQ(view->GetTree()->GetFilteredList().size(), 7U);
  EXPECT_EQ(view->GetTree()->CountRows(), 7U);
  EXPECT_EQ(view->GetTree()->GetFilteredList().back().name, "last");
  EXPECT_TRUE(host.GetRuntime().GetLog().TakeFailures().empty());
}

INSTANTIATE_TEST_SUITE_P(StressSeeds, StressPanel, testing::Values(11U, 12U, 13U, 14U));

}  // namespace
}  // namespace Vantrel
