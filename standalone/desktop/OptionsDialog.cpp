#include "standalone/desktop/OptionsDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

#include "host/qelcore/Localizer.h"
#include "standalone/desktop/TextColor.h"
#include "standalone/import/LabelPalette.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

using MZ::SequenceIndex::kFilterEntries;

constexpr std::uint32_t kMatchAll = 0;
constexpr std::uint32_t kMatchAny = 1;
constexpr int kFilterColumns = 2;
constexpr int kSwatchColumns = 8;
constexpr int kSwatchSize = 20;

/// A mode that is not known counts as "all".
std::uint32_t GetShownMode(std::uint32_t matchMode) {
  return matchMode == kMatchAny ? kMatchAny : kMatchAll;
}

/// A square of the colour; chosen, with a tick.
QIcon MakeSwatchIcon(const QColor& color) {
  QIcon icon;
  for (const auto state : {QIcon::Off, QIcon::On}) {
    QPixmap picture(2 * kSwatchSize, 2 * kSwatchSize);
    picture.setDevicePixelRatio(2);
    picture.fill(color);
    if (state == QIcon::On) {
      QPainter painter(&picture);
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QPen(FindTextColor(color), 2.5));
      painter.drawPolyline(QPolygonF({{5, 10}, {9, 14}, {15, 6}}));
    }
    icon.addPixmap(picture, QIcon::Normal, state);
  }
  return icon;
}

QString NameColor(const ZSL::Color& color) {
  const auto word = FindLabelName(color);
  return word.empty() ? QColor(color.red, color.green, color.blue).name().toUpper() : ToQString(word);
}

}  // namespace

OptionsDialog::OptionsDialog(const Options& options, QWidget* parent)
    : QDialog(parent), given(options) {
  setWindowTitle("Sequence Index Options");
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(MakeMatchModes());
  layout->addWidget(MakeFilters());
  layout->addWidget(MakeLabelColors(options.labelColors));
  layout->addWidget(MakeGaps());
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* const clear = buttons->addButton("Clear &All", QDialogButtonBox::ResetRole);
  layout->addWidget(buttons);
  connect(clear, &QPushButton::clicked, this, [this] {
    given = Options();
    Show(given);
  });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  Show(options);
}

QWidget* OptionsDialog::MakeMatchModes() {
  auto* const box = new QGroupBox("Show rows that match");
  auto* const layout = new QHBoxLayout(box);
  auto* const all = new QRadioButton("a&ll filters");
  auto* const any = new QRadioButton("at lea&st one filter");
  matchModes = new QButtonGroup(this);
  matchModes->addButton(all, kMatchAll);
  matchModes->addButton(any, kMatchAny);
  layout->addWidget(all);
  layout->addWidget(any);
  layout->addStretch();
  return box;
}

QWidget* OptionsDialog::MakeFilters() {
  auto* const box = new QGroupBox("Filters");
  auto* const layout = new QGridLayout(box);
  const auto rows = (static_cast<int>(kFilterEntries.size()) + kFilterColumns - 1) / kFilterColumns;
  for (const auto& entry : kFilterEntries) {
    const auto label = qelcore::config::Localizer::Get().Localize(entry.labelKey);
    auto* const filter = new QCheckBox(ToQString(label.View()).replace('&', "&&"));
    const auto place = static_cast<int>(filters.size());
    layout->addWidget(filter, place % rows, place / rows);
    filters.emplace_back(entry.id, filter);
  }
  return box;
}

QWidget* OptionsDialog::MakeLabelColors(const std::vector<ZSL::Color>& chosen) {
  auto* const box = new QGroupBox("Label colours (none chosen: all)");
  auto* const layout = new QGridLayout(box);
  const auto add = [&](const ZSL::Color& color) {
    const auto place = static_cast<int>(swatches.size());
    layout->addWidget(MakeSwatch(color), place / kSwatchColumns, place % kSwatchColumns);
  };
  for (const LabelColor& label : kLabelPalette) add(label.color);
  // Colours of other palettes stay in the list while they are chosen.
  for (const ZSL::Color& color : chosen) {
    const auto isKnown = std::ranges::find(swatches, color, [](const auto& swatch) {
                           return swatch.first;
                         }) != swatches.end();
    if (!isKnown) add(color);
  }
  layout->setColumnStretch(kSwatchColumns, 1);
  return box;
}

QToolButton* OptionsDialog::MakeSwatch(const ZSL::Color& color) {
  auto* const swatch = new QToolButton();
  swatch->setCheckable(true);
  swatch->setFocusPolicy(Qt::StrongFocus);
  swatch->setIconSize({kSwatchSize, kSwatchSize});
  swatch->setIcon(MakeSwatchIcon({color.red, color.green, color.blue}));
  swatch->setToolTip(NameColor(color));
  swatch->setAccessibleName(NameColor(color));
  swatches.emplace_back(color, swatch);
  return swatch;
}

QWidget* OptionsDialog::MakeGaps() {
  auto* const box = new QGroupBox("Gaps");
  auto* const layout = new QGridLayout(box);
  keepsGaps = new QCheckBox("&Keep gaps in the index");
  threshold = new QSpinBox();
  threshold->setRange(-1, std::numeric_limits<std::int32_t>::max());
  threshold->setSuffix(" frames");
  threshold->setSpecialValueText("never");
  threshold->setAccessibleName("Longest short gap");
  auto* const label = new QLabel("Mark times beside gaps of up &to");
  label->setBuddy(threshold);
  layout->addWidget(keepsGaps, 0, 0, 1, 2);
  layout->addWidget(label, 1, 0);
  layout->addWidget(threshold, 1, 1);
  layout->setColumnStretch(2, 1);
  return box;
}

void OptionsDialog::Show(const Options& shown) {
  matchModes->button(static_cast<int>(GetShownMode(shown.matchMode)))->setChecked(true);
  for (const auto& [id, filter] : filters) {
    const auto toggle = shown.filterToggles.find(id);
    filter->setChecked(toggle != shown.filterToggles.end() && toggle->second);
  }
  for (const auto& [color, swatch] : swatches) {
    swatch->setChecked(std::ranges::find(shown.labelColors, color) != shown.labelColors.end());
  }
  keepsGaps->setChecked(shown.isKeepingGaps);
  threshold->setValue(shown.shortGapThreshold);
}

OptionsDialog::Options OptionsDialog::GetOptions() const {
  Options options = given;
  const auto mode = static_cast<std::uint32_t>(matchModes->checkedId());
  if (mode != GetShownMode(given.matchMode)) options.matchMode = mode;
  for (const auto& [id, filter] : filters) options.filterToggles[id] = filter->isChecked();
  options.isKeepingGaps = keepsGaps->isChecked();
  // Every negative number means the same; one that was given stays.
  const bool isNever = threshold->value() < 0 && given.shortGapThreshold < 0;
  if (!isNever) options.shortGapThreshold = threshold->value();
  options.labelColors = GetChosenColors();
  return options;
}

std::vector<ZSL::Color> OptionsDialog::GetChosenColors() const {
  std::vector<ZSL::Color> colors = given.labelColors;
  for (const auto& [color, swatch] : swatches) {
    if (!swatch->isChecked()) {
      std::erase(colors, color);
    } else if (std::ranges::find(colors, color) == colors.end()) {
      colors.push_back(color);
    }
  }
  return colors;
}

}  // namespace standalone
