#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "host/ZSL/Color.h"
#include "standalone/import/MediaRoots.h"
#include "standalone/model/TimeFormat.h"

/// What options of the command line say. Each throws a CommandError with one sentence that names the
/// option and what it takes. Names match in any case of ASCII letters.
namespace standalone {

/// The number of the filter of that name (FilterNames.h).
std::uint32_t ReadFilter(const std::string& name);

/// "all" or "any", as MZ::SequenceIndex::Options::matchMode.
std::uint32_t ReadMatchMode(const std::string& name);

/// Frames, 0 or more.
std::int32_t ReadShortGap(const std::string& text);

/// A word of the palette, "RRGGBB" or "#RRGGBB".
ZSL::Color ReadLabelColor(const std::string& text);

/// "FROM=TO".
MediaRoot ReadMediaRoot(const std::string& text);

TimeFormat ReadTimeFormat(const std::string& name);

/// In columns of the screen, 1 or more.
std::size_t RequireWidth(const std::string& text);

}  // namespace standalone
