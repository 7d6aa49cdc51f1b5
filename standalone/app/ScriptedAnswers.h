#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "standalone/toolkit/DialogProvider.h"

namespace standalone {

/// Answers the panel's questions from what the command line says, so that a command drives the very
/// panel that people see. Whatever was not scripted counts as cancelled. [main-thread]
class ScriptedAnswers final : public DialogProvider {
 public:
  ScriptedAnswers();
  /// Stops answering.
  ~ScriptedAnswers() override;

  /// The item that the next menus answer; 0: dismissed.
  std::uint32_t menuCommand = 0;
  /// Set: options dialogs confirm with these.
  std::optional<MZ::SequenceIndex::Options> options;
  /// Set: export dialogs confirm with this place.
  std::optional<ExportChoice> exportChoice;

  /// The items of the last menu; they are given away.
  std::vector<MenuItem> TakeMenuItems() { return std::move(menuItems); }

  std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node& node,
                               qelui::Point position) override;
  std::optional<MZ::SequenceIndex::Options> EditOptions(
      const MZ::SequenceIndex::Options& current) override;
  bool ChooseExport(ExportChoice& choice) override;

 private:
  std::vector<MenuItem> menuItems;
};

}  // namespace standalone
