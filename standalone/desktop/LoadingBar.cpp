#include "standalone/desktop/LoadingBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>
#include <cmath>

#include "standalone/window/Utf8.h"

namespace standalone {

namespace {
constexpr int kBarWidth = 160;
constexpr int kPercent = 100;
}  // namespace

LoadingBar::LoadingBar(std::function<void()> cancel, QWidget* parent)
    : QWidget(parent), what(new QLabel()), bar(new QProgressBar()) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  what->setTextFormat(Qt::PlainText);
  bar->setRange(0, kPercent);
  bar->setFixedWidth(kBarWidth);
  bar->setAccessibleName("Progress");
  auto* const button = new QToolButton();
  button->setText("Cancel");
  button->setAutoRaise(true);
  layout->addWidget(what);
  layout->addWidget(bar);
  layout->addWidget(button);
  connect(button, &QToolButton::clicked, this, std::move(cancel));
  hide();
}

void LoadingBar::Show(const std::filesystem::path& file, LoadingStep step, double fraction) {
  const QString name = ToQString(file.filename().native());
  what->setText(step == LoadingStep::kTimeline ? "Reading " + name : "Reading media of " + name);
  bar->setValue(static_cast<int>(std::lround(fraction * kPercent)));
  show();
}

void LoadingBar::Clear() {
  hide();
}

}  // namespace standalone
