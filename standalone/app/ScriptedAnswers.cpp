#include "standalone/app/ScriptedAnswers.h"

namespace standalone {

ScriptedAnswers::ScriptedAnswers() {
  SetDialogProvider(this);
}

ScriptedAnswers::~ScriptedAnswers() {
  SetDialogProvider(nullptr);
}

std::uint32_t ScriptedAnswers::ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node&,
                                              qelui::Point) {
  menuItems = items;
  return menuCommand;
}

std::optional<MZ::SequenceIndex::Options> ScriptedAnswers::EditOptions(
    const MZ::SequenceIndex::Options&) {
  return options;
}

bool ScriptedAnswers::ChooseExport(ExportChoice& choice) {
  if (!exportChoice) return false;
  choice = *exportChoice;
  return true;
}

}  // namespace standalone
