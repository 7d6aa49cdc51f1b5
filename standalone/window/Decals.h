#pragma once

#include <QRect>
#include <QString>
#include <cstdint>

#include "standalone/runtime/StandaloneAPI.h"

class QPainter;

namespace standalone {

/// Draws a picture of the host's by its number, in the theme's colours; nothing for an unknown one.
STANDALONE_API void DrawDecal(QPainter& painter, std::uint32_t decal, const QRect& area,
                              bool isEnabled = true);

/// What it stands for, in words; empty for an unknown one.
STANDALONE_API QString DescribeDecal(std::uint32_t decal);

}  // namespace standalone
