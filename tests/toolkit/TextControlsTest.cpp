#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::UTF8String;
using qelui::controls::UI_SearchBox;
using qelui::ui::Message;
using qelui::ui::MessageFunction;
using testing::ElementsAre;
using testing::IsEmpty;

class SearchBox : public testing::Test {
 protected:
  SearchBox() {
    box->NotifyWhenChangedInteractively(Note("step"));
    box->NotifyWhenChanged(Note("commit"));
  }
  qelui::ui::SharedMessageFunction Note(const std::string& word) {
    return std::make_shared<const MessageFunction>([this, word](const Message&) {
      notes.push_back(word + " " + std::string(box->GetValueUTF8().View()));
    });
  }

  standalone::Runtime runtime;
  qelcore::Ref<UI_SearchBox> box{new UI_SearchBox(true, false)};
  std::vector<std::string> notes;
};

TEST_F(SearchBox, IsEmptyAtFirst) {
  EXPECT_TRUE(box->GetValueUTF8().Empty());
}

TEST_F(SearchBox, TypingIsAStepAndCommittingIsAChange) {
  box->Type(UTF8String("a"));
  box->Type(UTF8String("ab"));
  box->Commit();
  EXPECT_THAT(notes, ElementsAre("step a", "step ab", "commit ab"));
}

TEST_F(SearchBox, TypingHasItDrawnAnew) {
  int drawings = 0;
  box->UI_SetWatcher([&] { ++drawings; });
  box->Type(UTF8String("a"));
  EXPECT_EQ(drawings, 1);
}

TEST_F(SearchBox, ADisabledOneTakesNothing) {
  box->UI_SetEnabled(false);
  box->Type(UTF8String("a"));
  box->Commit();
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_TRUE(box->GetValueUTF8().Empty());
}

TEST_F(SearchBox, KnowsItsFlags) {
  EXPECT_TRUE(box->HasClearButton());
  EXPECT_FALSE(box->IsKeepingHistory());
  EXPECT_TRUE(UI_SearchBox(false, true).IsKeepingHistory());
}

TEST_F(SearchBox, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(box->Type({}), "UI_TextEdit::Type");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->Commit(), "UI_TextEdit::Commit");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->GetValueUTF8(), "UI_TextEdit::GetValueUTF8");
  EXPECT_STOPS_OFF_MAIN_THREAD(box->NotifyWhenChangedInteractively({}),
                               "UI_InteractiveControlView::NotifyWhenChangedInteractively");
}

}  // namespace
