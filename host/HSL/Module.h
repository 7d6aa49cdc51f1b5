#pragma once

#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace HSL {

/// A loaded plug-in module. The library exports one entry, a Factory, that creates it:
/// `HSL::Module* Vantrel::CreateModule(const qelcore::UTF8String& moduleID)`.
/// All operations are [main-thread].
class HOST_API Module {
 public:
  /// Makes a module that the caller owns, from the ordinary allocator; null when there is none to be
  /// had. [main-thread]
  using Factory = Module* (*)(const qelcore::UTF8String& moduleID);

  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;
  virtual ~Module();

  const qelcore::UTF8String& GetModuleID() const noexcept { return moduleID; }

  /// Remembers the factory of a module id, until the library that registered it is unloaded.
  /// Runs while the library is being loaded.
  static void RegisterFactory(std::string_view moduleID, Factory factory);

 protected:
  explicit Module(const qelcore::UTF8String& moduleID);

 private:
  qelcore::UTF8String moduleID;
};

/// The id of the Sequence Index module.
inline constexpr std::string_view kSequenceIndexModuleID = "SequenceIndexModule";

}  // namespace HSL
