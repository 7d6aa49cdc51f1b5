#include <cstdlib>
#include <initializer_list>

namespace {

/// The programs that these tests start print what they show, also where a display would let them open a
/// window.
const bool hasNoDisplay = [] {
  for (const char* const variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    unsetenv(variable);
  return true;
}();

}  // namespace
