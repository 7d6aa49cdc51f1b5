#include "host/UIF/QELConversionUtilities.h"

#include <cmath>
#include <cstdint>

namespace UIF::QELConversionUtilities {
namespace {

constexpr float kHighest = 255.0F;

std::uint8_t ToByte(float channel) noexcept {
  if (!(channel > 0.0F)) return 0;  // NaN is not above 0 either.
  if (channel >= 1.0F) return static_cast<std::uint8_t>(kHighest);
  return static_cast<std::uint8_t>(std::lround(channel * kHighest));
}

float ToFloat(std::uint8_t channel) noexcept {
  return static_cast<float>(channel) / kHighest;
}

}  // namespace

ZSL::Color QELColorRGBAtoZSLColor(const qelui::ColorRGBA& color) noexcept {
  return {ToByte(color.red), ToByte(color.green), ToByte(color.blue), ToByte(color.alpha)};
}

qelui::ColorRGBA ZSLColorToQELColorRGBA(const ZSL::Color& color) noexcept {
  return {ToFloat(color.red), ToFloat(color.green), ToFloat(color.blue), ToFloat(color.alpha)};
}

}  // namespace UIF::QELConversionUtilities
