#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/HostAPI.h"
#include "host/UIF/Commands.h"
#include "host/UIF/TabView.h"
#include "host/qelcore/Shareable.h"
#include "host/qelcore/UTF8String.h"

namespace HSL {

/// Serves one kind of panel: the host creates it through its factory, keeps it, and asks it for tab
/// views. All operations are [main-thread].
class HOST_API Handler : public UIF::Commander,
                         public UIF::TabViewCreator,
                         public qelcore::memory::Shareable {
 public:
  using Factory = std::shared_ptr<Handler> (*)(const qelcore::UTF8String& handlerID);

  ~Handler() override;

  /// Second phase of construction, once a shared pointer owns the handler: makes it the one that
  /// FindHandler answers. Throws: nothing.
  void PostSharedPtrInit();

  /// The base forwards to UIF::CommandHandler::ObeyCommand.
  bool ObeyCommand(const UIF::Command& command) override;

  const qelcore::UTF8String& GetHandlerID() const noexcept { return handlerID; }

  /// Remembers the factory of a handler id, until the library that registered it is unloaded. The
  /// factory may answer an empty pointer: no handler now. Runs while the library is being loaded.
  static void RegisterFactory(std::string_view handlerID, Factory factory);

  /// The live handler of that id, or empty.
  static std::shared_ptr<Handler> FindHandler(std::string_view handlerID);

 protected:
  /// `handlerID` is the id given to the factory, `classID` the handler's class, `options` 0.
  Handler(const qelcore::UTF8String& handlerID, std::string_view classID, std::uint32_t options);

 private:
  qelcore::UTF8String handlerID;
  qelcore::UTF8String classID;
};

/// The id of the Sequence Index panel's handler.
inline constexpr std::string_view kSequenceIndexHandlerID = "SequenceIndexHandler";

}  // namespace HSL
