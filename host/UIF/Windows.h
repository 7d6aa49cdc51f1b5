#pragma once

#include <cstdint>
#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace UIF {

/// What kind of window a class makes; the values are the host's. 1 is a dockable panel.
enum class WindowClassType : std::uint32_t {};

/// The window type of the Sequence Index panel.
inline constexpr std::string_view kSequenceIndexWindowTypeID = "SequenceIndexWindow";

/// The first window of a type, and the context that every window has without another one.
inline constexpr std::uint32_t kDefaultWindowID = 0;
inline constexpr std::uint32_t kDefaultWindowContextID = 0;

/// Declares a window class that the handler of `handlerID` serves. Declaring a type again replaces its
/// handler. [main-thread]
HOST_API void AddWindowClass(std::string_view windowTypeID, std::string_view handlerID,
                             WindowClassType type);

/// Withdraws a window class and the windows of its type from the Window menu; an unknown type is no
/// error. [main-thread] Throws: nothing.
HOST_API void RemoveWindowClass(std::string_view windowTypeID) noexcept;

/// Lists a window of a declared class in the Window menu under `title`. [main-thread]
HOST_API void AddWindow(std::string_view windowTypeID, std::uint32_t windowID,
                        const qelcore::UTF8String& title, std::uint32_t windowContextID);

}  // namespace UIF
