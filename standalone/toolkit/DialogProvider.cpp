#include "standalone/toolkit/DialogProvider.h"

#include "standalone/runtime/Runtime.h"

namespace standalone {

namespace {
DialogProvider* currentProvider = nullptr;
}  // namespace

DialogProvider::DialogProvider() = default;
DialogProvider::~DialogProvider() = default;

void SetDialogProvider(DialogProvider* provider) {
  AssertMainThread("SetDialogProvider");
  currentProvider = provider;
}

DialogProvider* GetDialogProvider() {
  AssertMainThread("GetDialogProvider");
  return currentProvider;
}

}  // namespace standalone
