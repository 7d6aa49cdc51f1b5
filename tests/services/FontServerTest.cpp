#include "host/KTEWrapper/FontServer.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

bool IsMissing(std::string_view name) {
  return KTEWrapper::FontServer::GetInstance().CheckIfFontMissing(name);
}

// The fonts of this package come with fontconfig itself.
TEST(FontServer, AnInstalledFontIsFoundByFamilyFullNameAndPostScriptName) {
  EXPECT_FALSE(IsMissing("DejaVu Sans"));
  EXPECT_FALSE(IsMissing("DejaVu Sans Bold"));
  EXPECT_FALSE(IsMissing("DejaVuSans-Bold"));
}

TEST(FontServer, LetterCaseIsIgnored) {
  EXPECT_FALSE(IsMissing("dejavu sans"));
  EXPECT_FALSE(IsMissing("DEJAVUSANS-BOLD"));
}

TEST(FontServer, AFontThatIsNotInstalledIsMissing) {
  EXPECT_TRUE(IsMissing("No Such Font 4711"));
  EXPECT_TRUE(IsMissing("DejaVu"));
  EXPECT_TRUE(IsMissing(" DejaVu Sans"));
  EXPECT_TRUE(IsMissing(""));
}

TEST(FontServer, AnswersOnAnyThreadAtOnce) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] {
      EXPECT_FALSE(IsMissing("DejaVu Sans"));
      EXPECT_TRUE(IsMissing("No Such Font 4711"));
    });
  }
  for (auto& thread : threads) thread.join();
}

}  // namespace
