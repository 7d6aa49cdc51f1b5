#include <algorithm>

#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::controls {

using standalone::AssertMainThread;

UI_StaticText::UI_StaticText() = default;
UI_StaticText::~UI_StaticText() = default;

void UI_StaticText::SetValue(const qelcore::UTF8String& newText) {
  AssertMainThread("UI_StaticText::SetValue");
  text = newText;
  UI_Invalidate();
}

const qelcore::UTF8String& UI_StaticText::GetValue() const {
  AssertMainThread("UI_StaticText::GetValue");
  return text;
}

UI_SliderChangedMessage::UI_SliderChangedMessage() = default;
UI_SliderChangedMessage::~UI_SliderChangedMessage() = default;

UI_Slider::UI_Slider(SliderDirection direction, bool isJumpingToPointer)
    : direction(direction), isJumpingToPointer(isJumpingToPointer) {}
UI_Slider::~UI_Slider() = default;

void UI_Slider::SetRange(double newMinimum, double newMaximum) {
  AssertMainThread("UI_Slider::SetRange");
  minimum = newMinimum;
  maximum = std::max(newMinimum, newMaximum);
  SetValue(value);
}

double UI_Slider::GetMinimum() const {
  AssertMainThread("UI_Slider::GetMinimum");
  return minimum;
}

double UI_Slider::GetMaximum() const {
  AssertMainThread("UI_Slider::GetMaximum");
  return maximum;
}

void UI_Slider::SetValue(double newValue) {
  AssertMainThread("UI_Slider::SetValue");
  value = newValue > minimum ? std::min(newValue, maximum) : minimum;
  UI_Invalidate();
}

double UI_Slider::GetValue() const {
  AssertMainThread("UI_Slider::GetValue");
  return value;
}

void UI_Slider::DragTo(double newValue) {
  AssertMainThread("UI_Slider::DragTo");
  if (!UI_IsEnabled()) return;
  const double before = value;
  SetValue(newValue);
  if (value != before) BroadcastChangedInteractively(UI_SliderChangedMessage());
}

void UI_Slider::Commit() {
  AssertMainThread("UI_Slider::Commit");
  if (UI_IsEnabled()) BroadcastChanged(UI_SliderChangedMessage());
}

UI_CheckboxChangedMessage::UI_CheckboxChangedMessage() = default;
UI_CheckboxChangedMessage::~UI_CheckboxChangedMessage() = default;

UI_Checkbox::UI_Checkbox() = default;
UI_Checkbox::~UI_Checkbox() = default;

void UI_Checkbox::SetLabel(const qelcore::UTF8String& newLabel) {
  AssertMainThread("UI_Checkbox::SetLabel");
  label = newLabel;
  UI_Invalidate();
}

const qelcore::UTF8String& UI_Checkbox::GetLabel() const {
  AssertMainThread("UI_Checkbox::GetLabel");
  return label;
}

void UI_Checkbox::SetValue(CheckboxValue newValue) {
  AssertMainThread("UI_Checkbox::SetValue");
  value = newValue;
  UI_Invalidate();
}

CheckboxValue UI_Checkbox::GetValue() const {
  AssertMainThread("UI_Checkbox::GetValue");
  return value;
}

void UI_Checkbox::Click() {
  AssertMainThread("UI_Checkbox::Click");
  if (!UI_IsEnabled()) return;
  SetValue(value == CheckboxValue::kChecked ? CheckboxValue::kUnchecked : CheckboxValue::kChecked);
  BroadcastChanged(UI_CheckboxChangedMessage());
}

}  // namespace qelui::controls
