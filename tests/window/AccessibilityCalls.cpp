#include "window/AccessibilityCalls.h"

#include <QAccessible>

#include "standalone/window/TreeWidget.h"

namespace {
ToldWatch* watching = nullptr;
}  // namespace

ToldWatch::ToldWatch() {
  watching = this;
}
ToldWatch::~ToldWatch() {
  watching = nullptr;
}

// Without a display there is nobody whom the window system would tell: these stand in its place.

bool QAccessible::isActive() {
  return watching != nullptr;
}

void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  const bool isTable = dynamic_cast<standalone::TreeWidget*>(event->object()) != nullptr;
  if (watching != nullptr && isTable) watching->Add({event->type(), event->child()});
}
