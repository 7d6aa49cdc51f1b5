#include "standalone/model/TransitionNode.h"

#include <utility>

#include "standalone/model/UnicodeText.h"

namespace standalone {

TransitionNode::TransitionNode(const SequenceContent& content, qelcore::UTF8String displayName,
                               bool isMissing)
    : ContentNode(content), isMissing(isMissing), displayName(std::move(displayName)) {}

void* TransitionNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::ITransition::kInterfaceID ? static_cast<BE::ITransition*>(this) : nullptr;
}

std::u16string TransitionNode::GetDisplayName() const {
  return UTF8To16(displayName);
}

}  // namespace standalone
