#pragma once

#include <sys/types.h>

#include <filesystem>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Starts a program with one argument, whose standard input and output are one descriptor of ours. It
/// inherits no other, its standard error goes nowhere, signals act on it as they do by default, and
/// those that a terminal sends to us do not reach it. Throws: std::system_error. [any-thread]
STANDALONE_API pid_t StartChild(const std::filesystem::path& program,
                                const std::filesystem::path& argument, int inputAndOutput);

/// Kills a child, and waits until it has gone, unless the platform keeps it (a read from a drive that
/// never answers): then a thread of its own waits. [any-thread]
void EndChild(pid_t process) noexcept;

}  // namespace standalone
