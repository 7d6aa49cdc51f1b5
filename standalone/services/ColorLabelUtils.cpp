#include "host/MZ/Clips.h"
#include "standalone/model/ClipNode.h"

namespace MZ::ColorLabelUtils {

// A clip carries its label colour itself, so it is the same in every project.
ZSL::Color GetDisplayLabelColorForClip(qelcore::Borrowed<BE::IClip> clip,
                                       const qelcore::Ref<BE::IProject>& /*project*/) {
  const auto* const node = standalone::FindClipNode(clip);
  return node == nullptr ? ZSL::Color() : node->GetValues().labelColor;
}

}  // namespace MZ::ColorLabelUtils
