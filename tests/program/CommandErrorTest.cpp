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

TEST(CommandError, NamesCannotDriveTheTerminal) {
  EXPECT_EQ(MakeReportLine("\u009B31m.otio", 0, "clip \"a\u202Eb\u2066c\u200Fd\u061Ce\u2028f\""),
            "sequence-index:  31m.otio: clip \"a b c d e f\"");
  EXPECT_EQ(MakeReportLine("caf\xE9\x9B"
                           "1m",
                           0, "no UTF-8"),
            "sequence-index: caf\xE9 1m: no UTF-8");
  EXPECT_EQ(MakeReportLine("渡し船 👩‍🚀 שלום", 0, "…"),
            "sequence-index: 渡し船 👩‍🚀 שלום: …");
}

}  // namespace
}  // namespace standalone
