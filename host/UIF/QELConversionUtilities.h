#pragma once

#include "host/HostAPI.h"
#include "host/ZSL/Color.h"
#include "host/qelui/Geometry.h"

/// The one conversion between 8-bit and float colours; exact both ways for the 256 values of a
/// channel. [any-thread]
namespace UIF::QELConversionUtilities {

/// Each channel is clamped to 0..1 and rounded to the nearest of 256 values; NaN counts as 0.
HOST_API ZSL::Color QELColorRGBAtoZSLColor(const qelui::ColorRGBA& color) noexcept;

/// Each channel divided by 255 in single precision.
HOST_API qelui::ColorRGBA ZSLColorToQELColorRGBA(const ZSL::Color& color) noexcept;

}  // namespace UIF::QELConversionUtilities
