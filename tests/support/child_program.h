// A program at the end of two pipes, as a script or a station's tester runs it. Only where there is
// fork.
#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace merovane::test {

class ChildProgram {
 public:
  // The program's path and its arguments.
  explicit ChildProgram(std::vector<std::string> commandLine) {
    int in[2];
    int out[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0) std::abort();
    pid_ = fork();
    if (pid_ == 0) {
      dup2(in[0], STDIN_FILENO);
      dup2(out[1], STDOUT_FILENO);
      dup2(out[1], STDERR_FILENO);
      std::vector<char*> words;
      words.reserve(commandLine.size() + 1);
      for (std::string& word : commandLine) words.push_back(word.data());
      words.push_back(nullptr);
      execv(words[0], words.data());
      _exit(127);
    }
    close(in[0]);
    close(out[1]);
    input_ = fdopen(in[1], "w");
    output_ = fdopen(out[0], "r");
  }
  ChildProgram(const ChildProgram&) = delete;
  ChildProgram& operator=(const ChildProgram&) = delete;
  ~ChildProgram() {
    if (pid_ > 0) Kill(SIGKILL);
    CloseInput();
    std::fclose(output_);
  }

  void Type(const std::string& text) {
    std::fputs(text.c_str(), input_);
    std::fflush(input_);
  }
  void CloseInput() {
    if (FILE* input = std::exchange(input_, nullptr)) std::fclose(input);
  }
  // The next line that holds `awaited`, passing over others; empty at the end of all output.
  std::string Line(std::string_view awaited = "") {
    std::string line;
    for (int c = std::fgetc(output_); c != EOF; c = std::fgetc(output_)) {
      if (c != '\n') {
        line += static_cast<char>(c);
      } else if (line.find(awaited) != std::string::npos) {
        return line;
      } else {
        line.clear();
      }
    }
    return "";
  }
  int Kill(int signal) {
    kill(pid_, signal);
    return Wait();
  }
  // The exit status; -1 when a signal ended it.
  int Wait() {
    int status = 0;
    waitpid(std::exchange(pid_, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t pid_ = -1;
  FILE* input_ = nullptr;
  FILE* output_ = nullptr;
};

}  // namespace merovane::test
