#include "data/SearchPredicate.h"

#include <cstdint>
#include <unordered_map>

#include "data/ClipRow.h"
#include "data/FoldedSearch.h"
#include "data/FrameRateText.h"
#include "data/MediaTypes.h"
#include "data/ProjectItemTexts.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;

/// Whether the wanted text is within the texts of one column. Picture and sound of a shot stand beside
/// each other and share most of their texts, and codecs and effects repeat anyway: the answer for the
/// last text is kept.
class ColumnSearch {
 public:
  bool IsWithin(const UTF8String& text, const FoldedSearch& search) {
    if (text.Empty()) return search.IsWithin({});
    if (!text.SharesBufferWith(last)) {
      // Held, so that no other text can take its place in memory.
      last = text;
      isWithin = search.IsWithin(text);
    }
    return isWithin;
  }

 private:
  UTF8String last;
  bool isWithin = false;
};

/// The same for what people have noted on project items.
class NoteSearch {
 public:
  bool IsWithin(qelcore::Borrowed<BE::IProjectItem> item, const FoldedSearch& search) {
    if (!item) return search.IsWithin({});
    if (item != last) {
      last = item;
      isWithin = search.IsWithin(CommentText(item)) || search.IsWithin(DescriptionText(item));
    }
    return isWithin;
  }

 private:
  qelcore::Ref<BE::IProjectItem> last;
  bool isWithin = false;
};

/// The same for the rates of one kind of rows, of which a sequence has a few. To write one takes longer
/// than to look for it.
class RateSearch {
 public:
  bool IsWithin(const TrackItemRowData& row, const FoldedSearch& search) {
    const auto [answer, isNew] = answers.try_emplace(row.frameRate.GetTicks(), false);
    if (isNew) answer->second = search.IsWithin(FrameRateText(row));
    return answer->second;
  }

 private:
  std::unordered_map<std::int64_t, bool> answers;
};

class SearchPredicate {
 public:
  explicit SearchPredicate(const UTF8String& text) : search(text) {}

  bool operator()(const TrackItemRowData& row) {
    qelcore::Required(row.trackItem);
    if (IsClipRow(row)) qelcore::Required(BE::TrackItemUtils::GetClip(row.trackItem));
    // Both are asked for whether they are needed or not: what a row lacks must show, not depend on what
    // is searched.
    const auto item = FindProjectItem(row.trackItem);
    const UTF8String info = MZ::FindClip::GetVideoInfo(row.trackItem);
    return name.IsWithin(row.name, search) || notes.IsWithin(item, search) ||
           codec.IsWithin(row.codec, search) || sourceClipName.IsWithin(row.sourceClipName, search) ||
           proxyPath.IsWithin(row.proxyPath, search) ||
           effectsMissing.IsWithin(row.effectsMissing, search) ||
           fontsUsed.IsWithin(row.fontsUsed, search) ||
           fontsMissing.IsWithin(row.fontsMissing, search) ||
           transitions.IsWithin(row.transitions, search) || effects.IsWithin(row.effects, search) ||
           videoInfo.IsWithin(info, search) || IsWithinRate(row);
  }

 private:
  bool IsWithinRate(const TrackItemRowData& row) {
    if (IsVideoRow(row)) return pictureRate.IsWithin(row, search);
    return IsAudioRow(row) && sampleRate.IsWithin(row, search);
  }

  FoldedSearch search;
  ColumnSearch name;
  NoteSearch notes;
  ColumnSearch codec;
  ColumnSearch sourceClipName;
  ColumnSearch proxyPath;
  ColumnSearch effectsMissing;
  ColumnSearch fontsUsed;
  ColumnSearch fontsMissing;
  ColumnSearch transitions;
  ColumnSearch effects;
  ColumnSearch videoInfo;
  RateSearch pictureRate;
  RateSearch sampleRate;
};

}  // namespace

FilterPredicate MakeSearchPredicate(const UTF8String& loweredText) {
  return SearchPredicate(loweredText);
}

}  // namespace Vantrel
