#pragma once

#include <gtest/gtest.h>

#include <thread>

// Forking a process that has threads is beyond the thread sanitizer.
#ifdef __SANITIZE_THREAD__
#define EXPECT_STOPS_OFF_MAIN_THREAD(operation, name) \
  static_cast<void>([&] { static_cast<void>(operation); })
#else
/// Expects that `operation`, called off the main thread, stops the program with a sentence that begins
/// with `name`.
#define EXPECT_STOPS_OFF_MAIN_THREAD(operation, name)                     \
  EXPECT_DEATH(std::thread([&] { static_cast<void>(operation); }).join(), \
               name " was called off the main thread")
#endif
