#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace rights {

/// For its lifetime the administrator, whom nothing is forbidden, has the rights of the user who owns
/// least; that user owns the folder from then on.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::filesystem::path& folder) : isAdministrator(geteuid() == 0) {
    if (!isAdministrator) return;
    EXPECT_EQ(chown(folder.c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
  }
  ~OrdinaryUser() {
    if (!isAdministrator) return;
    EXPECT_EQ(seteuid(0), 0);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  const bool isAdministrator;
};

}  // namespace rights
