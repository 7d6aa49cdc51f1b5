#include "module/SearchTexts.h"

#include "data/FrameRateText.h"
#include "data/ProjectItemTexts.h"
#include "host/MZ/Clips.h"
#include "host/qelcore/UTF8String.h"

namespace benchmarks {

std::array<qelcore::UTF8String, kSearchedTexts> GetSearchedTexts(const Vantrel::TrackItemRowData& row) {
  const auto item = Vantrel::FindProjectItem(row.trackItem);
  return {row.name,
          Vantrel::CommentText(item),
          Vantrel::DescriptionText(item),
          row.codec,
          row.sourceClipName,
          row.proxyPath,
          row.effectsMissing,
          row.fontsUsed,
          row.fontsMissing,
          row.transitions,
          row.effects,
          MZ::FindClip::GetVideoInfo(row.trackItem),
          Vantrel::FrameRateText(row)};
}

SearchTexts::SearchTexts(const Vantrel::TrackItemDataList& rows) {
  std::vector<std::size_t> sizes;
  sizes.reserve(rows.size() * kTextsOfARow);
  for (const auto& row : rows) {
    for (const qelcore::UTF8String& text : GetSearchedTexts(row)) {
      bytes += text.View();
      sizes.push_back(text.Size());
    }
  }
  texts.reserve(sizes.size());
  std::size_t begin = 0;
  for (const std::size_t size : sizes) {
    texts.emplace_back(bytes.data() + begin, size);
    begin += size;
  }
}

}  // namespace benchmarks
