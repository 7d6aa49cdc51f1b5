#include "standalone/framework/ModuleLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "host/UIF/ShortcutManager.h"
#include "host/qelcore/Exceptions.h"
#include "standalone/assembly/StandaloneHost.h"
#include "system/Libraries.h"

namespace {

using qelcore::config::qel_exception;
using standalone::LoadedModule;
using testing::Contains;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::filesystem::path kFolder = MODULE_FOLDER;

class ModuleLoader : public testing::Test {
 protected:
  /// Loads a library that can't be loaded and returns the sentence.
  static std::string FailToLoad(const std::filesystem::path& library) {
    try {
      const LoadedModule module(library);
    } catch (const qel_exception& failure) {
      EXPECT_EQ(failure.GetObject(), library.native());
      return failure.what();
    }
    ADD_FAILURE() << library << " was loaded";
    return {};
  }

  /// That nothing is left of a library that could not be loaded.
  static void ExpectNothingLeft(const std::filesystem::path& library) {
    EXPECT_FALSE(IsKnownToLinker(library));
    EXPECT_FALSE(IsMapped(library));
    EXPECT_THAT(standalone::GetRegisteredHandlerFactories(), Not(Contains("FaultyHandler")));
  }

  standalone::StandaloneHost host;
};

TEST_F(ModuleLoader, NamesAMissingLibraryOnceAndSaysWhy) {
  const auto library = kFolder / "missing.so";
  EXPECT_EQ(FailToLoad(library), library.native() + ": can't be loaded as a module: " +
                                     "cannot open shared object file: No such file or directory");
}

TEST_F(ModuleLoader, RefusesAFileThatIsNoLibrary) {
  EXPECT_THAT(FailToLoad(SOURCE_FOLDER "/README.md"),
              StartsWith(SOURCE_FOLDER "/README.md: can't be loaded as a module: "));
}

TEST_F(ModuleLoader, RefusesALibraryWithoutEntry) {
  const auto library = kFolder / "faulty_module_NO_ENTRY.so";
  EXPECT_THAT(FailToLoad(library), EndsWith("it does not export Vantrel::CreateModule"));
  ExpectNothingLeft(library);
}

TEST_F(ModuleLoader, RefusesAnEntryThatMakesNoModule) {
  const auto library = kFolder / "faulty_module_NO_MODULE.so";
  EXPECT_THAT(FailToLoad(library), EndsWith("its entry made no module"));
  ExpectNothingLeft(library);
}

TEST_F(ModuleLoader, TellsTheFailureOfAnEntryAfterTheLibraryIsGone) {
  const auto library = kFolder / "faulty_module_FAILING.so";
  EXPECT_THAT(FailToLoad(library), EndsWith("out of film"));
  ExpectNothingLeft(library);
}

TEST_F(ModuleLoader, RefusesALibraryThatIsLoadedAlready) {
  const LoadedModule first(MODULE_LIBRARY);
  EXPECT_THAT(FailToLoad(MODULE_LIBRARY), EndsWith("it is loaded already"));
  EXPECT_TRUE(IsKnownToLinker(MODULE_LIBRARY));
}

TEST_F(ModuleLoader, WithdrawsWhatAModuleLeavesBehind) {
  const auto library = kFolder / "faulty_module_LITTERING.so";
  auto& manager = UIF::ShortcutManager::Instance();
  LoadedModule module(library);
  EXPECT_NE(manager.GetContext("Litter"), nullptr);
  EXPECT_EQ(host.GetFramework().GetWindowClasses().size(), 1u);
  EXPECT_THAT(standalone::GetRegisteredHandlerFactories(), Contains("FaultyHandler"));
  module.Unload();
  EXPECT_EQ(manager.GetContext("Litter"), nullptr);
  EXPECT_THAT(host.GetFramework().GetWindowClasses(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowEntries(), IsEmpty());
  EXPECT_THAT(host.GetFramework().GetWindowMenus(), IsEmpty());
  ExpectNothingLeft(library);
}

TEST_F(ModuleLoader, ReportsALibraryThatSomebodyElseHoldsOn) {
  LoadedModule module(MODULE_LIBRARY);
  void* const held = dlopen(MODULE_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
  EXPECT_THROW(module.Unload(), qel_exception);
  dlclose(held);
  EXPECT_FALSE(IsKnownToLinker(MODULE_LIBRARY));
}

TEST_F(ModuleLoader, UnloadingTwiceIsUnloadingOnce) {
  LoadedModule module(MODULE_LIBRARY);
  module.Unload();
  EXPECT_NO_THROW(module.Unload());
}

TEST_F(ModuleLoader, FindsTheLibraryBesideTheProgram) {
  EXPECT_TRUE(std::filesystem::equivalent(standalone::GetModuleLibraryPath(), MODULE_LIBRARY));
}

}  // namespace
