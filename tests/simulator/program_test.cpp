#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "simulator/station.h"

namespace {

using station::Station;
using testing::HasSubstr;
using testing::StartsWith;

// The program behind two pipes, as a script or a station's tester runs it.
class Program {
 public:
  explicit Program(std::vector<std::string> arguments) {
    int in[2];
    int out[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0) abort();
    pid_ = fork();
    if (pid_ == 0) {
      dup2(in[0], STDIN_FILENO);
      dup2(out[1], STDOUT_FILENO);
      dup2(out[1], STDERR_FILENO);
      std::vector<char*> argv{const_cast<char*>(HANDSET_PROGRAM)};
      for (auto& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      execv(HANDSET_PROGRAM, argv.data());
      _exit(127);
    }
    close(in[0]);
    close(out[1]);
    input_ = in[1];
    output_ = fdopen(out[0], "r");
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    if (pid_ > 0) Kill(SIGKILL);
    close(input_);
    std::fclose(output_);
  }

  std::string Line() {
    std::string line;
    int c = 0;
    while ((c = std::fgetc(output_)) != EOF && c != '\n') line += static_cast<char>(c);
    return line;
  }
  std::string LineThat(const std::string& start) {
    std::string line;
    do line = Line();
    while (!line.starts_with(start) && !std::feof(output_));
    return line;
  }
  std::string Say(const std::string& line) {
    std::string text = line + "\n";
    if (write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) return "";
    return Line();
  }
  void CloseInput() {
    close(input_);
    input_ = -1;
  }
  int Kill(int signal) {
    kill(pid_, signal);
    return Wait();
  }
  int Wait() {
    int status = 0;
    waitpid(std::exchange(pid_, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t pid_ = -1;
  int input_ = -1;
  FILE* output_ = nullptr;
};

std::string Address(Program& program) {
  std::string line = program.LineThat("ready ");
  EXPECT_THAT(line, StartsWith("ready "));
  return line.size() > 6 ? line.substr(6) : "";
}

TEST(HandsetProgram, ServesAndTakesCommandsWhileItRuns) {
  Program program({"--mode", "3", "--fault", "drop=next:1"});
  Station line(Address(program));
  line.Send(28, 0);
  auto answer = line.Ask(28, 1);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->subtype, 1);
  EXPECT_EQ(program.Say("assert 2"), "ok assert");
  answer = line.Receive();
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->type, 0xFF);
  EXPECT_EQ(program.Say("frame 35 0 0a 0b"), "ok frame");
  answer = line.Receive();
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->payload, (station::Bytes{10, 11}));
  EXPECT_EQ(program.Say("assert 3").substr(0, 12), "error assert");
  EXPECT_EQ(program.Say("fault nonsense").substr(0, 11), "error fault");
  EXPECT_EQ(program.Say("dance").substr(0, 11), "error dance");
  EXPECT_EQ(program.Say("fault refuse=1"), "ok fault");
  answer = line.Ask(28, 0);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->subtype, 2);
  program.Say("status");
  EXPECT_EQ(program.LineThat("ok"), "ok status");
  program.Say("quit");
  EXPECT_EQ(program.Wait(), 0);
}

TEST(HandsetProgram, ServesWithoutAConsoleUntilASignalEndsIt) {
  std::string link = testing::TempDir() + "program-link." + std::to_string(getpid());
  Program program({"--link", link, "--verbose", "--little-endian", "--mode", "1"});
  EXPECT_EQ(Address(program), link);
  program.CloseInput();
  Station line(link, false);
  EXPECT_TRUE(line.Ask(28, 0));
  EXPECT_THAT(program.LineThat(" "), HasSubstr("station connected"));
  EXPECT_THAT(program.Line(), HasSubstr("-> 28/0"));
  EXPECT_THAT(program.Line(), HasSubstr("<- 28/0  00 00 00 01"));
  EXPECT_EQ(program.Kill(SIGTERM), 0);
  EXPECT_FALSE(std::filesystem::exists(link));
}

TEST(HandsetProgram, ServesTcp) {
  Program program({"--tcp", "0", "--mode", "1"});
  std::string address = Address(program);
  EXPECT_THAT(address, StartsWith("127.0.0.1:"));
  EXPECT_TRUE(Station(address).Ask(28, 0));
}

TEST(HandsetProgram, SaysWhatIsWrongAndFails) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"--serial", "/dev/no-such-device"},
                                             {"--tcp", "host:x"},
                                             {"--fault", "drop=7"},
                                             {"--tcp", "0", "--link", "/tmp/x"},
                                             {"--state", HANDSET_PROGRAM},
                                             {"--mode", "256"}}) {
    Program program(arguments);
    EXPECT_NE(program.Line(), "") << arguments[0];
    EXPECT_GT(program.Wait(), 0) << arguments[0];
  }
}

}  // namespace
