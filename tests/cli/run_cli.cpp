#include "run_cli.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

extern char** environ;

namespace linecalc::test {

namespace {

std::string slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  std::remove(path.c_str());
  return buffer.str();
}

}  // namespace

CliResult runCli(const std::vector<std::string>& arguments) {
  char outPath[] = "/tmp/linecalc-cli-out-XXXXXX";
  char errPath[] = "/tmp/linecalc-cli-err-XXXXXX";
  const int outFd = mkstemp(outPath);
  const int errFd = mkstemp(errPath);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, outFd, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, errFd, STDERR_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", 0, 0);

  std::vector<std::string> argvStrings{LINECALC_CLI_PATH};
  argvStrings.insert(argvStrings.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (auto& a : argvStrings) argv.push_back(a.data());
  argv.push_back(nullptr);

  CliResult result;
  pid_t pid = 0;
  if (posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0) {
    int status = 0;
    waitpid(pid, &status, 0);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  posix_spawn_file_actions_destroy(&actions);
  close(outFd);
  close(errFd);
  result.out = slurp(outPath);
  result.err = slurp(errPath);
  return result;
}

}  // namespace linecalc::test
