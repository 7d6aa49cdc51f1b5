#include <algorithm>
#include <string_view>

#include "host/qelcore/Locale.h"
#include "host/qelcore/Strings.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

namespace {

/// Whether two texts differ in more than the case of letters.
bool DifferBeyondCase(std::string_view left, std::string_view right, const qelcore::Locale& locale) {
  const auto lowered = [&locale](char byte) { return locale.ToLower(byte); };
  return !std::ranges::equal(left, right, {}, lowered, lowered);
}

}  // namespace

// Runs for each keystroke and again when the text is committed: only a text that is new to the table
// makes it search.
void SequenceIndexView::SearchFieldChanged(const qelui::ui::Message& /*message*/) {
  if (!tree) return;
  const qelcore::Locale& locale = qelcore::Locale::Default();
  const qelcore::UTF8String text = searchField->GetValueUTF8();
  const bool isNew = DifferBeyondCase(text.View(), searchText.View(), locale);
  searchText = qelcore::string::LowerCase(text, locale);
  if (isNew) tree->SetSearchText(searchText);
}

}  // namespace Vantrel
