#include "standalone/desktop/StatusLine.h"

#include <QAccessible>
#include <QResizeEvent>

#include "standalone/window/ToolTip.h"

namespace standalone {

namespace {
constexpr std::uint32_t kToolTipWidth = 600;
}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  // A long sentence must not make the window wider.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusLine::Say(const QString& newSentence, const QString& matter) {
  sentence = newSentence;
  sentenceMatter = matter;
  setToolTip(MakeToolTip(sentence.toStdString(), kToolTipWidth));
  setAccessibleName(sentence);
  ShowSentence();
  if (sentence.isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void StatusLine::Settle(const QString& matter) {
  if (matter == sentenceMatter) Say({});
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  ShowSentence();
}

void StatusLine::ShowSentence() {
  QString line = sentence;
  line.replace('\n', ' ');
  setText(fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width()));
}

}  // namespace standalone
