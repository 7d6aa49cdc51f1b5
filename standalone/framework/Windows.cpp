#include "host/UIF/Windows.h"

#include "standalone/framework/FrameworkState.h"
#include "standalone/runtime/Runtime.h"

namespace UIF {

using standalone::AssertMainThread;
using standalone::Framework;
using standalone::RegistrationScope;

void AddWindowClass(std::string_view windowTypeID, std::string_view handlerID, WindowClassType type) {
  AssertMainThread("AddWindowClass");
  Framework::Current().GetState().AddWindowClass(
      {std::string(windowTypeID), std::string(handlerID), type, RegistrationScope::Current()});
}

void RemoveWindowClass(std::string_view windowTypeID) noexcept {
  AssertMainThread("RemoveWindowClass");
  // A handler that outlives the framework has nothing left to withdraw.
  if (Framework::Exists()) Framework::Current().GetState().RemoveWindowClass(windowTypeID);
}

void AddWindow(std::string_view windowTypeID, std::uint32_t windowID, const qelcore::UTF8String& title,
               std::uint32_t windowContextID) {
  AssertMainThread("AddWindow");
  Framework::Current().GetState().windowEntries.push_back(
      {std::string(windowTypeID), windowID, title, windowContextID, RegistrationScope::Current()});
}

}  // namespace UIF
