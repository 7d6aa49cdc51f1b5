#include "standalone/window/PictureButtonWidget.h"

#include <QApplication>
#include <QPainter>

#include "host/qelui/ImageHandler.h"
#include "standalone/window/Decals.h"
#include "standalone/window/InputEvents.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelui::controls::UI_PictureButton;

namespace {
constexpr int kInset = 5;
}  // namespace

PictureButtonWidget::PictureButtonWidget(const qelcore::Ref<UI_PictureButton>& button, QWidget* parent)
    : QToolButton(parent),
      link(button, *this, [this](const UI_PictureButton& shown) { Follow(shown); }) {
  setAutoRaise(true);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QToolButton::clicked, this, [this] {
    const std::uint32_t modifiers = ToModifiers(QApplication::keyboardModifiers());
    link.Do("button", [&](UI_PictureButton& clicked) { clicked.Click(modifiers); });
  });
}

void PictureButtonWidget::Follow(const UI_PictureButton& button) {
  const auto& images = button.GetImageHandler();
  decal = images == nullptr ? 0 : images->GetDecal();
  setAccessibleName(DescribeDecal(decal));
  setAccessibleDescription(ToQString(button.UI_GetToolTip().View()));
  update();
}

void PictureButtonWidget::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  QPainter painter(this);
  DrawDecal(painter, decal, rect().adjusted(kInset, kInset, -kInset, -kInset), isEnabled());
}

}  // namespace standalone
