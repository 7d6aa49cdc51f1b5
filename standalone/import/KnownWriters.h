#pragma once

#include <string_view>

namespace standalone {

/// Whether that effect is one of the panels which every clip has in the program that writes it among
/// the clip's effects. Such panels are settings, no effects somebody applied.
bool IsBuiltInPanel(std::string_view effectName);

}  // namespace standalone
