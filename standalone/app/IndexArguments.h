#pragma once

#include <functional>
#include <string>

#include "standalone/app/Arguments.h"

namespace CLI {
class App;
}

namespace standalone {

/// The groups of options in the help.
inline constexpr const char* kChoosing = "What to show";
inline constexpr const char* kReading = "What to read";
inline constexpr const char* kWriting = "How to show it";

/// Adds an option with a value to a command. `take` may throw a CommandError.
void AddOption(CLI::App& command, const std::string& name, const char* typeName, const char* group,
               const char* about, const std::function<void(const std::string&)>& take);

/// Adds the options that every command has that shows an index. `options` must outlive the parse.
void AddIndexOptions(CLI::App& command, IndexOptions& options);

/// Adds the options of a window, which leaves what to show to the user. As above.
void AddWindowOptions(CLI::App& command, WindowArguments& arguments);

}  // namespace standalone
