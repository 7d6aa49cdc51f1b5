#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace budgets {

/// One stage of the way from a timeline file to the table and out of it.
struct Stage {
  std::string_view name;
  /// Of the timeline that it is run on: so many that the count takes a second or two.
  std::size_t clips;
  /// Prepares its input, then does its work once while instructions are counted.
  std::function<void(std::size_t clips)> run;
};

/// In the order of a timeline's way.
const std::vector<Stage>& GetStages();

}  // namespace budgets
