#include "standalone/desktop/OptionsDialog.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <limits>
#include <string>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/import/LabelPalette.h"

namespace standalone {
namespace {

using MZ::SequenceIndex::kFilterEntries;
using MZ::SequenceIndex::Options;
using testing::ElementsAre;

constexpr ZSL::Color kForeign{1, 2, 3, 255};

class OptionsDialogTest : public DesktopFixture {
 protected:
  static std::vector<std::string> GetFilterLabels(const OptionsDialog& dialog) {
    std::vector<std::string> labels;
    for (const QCheckBox* const box : dialog.findChildren<QCheckBox*>()) {
      if (!box->text().contains("gaps")) labels.push_back(ToText(box->text()));
    }
    return labels;
  }
  template <typename Button>
  static Button* Find(const OptionsDialog& dialog, const char* name) {
    for (auto* const button : dialog.findChildren<Button*>()) {
      const QString text = button->text().isEmpty() ? button->accessibleName() : button->text();
      if (QString(text).remove('&') == name) return button;
    }
    ADD_FAILURE() << name;
    return nullptr;
  }
};

TEST_F(OptionsDialogTest, TheFiltersStandInTheirOrder) {
  const OptionsDialog dialog{Options()};
  EXPECT_THAT(GetFilterLabels(dialog),
              ElementsAre("Video", "Audio", "Graphics", "Fonts Missing", "Still Image", "Effects",
                          "Effects Missing", "Transitions", "Offline Media", "Speed Change",
                          "Disabled or Muted Tracks", "Disabled Clips", "Nested Sequence Clips",
                          "Multicam Clips"));
}

TEST_F(OptionsDialogTest, WhatIsNotTouchedComesBackAsItWas) {
  Options options;
  EXPECT_EQ(OptionsDialog(options).GetOptions(), options);
  options.matchMode = 1;
  options.isKeepingGaps = true;
  options.shortGapThreshold = std::numeric_limits<std::int32_t>::max();
  options.labelColors = {kForeign, kLabelPalette[9].color, kLabelPalette[2].color};
  for (const auto& entry : kFilterEntries) options.filterToggles[entry.id] = entry.id % 2 == 0;
  EXPECT_EQ(OptionsDialog(options).GetOptions(), options);
  options.matchMode = 7;
  options.shortGapThreshold = -9;
  options.filterToggles[13] = true;
  EXPECT_EQ(OptionsDialog(options).GetOptions(), options);
}

TEST_F(OptionsDialogTest, EachFilterSwitchesItsToggle) {
  for (const auto& entry : kFilterEntries) {
    OptionsDialog dialog{Options()};
    const auto label = std::string(entry.labelKey).substr(std::string(entry.labelKey).find('=') + 1);
    Find<QCheckBox>(dialog, label.c_str())->click();
    Options wanted;
    wanted.filterToggles[entry.id] = true;
    EXPECT_EQ(dialog.GetOptions(), wanted) << label;
  }
}

TEST_F(OptionsDialogTest, TheMatchModeIsChosen) {
  OptionsDialog dialog{Options()};
  Find<QRadioButton>(dialog, "at least one filter")->click();
  EXPECT_EQ(dialog.GetOptions().matchMode, 1U);
  Find<QRadioButton>(dialog, "all filters")->click();
  EXPECT_EQ(dialog.GetOptions().matchMode, 0U);
}

TEST_F(OptionsDialogTest, AnUnknownMatchModeCountsAsAllUntilAnotherIsChosen) {
  Options options;
  options.matchMode = 7;
  OptionsDialog dialog(options);
  EXPECT_TRUE(Find<QRadioButton>(dialog, "all filters")->isChecked());
  Find<QRadioButton>(dialog, "at least one filter")->click();
  EXPECT_EQ(dialog.GetOptions().matchMode, 1U);
}

TEST_F(OptionsDialogTest, GapsAndTheirThresholdAreEdited) {
  OptionsDialog dialog{Options()};
  auto* const threshold = dialog.findChild<QSpinBox*>();
  EXPECT_EQ(threshold->value(), 5);
  threshold->setValue(12);
  Find<QCheckBox>(dialog, "Keep gaps in the index")->click();
  EXPECT_EQ(dialog.GetOptions().shortGapThreshold, 12);
  EXPECT_TRUE(dialog.GetOptions().isKeepingGaps);
  threshold->setValue(-1);
  EXPECT_EQ(ToText(threshold->text()), "never");
  EXPECT_EQ(dialog.GetOptions().shortGapThreshold, -1);
}

TEST_F(OptionsDialogTest, ColoursAreChosenAsSwatches) {
  Options options;
  options.labelColors = {kForeign, FindLabelColor("Blue").value()};
  OptionsDialog dialog(options);
  Find<QToolButton>(dialog, "Red")->click();
  EXPECT_THAT(dialog.GetOptions().labelColors,
              ElementsAre(kForeign, FindLabelColor("Blue").value(), FindLabelColor("Red").value()));
  Find<QToolButton>(dialog, "#010203")->click();
  Find<QToolButton>(dialog, "Blue")->click();
  EXPECT_THAT(dialog.GetOptions().labelColors, ElementsAre(FindLabelColor("Red").value()));
}

TEST_F(OptionsDialogTest, ClearAllBringsBackTheOptionsOfAFreshPanel) {
  Options options;
  options.matchMode = 7;
  options.isKeepingGaps = true;
  options.shortGapThreshold = -9;
  options.filterToggles[13] = true;
  options.filterToggles[4] = true;
  options.labelColors = {kForeign, kLabelPalette[3].color};
  OptionsDialog dialog(options);
  Find<QPushButton>(dialog, "Clear All")->click();
  EXPECT_EQ(dialog.GetOptions(), Options());
  EXPECT_EQ(dialog.result(), 0);
}

TEST_F(OptionsDialogTest, EverythingIsNamedAndReachedByKeyboard) {
  OptionsDialog dialog{Options()};
  for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr) continue;
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
        << widget->metaObject()->className();
    EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus);
  }
}

TEST_F(OptionsDialogTest, MnemonicsAreNotUsedTwice) {
  const OptionsDialog dialog{Options()};
  std::vector<QChar> keys;
  for (const auto* const button : dialog.findChildren<QAbstractButton*>()) {
    const QString text = QString(button->text()).remove("&&");
    const auto at = text.indexOf('&');
    if (at < 0) continue;
    EXPECT_THAT(keys, testing::Not(testing::Contains(text[at + 1].toLower()))) << ToText(text);
    keys.push_back(text[at + 1].toLower());
  }
}

}  // namespace
}  // namespace standalone
