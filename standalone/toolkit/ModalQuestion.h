#pragma once

#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/DialogProvider.h"

namespace standalone {

/// Puts a question to whoever answers for the user, inside a nested event loop: `ask` is called with
/// the provider and its answer returned; without a provider the answer is `cancelled`. [main-thread]
template <typename Answer, typename Ask>
Answer AskUser(Answer cancelled, Ask&& ask) {
  DialogProvider* const provider = GetDialogProvider();
  if (provider == nullptr) return cancelled;
  const MainQueue::NestedLoop loop(Runtime::Current().GetMainQueue());
  return std::forward<Ask>(ask)(*provider);
}

}  // namespace standalone
