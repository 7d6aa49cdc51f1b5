#pragma once

#include <cstdint>
#include <string>

#include "host/BE/Model.h"
#include "host/MF/BinaryData.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/model/ContentNode.h"

namespace standalone {

class ComponentParamNode final : public ContentNode<BE::IComponentParam> {
 public:
  ComponentParamNode(const SequenceContent& content, MF::BinaryData value);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  MF::BinaryData GetKeyframeValue() const override { return value; }

 private:
  MF::BinaryData value;
};

class ComponentNode final : public ContentNode<BE::IComponent> {
 public:
  /// `document` is the parameter that holds a text document: a node of the same content, or null.
  ComponentNode(const SequenceContent& content, qelcore::UTF8String displayName,
                qelcore::UTF8String matchName, bool isIntrinsic, bool isMissing,
                ComponentParamNode* document);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  std::u16string GetDisplayName() const override;
  qelcore::UTF8String GetMatchName() const override { return matchName; }
  bool IsIntrinsic() const override { return isIntrinsic; }
  bool IsMissing() const override { return isMissing; }
  qelcore::Borrowed<BE::IComponentParam> GetParam(std::uint32_t index) const override;

 private:
  qelcore::UTF8String displayName;
  qelcore::UTF8String matchName;
  ComponentParamNode* document;
  bool isIntrinsic;
  bool isMissing;
};

}  // namespace standalone
