#include "standalone/framework/FrameworkState.h"

#include <algorithm>
#include <utility>

#include "standalone/framework/FactoryRegistry.h"

namespace standalone {

namespace {
constexpr std::string_view kGlobalContextID = "global";
}  // namespace

Framework::State::State() {
  AddContext(kGlobalContextID, qelcore::UTF8String("Application"));
}

void Framework::State::AddLiveHandler(const std::shared_ptr<HSL::Handler>& handler) {
  PurgeLiveHandlers();
  liveHandlers.push_back(handler);
}

std::shared_ptr<HSL::Handler> Framework::State::FindLiveHandler(std::string_view handlerID) const {
  for (auto known = liveHandlers.rbegin(); known != liveHandlers.rend(); ++known) {
    auto handler = known->lock();
    if (handler != nullptr && handler->GetHandlerID() == handlerID) return handler;
  }
  return nullptr;
}

std::shared_ptr<HSL::Handler> Framework::State::CreateHandler(std::string_view handlerID) {
  const auto* const entry = GetHandlerFactories().Find(handlerID);
  if (entry == nullptr) return nullptr;
  const LibraryID library = entry->library;
  const RegistrationScope scope(library);
  auto handler = entry->factory(qelcore::UTF8String(handlerID));
  if (handler != nullptr) createdHandlers.push_back({handler, library});
  return handler;
}

void Framework::State::DropHandlers() noexcept {
  while (!createdHandlers.empty()) {
    // Out of the list first: what the handler's destructor does may look at the list.
    const CreatedHandler newest = std::move(createdHandlers.back());
    createdHandlers.pop_back();
  }
}

void Framework::State::DropHandlersOf(LibraryID library) noexcept {
  const auto isOfLibrary = [library](const CreatedHandler& created) {
    return created.library == library;
  };
  while (true) {
    const auto newest = std::find_if(createdHandlers.rbegin(), createdHandlers.rend(), isOfLibrary);
    if (newest == createdHandlers.rend()) return;
    const CreatedHandler dropped = std::move(*newest);
    createdHandlers.erase(std::next(newest).base());
  }
}

std::shared_ptr<UIF::CommandContext> Framework::State::FindContext(std::string_view id) const {
  const auto found = std::ranges::find_if(
      contexts, [id](const Context& known) { return known.context->GetID() == id; });
  return found == contexts.end() ? nullptr : found->context;
}

std::shared_ptr<UIF::CommandContext> Framework::State::AddContext(std::string_view id,
                                                                  const qelcore::UTF8String& title) {
  if (auto known = FindContext(id)) return known;
  auto context = std::make_shared<UIF::CommandContext>(id, title);
  contexts.push_back({context, RegistrationScope::Current()});
  return context;
}

void Framework::State::AddWindowClass(WindowClass windowClass) {
  std::erase_if(windowClasses, [&](const WindowClass& known) {
    return known.windowTypeID == windowClass.windowTypeID;
  });
  windowClasses.push_back(std::move(windowClass));
}

void Framework::State::RemoveWindowClass(std::string_view windowTypeID) noexcept {
  const auto isOfType = [windowTypeID](const auto& known) {
    return known.windowTypeID == windowTypeID;
  };
  std::erase_if(windowClasses, isOfType);
  std::erase_if(windowEntries, isOfType);
  std::erase_if(windowMenus, isOfType);
}

void Framework::State::AddWindowMenu(WindowMenu menu) {
  if (!windowClasses.empty()) menu.windowTypeID = windowClasses.back().windowTypeID;
  const auto known = std::ranges::find(windowMenus, menu.id, &WindowMenu::id);
  if (known == windowMenus.end()) {
    windowMenus.push_back(std::move(menu));
  } else {
    *known = std::move(menu);
  }
}

void Framework::State::PurgeLiveHandlers() noexcept {
  std::erase_if(liveHandlers, [](const auto& known) { return known.expired(); });
}

void Framework::State::Withdraw(LibraryID library) noexcept {
  PurgeLiveHandlers();
  const auto isOfLibrary = [library](const auto& known) { return known.library == library; };
  std::erase_if(contexts, isOfLibrary);
  std::erase_if(windowClasses, isOfLibrary);
  std::erase_if(windowEntries, isOfLibrary);
  std::erase_if(windowMenus, isOfLibrary);
}

}  // namespace standalone
