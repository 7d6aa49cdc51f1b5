#include "host/qelui/ImageHandler.h"

#include <string>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::controls {

using qelcore::config::ExceptionKind;
using qelcore::config::qel_exception;
using standalone::AssertMainThread;

ImageHandler::ImageHandler(std::vector<DecalID> decals) : decals(std::move(decals)) {}
ImageHandler::~ImageHandler() = default;

std::shared_ptr<ImageHandler> ImageHandler::Create(std::vector<DecalID> decals) {
  AssertMainThread("ImageHandler::Create");
  if (decals.empty()) throw qel_exception(ExceptionKind::kGeneric, "A control needs a picture", {});
  return std::shared_ptr<ImageHandler>(new ImageHandler(std::move(decals)));
}

void ImageHandler::SetImageState(std::size_t newState) {
  AssertMainThread("ImageHandler::SetImageState");
  if (newState >= decals.size()) {
    throw qel_exception(ExceptionKind::kGeneric,
                        "There is no picture for state " + std::to_string(newState), {});
  }
  state = newState;
}

UI_ImageHandling::UI_ImageHandling() = default;
UI_ImageHandling::~UI_ImageHandling() = default;

void UI_ImageHandling::SetImageHandler(std::shared_ptr<ImageHandler> newHandler) {
  AssertMainThread("UI_ImageHandling::SetImageHandler");
  handler = std::move(newHandler);
}

}  // namespace qelui::controls
