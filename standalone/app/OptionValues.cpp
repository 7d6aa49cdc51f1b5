#include "standalone/app/OptionValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <functional>
#include <limits>
#include <string_view>
#include <system_error>

#include "standalone/app/CommandError.h"
#include "standalone/app/FilterNames.h"
#include "standalone/app/NameList.h"
#include "standalone/app/Terminal.h"
#include "standalone/import/LabelPalette.h"
#include "standalone/model/TextCase.h"

namespace standalone {

namespace {

/// By the numbers of the match modes.
constexpr std::array<std::string_view, 2> kMatchModes{"all", "any"};

}  // namespace

std::uint32_t ReadFilter(const std::string& name) {
  const auto found = std::ranges::find_if(kFilterNames, [&name](const FilterName& filter) {
    return EqualsIgnoringCase(filter.name, name);
  });
  if (found != kFilterNames.end()) return found->id;
  throw CommandError("--filter: There is no filter \"" + name + "\"; there are " +
                     ListNames(kFilterNames, std::mem_fn(&FilterName::name)) + ".");
}

std::uint32_t ReadMatchMode(const std::string& name) {
  for (std::uint32_t mode = 0; mode < kMatchModes.size(); ++mode) {
    if (EqualsIgnoringCase(kMatchModes[mode], name)) return mode;
  }
  throw CommandError("--match: There is no \"" + name + "\"; there are " +
                     ListNames(kMatchModes, std::identity()) + ".");
}

std::int32_t ReadShortGap(const std::string& text) {
  std::int32_t frames = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, frames);
  if (failure == std::errc() && stop == end && frames >= 0) return frames;
  throw CommandError("--short-gap: \"" + text + "\" is no number of frames; give one from 0 to " +
                     std::to_string(std::numeric_limits<std::int32_t>::max()) + ".");
}

ZSL::Color ReadLabelColor(const std::string& text) {
  if (const auto color = FindLabelColor(text)) return *color;
  if (const auto color = ParseHexColor(text.starts_with('#') ? text : "#" + text)) return *color;
  throw CommandError("--label: There is no label \"" + text + "\"; there are " +
                     ListNames(kLabelPalette, std::mem_fn(&LabelColor::name)) +
                     ", and colours as RRGGBB.");
}

MediaRoot ReadMediaRoot(const std::string& text) {
  if (auto root = ParseMediaRoot(text, std::filesystem::current_path())) return *std::move(root);
  throw CommandError("--media-root: \"" + text +
                     "\" is no media root; give FROM=TO, the folder there and the folder here.");
}

TimeFormat ReadTimeFormat(const std::string& name) {
  if (const auto format = FindTimeFormat(name)) return *format;
  throw CommandError("--time-display: There is no \"" + name + "\"; there are " +
                     ListNames(kTimeFormatNames, std::identity()) + ".");
}

std::size_t RequireWidth(const std::string& text) {
  if (const auto width = ReadWidth(text)) return *width;
  throw CommandError("--width: \"" + text + "\" is no width; give a number of columns, from 1.");
}

}  // namespace standalone
