#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/qelcore/UTF8String.h"

/// List texts: names joined for one cell ("Blur; Crop; ").
namespace Vantrel {

/// Follows every name, the last one included.
inline constexpr std::string_view kListSeparator = "; ";

using NameList = std::vector<qelcore::UTF8String>;

/// The list texts that a scan of a clip adds to, each in the order met.
struct ListTexts {
  std::string missing;
  std::string present;

  /// Empties both, and keeps their memory for the next clip.
  void Clear() noexcept;
};

/// Appends a name, whose parts are given, and the separator. [any-thread]
void AppendName(std::string& listText, std::string_view name);
void AppendName(std::string& listText, std::string_view prefix, std::string_view name);

/// The list text of these names; empty without names. [any-thread]
std::string MakeListText(const NameList& names);

}  // namespace Vantrel
