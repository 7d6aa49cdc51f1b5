#include "standalone/window/StaticTextWidget.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelui::controls::UI_StaticText;

StaticTextWidget::StaticTextWidget(const qelcore::Ref<UI_StaticText>& text, QWidget* parent)
    : QLabel(parent), link(text, *this, [this](const UI_StaticText& shown) {
        setText(ToQString(shown.GetValue().View()));
      }) {
  setTextFormat(Qt::PlainText);
}

}  // namespace standalone
