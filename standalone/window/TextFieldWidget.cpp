#include "standalone/window/TextFieldWidget.h"
#include "standalone/window/Utf8.h"

#include <QKeyEvent>

namespace standalone {

using qelui::controls::UI_TextEdit;

TextFieldWidget::TextFieldWidget(const qelcore::Ref<UI_TextEdit>& field, QWidget* parent)
    : QLineEdit(parent), link(field, *this, [this](const UI_TextEdit& shown) { Follow(shown); }) {
  const auto* const search = dynamic_cast<const qelui::controls::UI_SearchBox*>(field.Get());
  if (search != nullptr) {
    setClearButtonEnabled(search->HasClearButton());
    setPlaceholderText("Search");
    setAccessibleName("Search");
  }
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    link.Do("text field",
            [&](UI_TextEdit& edited) { edited.Type(qelcore::UTF8String(text.toStdString())); });
  });
  connect(this, &QLineEdit::editingFinished, this,
          [this] { link.Do("text field", [](UI_TextEdit& edited) { edited.Commit(); }); });
}

void TextFieldWidget::Follow(const UI_TextEdit& field) {
  const QString value = ToQString(field.GetValueUTF8().View());
  if (text() != value) setText(value);
}

void TextFieldWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || text().isEmpty()) return QLineEdit::keyPressEvent(event);
  clear();
  event->accept();
}

}  // namespace standalone
