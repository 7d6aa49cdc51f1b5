#include "standalone/framework/RegistrationScope.h"

#include <atomic>

namespace standalone {

namespace {
thread_local LibraryID currentLibrary = kLinkedIn;
}  // namespace

LibraryID MakeLibraryID() noexcept {
  static std::atomic<LibraryID> last = kLinkedIn;
  return ++last;
}

RegistrationScope::RegistrationScope(LibraryID library) noexcept : outer(currentLibrary) {
  currentLibrary = library;
}

RegistrationScope::~RegistrationScope() {
  currentLibrary = outer;
}

LibraryID RegistrationScope::Current() noexcept {
  return currentLibrary;
}

}  // namespace standalone
