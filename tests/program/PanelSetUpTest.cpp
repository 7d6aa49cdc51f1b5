#include "standalone/app/PanelSetUp.h"

#include <gtest/gtest.h>

#include <memory>

#include "host/qelui/Controls.h"

/// The command line's wishes go through the panel's own controls.
namespace standalone {
namespace {

using qelui::controls::UI_PictureButton;
using qelui::controls::UI_SearchBox;

/// How often the panel's controls were used.
struct Uses {
  int clicks = 0;
  int keystrokes = 0;
  int commits = 0;
};

qelui::ui::SharedMessageFunction CountIn(int& count) {
  return std::make_shared<const qelui::ui::MessageFunction>(
      [&count](const qelui::ui::Message&) { ++count; });
}

Uses CountUses(const IndexOptions& options) {
  Uses uses;
  IndexSession session;
  for (const auto& child : session.GetHost().GetPanel()->GetChildViews()) {
    if (auto* const button = dynamic_cast<UI_PictureButton*>(child.Get())) {
      button->NotifyWhenChanged(CountIn(uses.clicks));
    }
    if (auto* const field = dynamic_cast<UI_SearchBox*>(child.Get())) {
      field->NotifyWhenChangedInteractively(CountIn(uses.keystrokes));
      field->NotifyWhenChanged(CountIn(uses.commits));
    }
  }
  SetUpPanel(session, options);
  return uses;
}

TEST(PanelSetUp, TouchesNoControlThatNobodyAskedFor) {
  const Uses uses = CountUses(IndexOptions());
  EXPECT_EQ(uses.clicks, 0);
  EXPECT_EQ(uses.keystrokes, 0);
  EXPECT_EQ(uses.commits, 0);
}

TEST(PanelSetUp, ClicksTheFilterButtonOnceForAllThatItsDialogHolds) {
  IndexOptions options;
  options.rows.isKeepingGaps = true;
  options.rows.filterToggles[3] = true;
  options.rows.matchMode = 1;
  options.rows.shortGapThreshold = 2;
  const Uses uses = CountUses(options);
  EXPECT_EQ(uses.clicks, 1);
  EXPECT_EQ(uses.commits, 0);
}

TEST(PanelSetUp, TypesTheSearchAndCommitsIt) {
  IndexOptions options;
  options.search = "ferry";
  const Uses uses = CountUses(options);
  EXPECT_EQ(uses.clicks, 0);
  EXPECT_EQ(uses.keystrokes, 1);
  EXPECT_EQ(uses.commits, 1);
}

}  // namespace
}  // namespace standalone
