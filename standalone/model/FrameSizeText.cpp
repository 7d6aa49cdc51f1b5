#include "standalone/model/FrameSizeText.h"

namespace standalone {

std::string FormatFrameSize(std::int64_t width, std::int64_t height, std::string_view pixelAspect) {
  std::string text = std::to_string(width) + " x " + std::to_string(height) + " (";
  return text.append(pixelAspect).append(")");
}

std::string FormatPixelAspect(std::int64_t width, std::int64_t height) {
  constexpr std::int64_t kDecimals = 10'000;
  const std::int64_t units = (width * kDecimals + height / 2) / height;
  std::string decimals = std::to_string(kDecimals + units % kDecimals).substr(1);
  while (decimals.size() > 1 && decimals.back() == '0') decimals.pop_back();
  return std::to_string(units / kDecimals) + "." + decimals;
}

}  // namespace standalone
