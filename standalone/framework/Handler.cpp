#include "host/HSL/Handler.h"

#include "standalone/framework/FactoryRegistry.h"
#include "standalone/framework/FrameworkState.h"
#include "standalone/runtime/Runtime.h"

namespace HSL {

using standalone::AssertMainThread;
using standalone::Framework;

Handler::Handler(const qelcore::UTF8String& handlerID, std::string_view classID, std::uint32_t)
    : handlerID(handlerID), classID(classID) {}

Handler::~Handler() = default;

void Handler::PostSharedPtrInit() {
  AssertMainThread("Handler::PostSharedPtrInit");
  Framework::Current().GetState().AddLiveHandler(SharedFrom(this));
}

bool Handler::ObeyCommand(const UIF::Command& command) {
  return UIF::CommandHandler::ObeyCommand(command);
}

void Handler::RegisterFactory(std::string_view handlerID, Factory factory) {
  AssertMainThread("Handler::RegisterFactory");
  standalone::GetHandlerFactories().Register(handlerID, factory);
}

std::shared_ptr<Handler> Handler::FindHandler(std::string_view handlerID) {
  AssertMainThread("Handler::FindHandler");
  return Framework::Current().GetState().FindLiveHandler(handlerID);
}

}  // namespace HSL
