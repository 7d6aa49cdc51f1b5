#include "standalone/app/CommandError.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

TEST(CommandError, NamesFileLineAndReason) {
  EXPECT_EQ(CommandError("cut.otio", 7, "It is odd.").GetLine(),
            "sequence-index: cut.otio:7: It is odd.");
  EXPECT_EQ(CommandError("cut.otio", 0, "It is odd.").GetLine(),
            "sequence-index: cut.otio: It is odd.");
  EXPECT_EQ(CommandError("It is odd.").GetLine(), "sequence-index: It is odd.");
}

TEST(CommandError, IsOneLineWhateverNamesHold) {
  EXPECT_EQ(MakeReportLine("a\nb.otio", 1, "clip \"x\r\n\033[31m\x7F\xC3\xA9\""),
            "sequence-index: a b.otio:1: clip \"x   [31m \xC3\xA9\"");
}

}  // namespace
}  // namespace standalone
