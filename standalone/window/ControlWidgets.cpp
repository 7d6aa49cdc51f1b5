#include "standalone/window/ControlWidgets.h"

#include "host/qelui/MultiColumnTree.h"
#include "standalone/window/CheckboxWidget.h"
#include "standalone/window/PictureButtonWidget.h"
#include "standalone/window/SliderWidget.h"
#include "standalone/window/StaticTextWidget.h"
#include "standalone/window/TextFieldWidget.h"
#include "standalone/window/TreeWidget.h"

namespace standalone {

namespace {

using Control = qelcore::Ref<qelui::ui::UI_SubView>;

/// The widget of a control of that class; null for another one.
template <typename Class, typename Widget>
QWidget* MakeIf(const Control& control, QWidget* parent) {
  auto* const found = dynamic_cast<Class*>(control.Get());
  return found == nullptr ? nullptr : new Widget(qelcore::Ref<Class>(found), parent);
}

}  // namespace

QWidget* MakeControlWidget(const Control& control, QWidget* parent) {
  using namespace qelui::controls;
  using Make = QWidget* (*)(const Control&, QWidget*);
  constexpr Make kMakers[] = {
      MakeIf<UI_TextEdit, TextFieldWidget>,    MakeIf<UI_PictureButton, PictureButtonWidget>,
      MakeIf<UI_StaticText, StaticTextWidget>, MakeIf<UI_Slider, SliderWidget>,
      MakeIf<UI_Checkbox, CheckboxWidget>,     MakeIf<UI_MultiColumnTree, TreeWidget>,
  };
  for (const Make make : kMakers) {
    if (QWidget* const widget = make(control, parent)) return widget;
  }
  return nullptr;
}

}  // namespace standalone
