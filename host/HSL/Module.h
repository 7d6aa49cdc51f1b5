#pragma once

#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace HSL {

/// A loaded plug-in module. The library exports one entry that creates it:
/// `HSL::Module* Vantrel::CreateModule(const qelcore::UTF8String& moduleID)`.
class HOST_API Module {
 public:
  using Factory = Module* (*)(const qelcore::UTF8String& moduleID);

  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;
  virtual ~Module();

  const qelcore::UTF8String& GetModuleID() const noexcept { return moduleID; }

  /// Remembers the factory of a module id, until the library that registered it is unloaded.
  /// [main-thread]; runs while the library is being loaded.
  static void RegisterFactory(std::string_view moduleID, Factory factory);

 protected:
  explicit Module(const qelcore::UTF8String& moduleID);

 private:
  qelcore::UTF8String moduleID;
};

/// The id of the Sequence Index module.
inline constexpr std::string_view kSequenceIndexModuleID = "SequenceIndexModule";

}  // namespace HSL
