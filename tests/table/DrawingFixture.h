#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "host/qelui/Geometry.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "table/ColumnLayout.h"
#include "table/RefreshFixture.h"

namespace Vantrel {

inline constexpr qelui::Rect kCell{40, 120, 200, 25};

/// Picture: a clip, a gap of three frames, an offline clip. Sound on the third track: a clip. Between
/// them, every column has a text somewhere.
inline standalone::SequenceDraft MakeRichSequence() {
  auto draft = drafts::MakeSequence("Reel 1");
  draft.zeroPoint = drafts::Frame(90000);
  auto& video = drafts::AddTrack(draft);
  auto& clip = drafts::AddClip(video, "Interview", 0, 50);
  clip.labelColor = {255, 0, 51, 102};
  drafts::AddEffect(clip, "Blur");
  drafts::AddEffect(clip, "Glow", true);
  clip.headTransition = standalone::TransitionDraft{"Dissolve", false};
  clip.media.codec = "Codec X";
  clip.proxy.emplace().address = "/proxies/a.mov";
  clip.sourceClipName = "source";
  clip.comment = "comment";
  clip.description = "description";
  clip.tapeName = "tape";
  clip.videoInfo = "1920 x 1080 (1.0)";
  clip.multicam = {true, {"Camera 1", "Camera 2"}, 1};
  auto& offline = drafts::AddClip(video, "Lost", 53, 60);
  offline.media.isOffline = true;
  offline.media.offlineReason = "not found";
  drafts::AddTitle(video, "Title", 60, 70, {"A font that nobody has"});
  for (int i = 0; i < 2; ++i) drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  auto& audio = drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  drafts::AddClip(audio, "Sound", 0, 75).labelColor = {0, 0, 255, 255};
  return draft;
}

/// A table that shows all columns, and what its cells draw.
class DrawingFixture : public RefreshFixture {
 protected:
  DrawingFixture() {
    GetColumnLayoutStore().clear();
    tree = MakeTree();
    for (auto& column : GetColumnLayoutStore()) column.shown = true;
    ApplyColumnLayout(tree->GetHeaderRow());
  }

  /// Shows the rich sequence with its gaps: Interview, Sound, Gap, Lost, Title.
  void ShowRichSequence() {
    ShowSequence(MakeRichSequence());
    tree->SetOptions(KeepingGaps());
    host.Settle();
    ASSERT_EQ(GetShownNames(), (Names{"Interview", "Sound", "Gap", "Lost", "Title"}));
  }
  void DrawAt(std::size_t position, std::size_t displayIndex, const qelui::Rect& cell = kCell) {
    drawbot.Clear();
    tree->DrawCellOfRow(drawbot, tree->GetRow(position), displayIndex, cell);
  }
  void Draw(std::size_t position, ColumnID column, const qelui::Rect& cell = kCell) {
    const std::int32_t index = tree->GetHeaderRow()->GetIndexOfColumn(column);
    ASSERT_GE(index, 0) << column;
    DrawAt(position, static_cast<std::size_t>(index), cell);
  }
  /// The text of the only line drawn; empty when nothing was drawn.
  std::string GetDrawnText() const {
    EXPECT_LE(drawbot.GetTextLines().size(), 1U);
    EXPECT_TRUE(drawbot.GetFills().empty());
    return drawbot.GetTextLines().empty() ? "" : std::string(drawbot.GetTextLines()[0].text.View());
  }
  std::string DrawText(std::size_t position, ColumnID column) {
    Draw(position, column);
    return GetDrawnText();
  }
  bool IsNothingDrawn() const { return drawbot.GetTextLines().empty() && drawbot.GetFills().empty(); }

  standalone::RecordingDrawbot drawbot;
};

}  // namespace Vantrel
