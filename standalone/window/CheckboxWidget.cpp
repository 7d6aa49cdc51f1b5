#include "standalone/window/CheckboxWidget.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelui::controls::CheckboxValue;
using qelui::controls::UI_Checkbox;

namespace {

Qt::CheckState ToState(CheckboxValue value) {
  switch (value) {
    case CheckboxValue::kChecked:
      return Qt::Checked;
    case CheckboxValue::kMixed:
      return Qt::PartiallyChecked;
    case CheckboxValue::kUnchecked:
      break;
  }
  return Qt::Unchecked;
}

}  // namespace

CheckboxWidget::CheckboxWidget(const qelcore::Ref<UI_Checkbox>& box, QWidget* parent)
    : QCheckBox(parent), link(box, *this, [this](const UI_Checkbox& shown) { Follow(shown); }) {}

void CheckboxWidget::nextCheckState() {
  link.Do("checkbox", [](UI_Checkbox& clicked) { clicked.Click(); });
}

void CheckboxWidget::Follow(const UI_Checkbox& box) {
  // "&" stands for itself in the toolkit's texts, not for a key.
  setText(ToQString(box.GetLabel().View()).replace('&', "&&"));
  setTristate(box.GetValue() == CheckboxValue::kMixed);
  setCheckState(ToState(box.GetValue()));
}

}  // namespace standalone
