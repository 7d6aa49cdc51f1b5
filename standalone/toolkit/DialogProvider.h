#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Node.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// An item of a pop-up menu as it is shown.
struct MenuItem {
  qelcore::UTF8String text;
  /// 0: a separator.
  std::uint32_t commandID = 0;
  bool isChecked = false;
};

/// What the export dialog asks for, in and out.
struct ExportChoice {
  qelcore::UTF8String folder;
  qelcore::UTF8String fileName;
  qelcore::UTF8String extension;
  bool isOpenedAfterwards = true;
};

/// Answers everything that is asked of the user: by windows, by a command's arguments, or by a test.
/// [main-thread]
class STANDALONE_API DialogProvider {
 public:
  virtual ~DialogProvider();

  /// The chosen command, or 0.
  virtual std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node& node,
                                       qelui::Point position) = 0;
  /// The new options, or none when the user cancelled.
  virtual std::optional<MZ::SequenceIndex::Options> EditOptions(
      const MZ::SequenceIndex::Options& current) = 0;
  /// False when the user cancelled.
  virtual bool ChooseExport(ExportChoice& choice) = 0;

 protected:
  DialogProvider();
};

/// Who answers now; null: every question counts as cancelled. Not owned. [main-thread]
STANDALONE_API void SetDialogProvider(DialogProvider* provider);
STANDALONE_API DialogProvider* GetDialogProvider();

}  // namespace standalone
