#include "standalone/model/ComponentNode.h"

#include <utility>

#include "host/ML/TextFilter.h"
#include "standalone/model/UnicodeText.h"

namespace standalone {

ComponentParamNode::ComponentParamNode(const SequenceContent& content, MF::BinaryData value)
    : ContentNode(content), value(std::move(value)) {}

void* ComponentParamNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::IComponentParam::kInterfaceID ? static_cast<BE::IComponentParam*>(this) : nullptr;
}

ComponentNode::ComponentNode(const SequenceContent& content, qelcore::UTF8String displayName,
                             qelcore::UTF8String matchName, bool isIntrinsic, bool isMissing,
                             ComponentParamNode* document)
    : ContentNode(content),
      displayName(std::move(displayName)),
      matchName(std::move(matchName)),
      document(document),
      isIntrinsic(isIntrinsic),
      isMissing(isMissing) {}

void* ComponentNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::IComponent::kInterfaceID ? static_cast<BE::IComponent*>(this) : nullptr;
}

std::u16string ComponentNode::GetDisplayName() const {
  return UTF8To16(displayName);
}

qelcore::Borrowed<BE::IComponentParam> ComponentNode::GetParam(std::uint32_t index) const {
  if (index != ML::kTextFilter_DocumentParamIndex) return {};
  return qelcore::Borrowed<BE::IComponentParam>(document);
}

}  // namespace standalone
