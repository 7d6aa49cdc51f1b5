#include "data/SearchPredicate.h"

#include <cstddef>
#include <string_view>

#include "data/ClipRow.h"
#include "data/FrameRateText.h"
#include "data/MediaTypes.h"
#include "data/ProjectItemTexts.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "host/qelcore/Locale.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;

/// What is searched besides the row's stored texts.
struct DerivedTexts {
  UTF8String comment;
  UTF8String description;
  UTF8String videoInfo;
  UTF8String rate;
};

DerivedTexts DeriveTexts(const TrackItemRowData& row) {
  qelcore::Required(row.trackItem);
  if (IsClipRow(row)) qelcore::Required(BE::TrackItemUtils::GetClip(row.trackItem));
  const auto projectItem = FindProjectItem(row.trackItem);
  DerivedTexts texts;
  texts.comment = CommentText(projectItem);
  texts.description = DescriptionText(projectItem);
  texts.videoInfo = MZ::FindClip::GetVideoInfo(row.trackItem);
  if (IsVideoRow(row) || IsAudioRow(row)) texts.rate = FrameRateText(row);
  return texts;
}

class SearchPredicate {
 public:
  explicit SearchPredicate(const UTF8String& text)
      : locale(&qelcore::Locale::Default()), wanted(qelcore::string::LowerCase(text, *locale)) {}

  bool operator()(const TrackItemRowData& row) const {
    // Made whether they are needed or not: what a row lacks must show, not depend on what is searched.
    const DerivedTexts derived = DeriveTexts(row);
    for (const UTF8String* const text :
         {&row.name, &derived.comment, &derived.description, &row.codec, &row.sourceClipName,
          &row.proxyPath, &row.effectsMissing, &row.fontsUsed, &row.fontsMissing, &row.transitions,
          &row.effects, &derived.videoInfo, &derived.rate}) {
      if (IsContainedIn(*text)) return true;
    }
    return false;
  }

 private:
  bool IsContainedIn(std::string_view text) const noexcept {
    const std::string_view lowered = wanted.View();
    if (text.size() < lowered.size()) return false;
    const std::size_t lastStart = text.size() - lowered.size();
    for (std::size_t start = 0; start <= lastStart; ++start) {
      if (BeginsWith(text.data() + start, lowered)) return true;
    }
    return false;
  }

  /// `bytes` are at least as many as are wanted.
  bool BeginsWith(const char* bytes, std::string_view lowered) const noexcept {
    for (const char byte : lowered) {
      if (locale->ToLower(*bytes++) != byte) return false;
    }
    return true;
  }

  /// The host's, there for as long as the module is.
  const qelcore::Locale* locale;
  UTF8String wanted;
};

}  // namespace

FilterPredicate MakeSearchPredicate(const UTF8String& loweredText) {
  return SearchPredicate(loweredText);
}

}  // namespace Vantrel
