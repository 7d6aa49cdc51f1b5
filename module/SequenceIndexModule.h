#pragma once

#include "host/HSL/Module.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The module as the host holds it. It has no state: what it brings is registered while its library is
/// being loaded.
class SequenceIndexModule final : public HSL::Module {
 public:
  explicit SequenceIndexModule(const qelcore::UTF8String& moduleID);
  ~SequenceIndexModule() override;
};

}  // namespace Vantrel
