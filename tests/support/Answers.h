#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "standalone/toolkit/DialogProvider.h"

/// Answers menus and dialogs as a test says, and keeps what was asked. What was not set counts as
/// cancelled. Answers for its lifetime.
class Answers final : public standalone::DialogProvider {
 public:
  Answers() { standalone::SetDialogProvider(this); }
  ~Answers() override { standalone::SetDialogProvider(nullptr); }

  std::function<std::uint32_t()> menuAnswer;
  std::function<std::optional<MZ::SequenceIndex::Options>(const MZ::SequenceIndex::Options&)>
      optionsAnswer;
  std::function<bool(standalone::ExportChoice&)> exportAnswer;

  /// The last menu, and how many questions of each kind there were.
  std::vector<standalone::MenuItem> menuItems;
  qelui::Point menuPosition;
  int menuCount = 0;
  int optionsCount = 0;
  int exportCount = 0;

  std::uint32_t ChooseFromMenu(const std::vector<standalone::MenuItem>& items, qelui::ui::UI_Node&,
                               qelui::Point position) override {
    ++menuCount;
    menuItems = items;
    menuPosition = position;
    return menuAnswer ? menuAnswer() : 0;
  }
  std::optional<MZ::SequenceIndex::Options> EditOptions(
      const MZ::SequenceIndex::Options& current) override {
    ++optionsCount;
    return optionsAnswer ? optionsAnswer(current) : std::nullopt;
  }
  bool ChooseExport(standalone::ExportChoice& choice) override {
    ++exportCount;
    return exportAnswer && exportAnswer(choice);
  }
};
