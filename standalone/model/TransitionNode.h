#pragma once

#include <string>

#include "host/BE/Model.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/model/ContentNode.h"

namespace standalone {

class TransitionNode final : public ContentNode<BE::ITransition> {
 public:
  TransitionNode(const SequenceContent& content, qelcore::UTF8String displayName, bool isMissing);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  std::u16string GetDisplayName() const override;
  bool IsMissing() const override { return isMissing; }

 private:
  bool isMissing;
  qelcore::UTF8String displayName;
};

}  // namespace standalone
