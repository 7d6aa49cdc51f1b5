#include "view/PanelPlaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/toolkit/ThemeColors.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using qelui::Rect;
using testing::ElementsAre;

class PanelPlacesTest : public ViewFixture {
 protected:
  ~PanelPlacesTest() override { standalone::SetTheme(standalone::ThemeName::kDark); }

  std::vector<Rect> GetToolbarPlaces() const {
    std::vector<Rect> places;
    for (const auto& child : view->GetChildViews()) {
      if (child.Get() != view->GetTree().Get()) places.push_back(child->UI_GetBounds());
    }
    return places;
  }
  Rect GetTreePlace() const { return view->GetTree()->UI_GetBounds(); }
};

TEST_F(PanelPlacesTest, TheToolbarStandsInOneLineAtTheTopOfTheView) {
  CreateContents({100, 50, 800, 600});
  EXPECT_THAT(GetToolbarPlaces(),
              ElementsAre(Rect{112, 62, 240, 24}, Rect{360, 62, 24, 24}, Rect{392, 62, 240, 24},
                          Rect{640, 62, 80, 24}, Rect{728, 62, 240, 24}));
}

TEST_F(PanelPlacesTest, TheTableTakesWhatIsLeftBelow) {
  CreateContents({100, 50, 800, 600});
  EXPECT_EQ(GetTreePlace(), (Rect{112, 92, 776, 546}));
}

TEST_F(PanelPlacesTest, ATableWithoutRoomHasNoSize) {
  CreateContents({0, 0, 20, 30});
  EXPECT_EQ(GetTreePlace(), (Rect{12, 42, 0, 0}));
}

TEST_F(PanelPlacesTest, AnotherRoomMovesOnlyTheTable) {
  CreateContents({100, 50, 800, 600});
  const auto toolbar = GetToolbarPlaces();
  view->Resize({100, 50, 500, 400});
  EXPECT_EQ(GetTreePlace(), (Rect{112, 92, 476, 346}));
  EXPECT_EQ(GetToolbarPlaces(), toolbar);
}

TEST_F(PanelPlacesTest, ARoomElsewhereMeasuresFromTheSearchFieldAsItStands) {
  CreateContents({100, 50, 800, 600});
  view->Resize({10, 20, 500, 400});
  EXPECT_EQ(GetTreePlace(), (Rect{22, 92, 476, 408 - 92})) << "its bottom is 12 above the room's";
}

TEST_F(PanelPlacesTest, TheTableStaysBelowAHigherSearchField) {
  CreateContents({0, 0, 800, 600});
  view->GetSearchField()->UI_SetBounds({12, 20, 240, 50});
  view->Resize({0, 0, 800, 600});
  EXPECT_EQ(GetTreePlace(), (Rect{12, 76, 776, 600 - 12 - 76}));
}

TEST_F(PanelPlacesTest, TheFirstRoomLaidOutAgainChangesNothing) {
  CreateContents({100, 50, 800, 600});
  const Rect created = GetTreePlace();
  view->Resize({100, 50, 800, 600});
  EXPECT_EQ(GetTreePlace(), created);
}

TEST_F(PanelPlacesTest, BeforeTheContentsExistALayoutDoesNothing) {
  view->Resize({0, 0, 800, 600});
  EXPECT_TRUE(view->GetChildViews().empty());
}

class Background : public PanelPlacesTest {
 protected:
  standalone::RecordingDrawbot::Fill Draw() {
    standalone::RecordingDrawbot drawbot;
    view->DrawBackground(drawbot);
    EXPECT_EQ(drawbot.GetFills().size(), 1U);
    return drawbot.GetFills().at(0);
  }
};

TEST_F(Background, FillsTheWholeViewInOneCall) {
  CreateContents({100, 50, 800, 600});
  const hostcalls::Recording recording;
  EXPECT_EQ(Draw().area, (Rect{100, 50, 800, 600}));
  EXPECT_EQ(recording.GetCalls(), Calls{"FillRect(100.0 50.0 800.0 600.0)"});
  view->Resize({0, 0, 300, 200});
  EXPECT_EQ(Draw().area, (Rect{0, 0, 300, 200}));
}

TEST_F(Background, HasTheColourOfTheThemeChosenNow) {
  const auto dark = Draw().color;
  EXPECT_EQ(dark, standalone::GetThemeColors().tabBackground);
  standalone::SetTheme(standalone::ThemeName::kLight);
  EXPECT_EQ(Draw().color, standalone::GetThemeColors().tabBackground);
  EXPECT_NE(Draw().color, dark);
}

}  // namespace
}  // namespace Vantrel
