#include "standalone/runtime/Guard.h"

#include "standalone/runtime/Runtime.h"

namespace standalone {

void ReportFailure(const char* where, std::exception_ptr failure) noexcept {
  if (Runtime::Exists()) Runtime::Current().GetLog().ReportFailure(where, std::move(failure));
}

}  // namespace standalone
