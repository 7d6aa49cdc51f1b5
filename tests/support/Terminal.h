#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/Process.h"

/// Runs programs on a terminal of their own.
namespace terminal {

/// The environment without the variables that say something about terminals, and with `variables`
/// ("TERM=dumb").
inline std::vector<std::string> MakeEnvironment(const std::vector<std::string>& variables) {
  std::vector<std::string> environment = variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string_view text = *variable;
    bool isAboutTerminals = false;
    for (const char* name : {"TERM=", "COLORTERM=", "NO_COLOR=", "COLUMNS="}) {
      isAboutTerminals = isAboutTerminals || text.starts_with(name);
    }
    if (!isAboutTerminals) environment.emplace_back(text);
  }
  return environment;
}

inline std::vector<char*> MakePointers(const std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (const std::string& word : words) pointers.push_back(const_cast<char*>(word.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

/// Both ends of a pseudo-terminal as many columns wide (0: it does not know), which changes no byte.
class Line {
 public:
  explicit Line(unsigned short columns) : screen(posix_openpt(O_RDWR | O_NOCTTY)) {
    grantpt(screen);
    unlockpt(screen);
    program = open(ptsname(screen), O_RDWR | O_NOCTTY);
    termios modes{};
    tcgetattr(program, &modes);
    cfmakeraw(&modes);
    tcsetattr(program, TCSANOW, &modes);
    winsize size{};
    size.ws_col = columns;
    ioctl(program, TIOCSWINSZ, &size);
  }
  ~Line() {
    HangUp();
    close(screen);
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  int GetProgramEnd() const { return program; }
  void HangUp() {
    if (program >= 0) close(program);
    program = -1;
  }
  /// All that comes until the last program hangs up.
  std::string ReadAll() const {
    std::string text;
    char block[4096];
    for (ssize_t size = 0; (size = read(screen, block, sizeof block)) > 0;) {
      text.append(block, static_cast<std::size_t>(size));
    }
    return text;
  }

 private:
  int screen;
  int program = -1;
};

/// Runs `command` with standard output on a terminal.
inline process::Outcome Run(const std::vector<std::string>& command, unsigned short columns,
                            const std::vector<std::string>& variables = {"TERM=xterm"}) {
  const process::Folder folder;
  const std::string errorFile = (folder / "errors").native();
  Line line(columns);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, line.GetProgramEnd(), 1);
  posix_spawn_file_actions_addopen(&actions, 2, errorFile.c_str(), O_WRONLY | O_CREAT, 0600);
  const auto environment = MakeEnvironment(variables);
  process::Outcome outcome;
  pid_t child = 0;
  if (posix_spawn(&child, command[0].c_str(), &actions, nullptr, MakePointers(command).data(),
                  MakePointers(environment).data()) == 0) {
    line.HangUp();
    outcome.output = line.ReadAll();
    int status = 0;
    waitpid(child, &status, 0);
    outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  posix_spawn_file_actions_destroy(&actions);
  outcome.errors = process::ReadFile(errorFile);
  return outcome;
}

}  // namespace terminal
