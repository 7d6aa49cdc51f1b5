#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "standalone/import/TimelineReader.h"
#include "standalone/model/SequenceDraft.h"

/// Drafts as short texts, so that a whole sequence is compared with one literal.
namespace draft {

constexpr std::int64_t k24 = 10584000000;
constexpr std::int64_t k25 = 10160640000;
constexpr std::int64_t k2997 = 8475667200;
constexpr std::int64_t k30 = 8467200000;
constexpr std::int64_t k48000 = 5292000;
constexpr std::int64_t k44100 = 5760000;

inline std::vector<std::string> Labels(const standalone::SequenceDraft& sequence) {
  std::vector<std::string> labels;
  int video = 0;
  int audio = 0;
  for (const standalone::TrackDraft& track : sequence.tracks) {
    const bool isVideo = track.kind == standalone::TrackKind::kVideo;
    labels.push_back(isVideo ? "V" + std::to_string(++video) : "A" + std::to_string(++audio));
  }
  return labels;
}

/// Whole frames, or ticks with a "t" behind them.
inline std::string Position(qelmediatypes::TickTime time, std::int64_t ticksPerFrame) {
  const std::int64_t ticks = time.GetTicks();
  if (ticks % ticksPerFrame == 0) return std::to_string(ticks / ticksPerFrame);
  return std::to_string(ticks) + "t";
}

/// "V1 0-100 Interview", "V1 100-103 (gap)"
inline std::vector<std::string> Rows(const standalone::SequenceDraft& sequence,
                                     std::int64_t ticksPerFrame) {
  std::vector<std::string> rows;
  const std::vector<std::string> labels = Labels(sequence);
  for (std::size_t t = 0; t < labels.size(); ++t) {
    for (const standalone::TrackItemDraft& item : sequence.tracks[t].items) {
      rows.push_back(labels[t] + " " + Position(item.start, ticksPerFrame) + "-" +
                     Position(item.end, ticksPerFrame) + " " + (item.clip ? item.clip->name : "(gap)"));
    }
  }
  return rows;
}

/// "V1:3/1/2+1n": clips, gaps, transitions, nested items of each track; "(off)" for a disabled one.
inline std::string Counts(const standalone::SequenceDraft& sequence) {
  std::string text;
  const std::vector<std::string> labels = Labels(sequence);
  for (std::size_t t = 0; t < labels.size(); ++t) {
    int clips = 0;
    int gaps = 0;
    int transitions = 0;
    int nested = 0;
    bool isOpen = false;
    for (const standalone::TrackItemDraft& item : sequence.tracks[t].items) {
      if (!item.clip) ++gaps;
      if (item.clip) ++(item.clip->nestedSequence ? nested : clips);
      if (item.clip && item.clip->headTransition && !isOpen) ++transitions;
      isOpen = item.clip && item.clip->tailTransition;
      if (isOpen) ++transitions;
    }
    if (!text.empty()) text += " ";
    text += labels[t] + ":" + std::to_string(clips) + "/" + std::to_string(gaps) + "/" +
            std::to_string(transitions);
    if (nested > 0) text += "+" + std::to_string(nested) + "n";
    if (sequence.tracks[t].isDisabled) text += "(off)";
  }
  return text;
}

/// "3: track V1, clip "A": sentence"
inline std::vector<std::string> Notes(const standalone::ImportResult& result) {
  std::vector<std::string> notes;
  for (const standalone::ImportNote& note : result.notes) {
    notes.push_back(std::to_string(note.line) + ": " + note.place + ": " + note.sentence);
  }
  return notes;
}

/// The same without lines.
inline std::vector<std::string> Sentences(const standalone::ImportResult& result) {
  std::vector<std::string> notes;
  for (const standalone::ImportNote& note : result.notes)
    notes.push_back(note.place + ": " + note.sentence);
  return notes;
}

}  // namespace draft
