#include "host/qelui/Resources.h"

#include <string>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::utility {

using qelcore::config::ExceptionKind;
using qelcore::config::qel_exception;

namespace {

constexpr StyleResource kPlainHeaderRowStyle{.height = 24, .textInset = 6};
constexpr StyleResource kOutlinedHeaderRowStyle{.height = 20, .textInset = 6};

class BuiltInResources final : public ResourceManager {
 public:
  const StyleResource& GetResource(std::uint32_t number, std::uint32_t variant) const override {
    standalone::AssertMainThread("ResourceManager::GetResource");
    if (number == kHeaderRowStyle && variant == kPlainHeaderRow) return kPlainHeaderRowStyle;
    if (number == kHeaderRowStyle && variant == kOutlinedHeaderRow) return kOutlinedHeaderRowStyle;
    throw qel_exception(
        ExceptionKind::kGeneric,
        "There is no style " + std::to_string(number) + " of variant " + std::to_string(variant), {});
  }
};

}  // namespace

ResourceManager::ResourceManager() = default;
ResourceManager::~ResourceManager() = default;

const ResourceManager& GetResourceManager() {
  standalone::AssertMainThread("GetResourceManager");
  static const BuiltInResources resources;
  return resources;
}

}  // namespace qelui::utility
