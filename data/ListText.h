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

/// What a scan of a clip has found, each in the order met.
struct NameLists {
  NameList missing;
  NameList present;
};

/// Appends every name, each followed by the separator; no names leave `listText` as it is. [any-thread]
void AppendNames(std::string& listText, const NameList& names);

/// The list text of these names; empty without names. [any-thread]
qelcore::UTF8String MakeListText(const NameList& names);

}  // namespace Vantrel
