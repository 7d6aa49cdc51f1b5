#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/HSL/Handler.h"
#include "host/UIF/Windows.h"

/// A handler that declares a window class for its lifetime, like a panel's.
class TestHandler final : public HSL::Handler {
 public:
  static constexpr std::string_view kID = "TestHandler";
  static constexpr std::string_view kWindowTypeID = "TestWindow";
  static constexpr UIF::WindowClassType kPanel{1};

  explicit TestHandler(const qelcore::UTF8String& handlerID) : HSL::Handler(handlerID, kID, 0) {
    UIF::AddWindowClass(kWindowTypeID, handlerID, kPanel);
    ++count;
  }
  ~TestHandler() override {
    UIF::RemoveWindowClass(kWindowTypeID);
    --count;
    if (whenDestroyed) whenDestroyed(std::string(GetHandlerID().View()));
  }

  std::shared_ptr<UIF::TabView> CreateTabView(const std::shared_ptr<UIF::WorkspaceFrame>&) override {
    return nullptr;
  }

  /// A factory of them; it answers nothing while `isAvailable` is false.
  static std::shared_ptr<HSL::Handler> Make(const qelcore::UTF8String& handlerID) {
    if (!isAvailable) return nullptr;
    auto handler = qelcore::memory::MakeShareable<TestHandler>(handlerID);
    handler->PostSharedPtrInit();
    return handler;
  }

  static inline int count = 0;
  static inline bool isAvailable = true;
  static inline std::function<void(const std::string&)> whenDestroyed;
};
