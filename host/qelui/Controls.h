#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/ImageHandler.h"
#include "host/qelui/Node.h"

namespace qelui::ui {

/// What a control tells its callbacks. Valid for the call.
class HOST_API Message {
 public:
  virtual ~Message();

 protected:
  Message();
};

/// A callback on a control. The control shares it and drops it when the control is destroyed. When it
/// throws, the failure goes to the host's log, and the callbacks after it still run.
using MessageFunction = std::function<void(const Message&)>;
using SharedMessageFunction = std::shared_ptr<const MessageFunction>;

}  // namespace qelui::ui

namespace qelui::controls {

/// A control with a value that changes.
class HOST_API UI_ControlView : public ui::UI_SubView {
 public:
  ~UI_ControlView() override;

  /// Registers a callback (not null) for each committed change; callbacks run in the order registered.
  /// [main-thread]
  void NotifyWhenChanged(ui::SharedMessageFunction callback);

 protected:
  UI_ControlView();
  /// Runs the callbacks for a committed change.
  void BroadcastChanged(const ui::Message& message);

 private:
  class State;
  std::unique_ptr<State> state;
};

/// A control whose value also changes step by step while the user is at it.
class HOST_API UI_InteractiveControlView : public UI_ControlView {
 public:
  ~UI_InteractiveControlView() override;

  /// Registers a callback (not null) for each step; callbacks run in the order registered.
  /// [main-thread]
  void NotifyWhenChangedInteractively(ui::SharedMessageFunction callback);

 protected:
  UI_InteractiveControlView();
  /// Runs the callbacks for a step.
  void BroadcastChangedInteractively(const ui::Message& message);

 private:
  class State;
  std::unique_ptr<State> state;
};

/// The message of a text field: its text is another one, or was committed.
class HOST_API UI_TextChangedMessage final : public ui::Message {
 public:
  UI_TextChangedMessage();
  ~UI_TextChangedMessage() override;
};

/// A field of one line of text.
class HOST_API UI_TextEdit : public UI_InteractiveControlView {
 public:
  UI_TextEdit();
  ~UI_TextEdit() override;

  /// [main-thread]
  qelcore::UTF8String GetValueUTF8() const;

  /// What typing by the user does: the field holds `text`, and the interactive callbacks run. A
  /// disabled field does nothing. [main-thread]
  void Type(const qelcore::UTF8String& text);
  /// What Enter, or leaving the field, does: the change callbacks run. As above. [main-thread]
  void Commit();

 private:
  class State;
  std::unique_ptr<State> state;
};

/// A field for a search text.
class HOST_API UI_SearchBox : public UI_TextEdit {
 public:
  /// `hasClearButton`: a click empties the field; `isKeepingHistory`: earlier texts are offered.
  UI_SearchBox(bool hasClearButton, bool isKeepingHistory);
  ~UI_SearchBox() override;

  bool HasClearButton() const noexcept { return hasClearButton; }
  bool IsKeepingHistory() const noexcept { return isKeepingHistory; }

 private:
  bool hasClearButton;
  bool isKeepingHistory;
};

/// The message of a button: it was clicked.
class HOST_API UI_ButtonChangedMessage final : public ui::Message {
 public:
  explicit UI_ButtonChangedMessage(std::uint32_t modifierKeys);
  ~UI_ButtonChangedMessage() override;
  /// The modifier keys held during the click (kModifierControl and the like).
  std::uint32_t GetModKeys() const noexcept { return modifierKeys; }

 private:
  std::uint32_t modifierKeys;
};

/// A push button that shows a picture.
class HOST_API UI_PictureButton : public UI_ControlView, public UI_ImageHandling {
 public:
  UI_PictureButton();
  ~UI_PictureButton() override;

  /// What a click by the user does: runs the change callbacks with a UI_ButtonChangedMessage. A
  /// disabled button does nothing. [main-thread]
  void Click(std::uint32_t modifierKeys);
};

/// A text that users can't change. [main-thread]
class HOST_API UI_StaticText : public ui::UI_SubView {
 public:
  UI_StaticText();
  ~UI_StaticText() override;

  void SetValue(const qelcore::UTF8String& newText);
  /// Empty at first.
  const qelcore::UTF8String& GetValue() const;

 private:
  qelcore::UTF8String text;
};

enum class SliderDirection : std::uint32_t { kHorizontal, kVertical };

/// The message of a slider: its knob stands elsewhere, or was let go.
class HOST_API UI_SliderChangedMessage final : public ui::Message {
 public:
  UI_SliderChangedMessage();
  ~UI_SliderChangedMessage() override;
};

/// A knob on a line, for a number in a range; 0 to 1, at 0, at first. A vertical one has its lowest
/// value at the bottom. [main-thread]
class HOST_API UI_Slider : public UI_InteractiveControlView {
 public:
  /// `isJumpingToPointer`: a click beside the knob puts it there; otherwise it goes a step that way.
  UI_Slider(SliderDirection direction, bool isJumpingToPointer);
  ~UI_Slider() override;

  SliderDirection GetDirection() const noexcept { return direction; }
  bool IsJumpingToPointer() const noexcept { return isJumpingToPointer; }

  /// Replaces the range, and moves the value into it. An upper end below the lower one counts as the
  /// lower one. Runs no callback.
  void SetRange(double newMinimum, double newMaximum);
  double GetMinimum() const;
  double GetMaximum() const;

  /// The nearest value in the range is taken; NaN counts as its lower end. Runs no callback.
  void SetValue(double newValue);
  double GetValue() const;

  /// What dragging the knob by the user does: sets the value as SetValue does, and if it is another one
  /// runs the interactive callbacks. A disabled slider does nothing.
  void DragTo(double newValue);
  /// What letting the knob go does: the change callbacks run. As above.
  void Commit();

 private:
  SliderDirection direction;
  bool isJumpingToPointer;
  double minimum = 0;
  double maximum = 1;
  double value = 0;
};

/// The values of a checkbox; the numbers are the host's.
enum class CheckboxValue : std::uint32_t {
  kUnchecked = 0,
  kChecked = 1,
  kMixed = 2,  ///< Some of what it stands for is, some is not.
};

/// The message of a checkbox: it was clicked.
class HOST_API UI_CheckboxChangedMessage final : public ui::Message {
 public:
  UI_CheckboxChangedMessage();
  ~UI_CheckboxChangedMessage() override;
};

/// A box to check, with a label behind it. [main-thread]
class HOST_API UI_Checkbox : public UI_ControlView {
 public:
  UI_Checkbox();
  ~UI_Checkbox() override;

  void SetLabel(const qelcore::UTF8String& newLabel);
  /// Empty at first.
  const qelcore::UTF8String& GetLabel() const;

  /// Runs no callback.
  void SetValue(CheckboxValue newValue);
  /// Unchecked at first.
  CheckboxValue GetValue() const;

  /// What a click by the user does: a checked box becomes unchecked, any other one checked, and the
  /// change callbacks run. A disabled box does nothing.
  void Click();

 private:
  qelcore::UTF8String label;
  CheckboxValue value = CheckboxValue::kUnchecked;
};

}  // namespace qelui::controls
