#pragma once

#include <gtest/gtest.h>

#include <thread>

/// Expects that `operation`, called off the main thread, stops the program with a sentence that begins
/// with `name`. It runs in a program of its own, since a fork of one with threads may hang.
#define EXPECT_STOPS_OFF_MAIN_THREAD(operation, name)                       \
  do {                                                                      \
    testing::FLAGS_gtest_death_test_style = "threadsafe";                   \
    EXPECT_DEATH(std::thread([&] { static_cast<void>(operation); }).join(), \
                 name " was called off the main thread");                   \
  } while (false)
