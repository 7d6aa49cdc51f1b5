#include "data/FontScan.h"

#include <cstddef>
#include <string_view>
#include <unordered_set>

#include "host/BE/TextDocument.h"
#include "host/KTEWrapper/FontServer.h"
#include "host/ML/TextFilter.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {
namespace {

class FontCollector {
 public:
  explicit FontCollector(FontLists& fonts) : fonts(fonts) {}

  void AddFontsOf(const BE::IComponent& component) {
    if (component.GetMatchName() != ML::kMatchnameText) return;
    const auto parameter = component.GetParam(ML::kTextFilter_DocumentParamIndex);
    if (!parameter) return;
    const auto document = BE::TextDocument::Create(parameter->GetKeyframeValue());
    for (const qelcore::UTF8String& name : document->GetUsedFonts()) Add(name);
  }

 private:
  void Add(const qelcore::UTF8String& name) {
    if (seen.contains(name.View())) return;
    fonts.used.push_back(name);
    seen.insert(fonts.used.back().View());
    if (KTEWrapper::FontServer::GetInstance().CheckIfFontMissing(name)) fonts.missing.push_back(name);
  }

  FontLists& fonts;
  /// Views of the buffers that `fonts.used` holds.
  std::unordered_set<std::string_view> seen;
};

}  // namespace

FontLists ScanFonts(const BE::IComponentOwner& components) {
  FontLists fonts;
  FontCollector collector(fonts);
  const std::size_t count = components.GetComponentCount();
  for (std::size_t i = 0; i < count; ++i) {
    const auto component = components.GetComponent(i);
    collector.AddFontsOf(qelcore::Required(component));
  }
  return fonts;
}

}  // namespace Vantrel
