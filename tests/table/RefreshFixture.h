#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/BE/Model.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/Reference.h"
#include "support/Drafts.h"
#include "support/HostCalls.h"
#include "support/SteppedHost.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

using Names = std::vector<std::string>;
using Calls = std::vector<std::string>;

inline Names GetNames(const TrackItemDataList& rows) {
  Names names;
  for (const TrackItemRowData& row : rows) names.emplace_back(row.name.View());
  return names;
}

/// "A1", "A2", … of these clips, one after the other on one track, each ten frames long.
inline standalone::SequenceDraft MakeClips(std::string_view prefix, int count) {
  auto draft = drafts::MakeSequence(prefix);
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < count; ++i) {
    drafts::AddClip(track, std::string(prefix) + std::to_string(i + 1), i * 10, i * 10 + 10);
  }
  return draft;
}

/// A clip, a gap of three frames, a clip.
inline standalone::SequenceDraft MakeClipGapClip() {
  auto draft = drafts::MakeSequence("Gap");
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "before", 0, 10);
  drafts::AddClip(track, "after", 13, 20);
  return draft;
}

inline MZ::SequenceIndex::Options KeepingGaps() {
  MZ::SequenceIndex::Options options;
  options.isKeepingGaps = true;
  return options;
}

/// A table whose builds and main-thread steps run when the test says so.
class RefreshFixture : public testing::Test {
 protected:
  static constexpr float kRowHeight = 18;
  static qelcore::Ref<SequenceIndexTree> MakeTree() {
    return qelcore::Ref(new SequenceIndexTree({}, 0, kRowHeight));
  }

  /// Publishes another content of the sequence; the table has no view here that would refresh it.
  void Replace(const qelcore::Ref<BE::ISequence>& sequence, standalone::SequenceDraft draft) {
    host->GetProject().ReplaceSequence(sequence, std::move(draft));
  }
  void ShowSequence(standalone::SequenceDraft draft) {
    sequence = AddSequence(std::move(draft));
    tree->SetSequence(sequence);
    host.Settle();
  }
  bool RunOneTask() { return host.GetPool().RunOne(); }
  bool RunOneMainStep() { return host.GetMainQueue().RunOne(); }
  Names GetShownNames() const { return GetNames(tree->GetFilteredList()); }

  SteppedHost host;
  qelcore::Ref<BE::ISequence> sequence;
  qelcore::Ref<SequenceIndexTree> tree = MakeTree();
};

}  // namespace Vantrel
