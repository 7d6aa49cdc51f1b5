#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text as a terminal shows it, measured in columns of its grid. Texts are UTF-8.
namespace standalone {

/// The text with everything replaced that would act on a terminal or move what stands beside it:
/// control characters by their pictures ("␊"), and C1 controls, changes of writing direction, line
/// separators and bytes that are no UTF-8 by "�". Returns `text` itself, or a view of `buffer`.
std::string_view MakeShowable(std::string_view text, std::string& buffer);

/// The text with a blank for each control character, C1 control, change of writing direction and line
/// separator. Bytes that are no UTF-8 stay, except those that some terminals take for C1 controls.
std::string BlankControls(std::string_view text);

/// How many columns a showable text takes: none for combining marks, two for East Asian wide
/// characters and for emoji, however many characters an emoji is made of.
std::size_t CountColumns(std::string_view showable);

/// A showable text and the columns that it takes.
struct MeasuredText {
  std::string_view text;
  std::size_t columns = 0;
};

/// MakeShowable and CountColumns in one: most texts need only one look.
MeasuredText MeasureShowable(std::string_view text, std::string& buffer);

/// The beginning of a text.
struct TextBeginning {
  std::size_t bytes = 0;
  std::size_t columns = 0;
};

/// As much of a showable text as fits into `room` columns, cut between what people see as characters.
TextBeginning FitIntoColumns(std::string_view showable, std::size_t room);

}  // namespace standalone
