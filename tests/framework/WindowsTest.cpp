#include "host/UIF/Windows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/UIF/ShortcutManager.h"
#include "standalone/framework/Framework.h"
#include "standalone/runtime/Runtime.h"

namespace {

using qelcore::UTF8String;
using standalone::WindowClass;
using standalone::WindowEntry;
using standalone::WindowMenu;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr UIF::WindowClassType kPanel{1};

class Windows : public testing::Test {
 protected:
  static void DeclarePanel(std::string_view type, std::string_view id) {
    UIF::AddWindowClass(type, "Handler", kPanel);
    UIF::AddWindow(type, UIF::kDefaultWindowID, UTF8String(id), UIF::kDefaultWindowContextID);
    UIF::ShortcutManager::Instance().AddWindowMenuID(id, UTF8String(id), "Wing_Menu");
  }

  standalone::Runtime runtime;
  standalone::Framework framework;
};

TEST_F(Windows, AClassNamesItsHandlerAndType) {
  UIF::AddWindowClass("Type", "Handler", kPanel);
  EXPECT_THAT(framework.GetWindowClasses(), ElementsAre(AllOf(Field(&WindowClass::windowTypeID, "Type"),
                                                              Field(&WindowClass::handlerID, "Handler"),
                                                              Field(&WindowClass::type, kPanel))));
}

TEST_F(Windows, DeclaringATypeAgainReplacesItsHandler) {
  UIF::AddWindowClass("Type", "Handler", kPanel);
  UIF::AddWindowClass("Type", "Other", kPanel);
  EXPECT_THAT(framework.GetWindowClasses(), ElementsAre(Field(&WindowClass::handlerID, "Other")));
}

TEST_F(Windows, AnEntryOfTheWindowMenuHasTitleWindowAndContext) {
  UIF::AddWindow("Type", 3, UTF8String("Title"), 4);
  EXPECT_THAT(
      framework.GetWindowEntries(),
      ElementsAre(AllOf(Field(&WindowEntry::windowTypeID, "Type"), Field(&WindowEntry::windowID, 3u),
                        Field(&WindowEntry::title, UTF8String("Title")),
                        Field(&WindowEntry::windowContextID, 4u))));
}

TEST_F(Windows, RemovingAClassTakesItsEntriesAndItsPanelsMenuAlong) {
  DeclarePanel("Type", "Panel");
  UIF::RemoveWindowClass("Type");
  EXPECT_THAT(framework.GetWindowClasses(), IsEmpty());
  EXPECT_THAT(framework.GetWindowEntries(), IsEmpty());
  EXPECT_THAT(framework.GetWindowMenus(), IsEmpty());
}

TEST_F(Windows, RemovingAClassLeavesTheOthers) {
  DeclarePanel("Type", "Panel");
  DeclarePanel("Other type", "Other panel");
  UIF::RemoveWindowClass("Type");
  EXPECT_THAT(framework.GetWindowClasses(),
              ElementsAre(Field(&WindowClass::windowTypeID, "Other type")));
  EXPECT_THAT(framework.GetWindowEntries(),
              ElementsAre(Field(&WindowEntry::windowTypeID, "Other type")));
  EXPECT_THAT(framework.GetWindowMenus(), ElementsAre(Field(&WindowMenu::id, "Other panel")));
}

TEST_F(Windows, RemovingAnUnknownClassIsNoError) {
  DeclarePanel("Type", "Panel");
  UIF::RemoveWindowClass("Unknown");
  EXPECT_EQ(framework.GetWindowClasses().size(), 1u);
}

TEST_F(Windows, AddingAPanelsMenuAgainReplacesIt) {
  auto& manager = UIF::ShortcutManager::Instance();
  manager.AddWindowMenuID("Panel", UTF8String("Old"), "Old_Menu");
  manager.AddWindowMenuID("Panel", UTF8String("New"), "New_Menu");
  EXPECT_THAT(framework.GetWindowMenus(),
              ElementsAre(AllOf(Field(&WindowMenu::title, UTF8String("New")),
                                Field(&WindowMenu::wingMenuID, "New_Menu"))));
}

}  // namespace
