#include "host/qelui/Controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/qelui/Events.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelui::controls::UI_ButtonChangedMessage;
using qelui::controls::UI_PictureButton;
using qelui::ui::Message;
using qelui::ui::MessageFunction;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kNoKeys = 0;

class PictureButton : public testing::Test {
 protected:
  template <typename Function>
  void WhenChanged(Function function) {
    button->NotifyWhenChanged(std::make_shared<const MessageFunction>(std::move(function)));
  }
  auto Note(std::string word) {
    return [this, word](const Message&) { notes.push_back(word); };
  }

  standalone::Runtime runtime;
  qelcore::Ref<UI_PictureButton> button{new UI_PictureButton()};
  std::vector<std::string> notes;
};

TEST_F(PictureButton, AClickRunsTheCallbacksInTheOrderRegistered) {
  WhenChanged(Note("first"));
  WhenChanged(Note("second"));
  button->Click(kNoKeys);
  EXPECT_THAT(notes, ElementsAre("first", "second"));
}

TEST_F(PictureButton, AClickCarriesTheModifierKeys) {
  std::uint32_t keys = kNoKeys;
  WhenChanged([&](const Message& message) {
    keys = static_cast<const UI_ButtonChangedMessage&>(message).GetModKeys();
  });
  button->Click(qelui::ui::kModifierControl | qelui::ui::kModifierShift);
  EXPECT_EQ(keys, qelui::ui::kModifierControl | qelui::ui::kModifierShift);
}

TEST_F(PictureButton, ADisabledButtonIgnoresClicks) {
  WhenChanged(Note("clicked"));
  button->UI_SetEnabled(false);
  button->Click(kNoKeys);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(PictureButton, AFailingCallbackIsLoggedAndTheOthersStillRun) {
  WhenChanged([](const Message&) { throw std::runtime_error("no film"); });
  WhenChanged(Note("second"));
  EXPECT_NO_THROW(button->Click(kNoKeys));
  EXPECT_THAT(notes, ElementsAre("second"));
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("a control's callback: no film"));
}

TEST_F(PictureButton, ACallbackMayLetGoOfItsButton) {
  WhenChanged([this](const Message&) { button.Reset(); });
  WhenChanged(Note("still called"));
  button->Click(kNoKeys);
  EXPECT_FALSE(button);
  EXPECT_THAT(notes, ElementsAre("still called"));
}

TEST_F(PictureButton, ACallbackAddedDuringAClickWaitsForTheNext) {
  WhenChanged([this](const Message&) { WhenChanged(Note("late")); });
  button->Click(kNoKeys);
  EXPECT_THAT(notes, IsEmpty());
  button->Click(kNoKeys);
  EXPECT_THAT(notes, ElementsAre("late"));
}

TEST_F(PictureButton, CallbacksGoWithTheButton) {
  const auto held = std::make_shared<int>();
  WhenChanged([held](const Message&) {});
  EXPECT_EQ(held.use_count(), 2);
  button.Reset();
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(PictureButton, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(button->Click(kNoKeys), "UI_PictureButton::Click");
  EXPECT_STOPS_OFF_MAIN_THREAD(button->NotifyWhenChanged({}), "UI_ControlView::NotifyWhenChanged");
}

}  // namespace
