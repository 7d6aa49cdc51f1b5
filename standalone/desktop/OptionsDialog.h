#pragma once

#include <QDialog>
#include <utility>
#include <vector>

#include "host/MZ/SequenceIndexOptions.h"
#include "standalone/runtime/StandaloneAPI.h"

class QButtonGroup;
class QCheckBox;
class QSpinBox;
class QToolButton;

namespace standalone {

/// Lets the user choose which rows an index shows: the filters and how they combine, gaps, the
/// threshold of short gaps, and label colours. [main-thread]
class STANDALONE_API OptionsDialog final : public QDialog {
 public:
  using Options = MZ::SequenceIndex::Options;

  explicit OptionsDialog(const Options& options, QWidget* parent = nullptr);

  /// What is chosen now. Filters that the dialog does not list, and a match mode that it does not know,
  /// stay as they were until another one is chosen.
  Options GetOptions() const;

 private:
  QWidget* MakeFilters();
  QWidget* MakeMatchModes();
  QWidget* MakeGaps();
  QWidget* MakeLabelColors(const std::vector<ZSL::Color>& chosen);
  QToolButton* MakeSwatch(const ZSL::Color& color);
  /// Those that were given keep their order; those that were added stand behind them.
  std::vector<ZSL::Color> GetChosenColors() const;
  /// Shows these options.
  void Show(const Options& shown);

  Options given;
  QButtonGroup* matchModes = nullptr;
  std::vector<std::pair<std::uint32_t, QCheckBox*>> filters;
  QCheckBox* keepsGaps = nullptr;
  QSpinBox* threshold = nullptr;
  std::vector<std::pair<ZSL::Color, QToolButton*>> swatches;
};

}  // namespace standalone
