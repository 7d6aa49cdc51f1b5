#include "host/UIF/QELConversionUtilities.h"

#include <cstdint>

namespace UIF::QELConversionUtilities {
namespace {

constexpr float kHighest = 255.0F;

std::uint8_t ToByte(float channel) noexcept {
  if (!(channel > 0.0F)) return 0;  // NaN is not above 0 either.
  if (channel >= 1.0F) return static_cast<std::uint8_t>(kHighest);
  // In double precision the sum is exact, so that this rounds as std::lround does, without its call.
  return static_cast<std::uint8_t>(static_cast<double>(channel * kHighest) + 0.5);
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
