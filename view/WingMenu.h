#pragma once

#include <string_view>

namespace Vantrel {

/// The identifier of the panel's wing (flyout) menu.
inline constexpr std::string_view kWingMenuID = "Vantrel_Wing_Menu";

}  // namespace Vantrel
