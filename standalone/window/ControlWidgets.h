#pragma once

#include <QWidget>

#include "host/qelcore/Reference.h"
#include "host/qelui/Node.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A widget, owned by `parent`, that shows a control of the toolkit and hands it what the user does: a
/// text field, picture button, text, slider, checkbox or table. Where it stands is the caller's
/// affair. Null for a control that the host has no widget for. [main-thread]
STANDALONE_API QWidget* MakeControlWidget(const qelcore::Ref<qelui::ui::UI_SubView>& control,
                                          QWidget* parent);

}  // namespace standalone
