#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern char** environ;

/// Runs programs and keeps what they wrote.
namespace process {

struct Outcome {
  /// The exit code, or 128 + the signal that ended the program.
  int code = -1;
  std::string output;
  std::string errors;
};

inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

/// A folder that goes with this object.
class Folder {
 public:
  Folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "index-test-XXXXXX").native();
    path = mkdtemp(pattern.data());
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::filesystem::path operator/(const std::string& name) const { return path / name; }
  const std::filesystem::path& GetPath() const { return path; }

 private:
  std::filesystem::path path;
};

/// Runs `command` with standard input from `input` and standard output to `output` (empty: captured).
inline Outcome Run(const std::vector<std::string>& command, const std::string& input = "/dev/null",
                   const std::string& output = {}) {
  const Folder folder;
  const std::string outputFile = output.empty() ? (folder / "output").native() : output;
  const std::string errorFile = (folder / "errors").native();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, outputFile.c_str(), O_WRONLY | O_CREAT, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, errorFile.c_str(), O_WRONLY | O_CREAT, 0600);
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  Outcome outcome;
  if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0) {
    int status = 0;
    waitpid(child, &status, 0);
    outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  posix_spawn_file_actions_destroy(&actions);
  if (output.empty()) outcome.output = ReadFile(outputFile);
  outcome.errors = ReadFile(errorFile);
  return outcome;
}

}  // namespace process
