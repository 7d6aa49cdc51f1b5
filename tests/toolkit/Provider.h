#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "standalone/toolkit/DialogProvider.h"

/// Answers for the user as a test says; what it does not say counts as cancelled.
class Provider final : public standalone::DialogProvider {
 public:
  Provider() { standalone::SetDialogProvider(this); }
  ~Provider() override { standalone::SetDialogProvider(nullptr); }

  std::function<std::uint32_t(const std::vector<standalone::MenuItem>&)> chooseFromMenu;
  std::function<std::optional<MZ::SequenceIndex::Options>(const MZ::SequenceIndex::Options&)>
      editOptions;
  std::function<bool(standalone::ExportChoice&)> chooseExport;

  std::uint32_t ChooseFromMenu(const std::vector<standalone::MenuItem>& items, qelui::ui::UI_Node& node,
                               qelui::Point position) override {
    lastNode = &node;
    lastPosition = position;
    return chooseFromMenu ? chooseFromMenu(items) : 0;
  }
  std::optional<MZ::SequenceIndex::Options> EditOptions(
      const MZ::SequenceIndex::Options& current) override {
    return editOptions ? editOptions(current) : std::nullopt;
  }
  bool ChooseExport(standalone::ExportChoice& choice) override {
    return chooseExport && chooseExport(choice);
  }

  qelui::ui::UI_Node* lastNode = nullptr;
  qelui::Point lastPosition;
};
