#pragma once

#include <string>
#include <string_view>

#include "generator/Chance.h"

/// What people call things in a cutting room.
namespace generator {

/// Of a hundred names and notes, so many are written with letters beyond ASCII.
class Words {
 public:
  explicit Words(unsigned worldPercent) : worldPercent(worldPercent) {}

  /// "INT_KITCHEN_012_T3", "Interview Maria Keller 02", "B-roll harbour cranes 14"
  std::string MakeShotName(Chance& chance) const;
  /// "Door wood close 07"
  std::string MakeSoundName(Chance& chance) const;
  /// "Slow Tide 03 (instrumental)"
  std::string MakeMusicName(Chance& chance) const;
  /// "Logo white 02"
  std::string MakeGraphicsName(Chance& chance) const;
  std::string MakeTitle(Chance& chance) const;
  std::string MakeComment(Chance& chance) const;
  std::string MakeDescription(Chance& chance) const;
  /// The name of a nested sequence.
  std::string MakeSceneName(Chance& chance) const;

 private:
  unsigned worldPercent;
};

std::string_view PickEffect(Chance& chance);
std::string_view PickBuiltInPanel(Chance& chance);
std::string_view PickTransition(Chance& chance);
std::string_view PickFont(Chance& chance);
std::string_view PickMarker(Chance& chance);

/// "007" for 7 and a width of 3.
std::string PadNumber(std::size_t number, std::size_t width);

}  // namespace generator
