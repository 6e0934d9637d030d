#include "storage/fed_program.h"

#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>

extern "C" char** environ;

namespace starfolds {
namespace {

/// Posix_spawn's actions, freed at the end of the block.
class SpawnActions {
 public:
  SpawnActions() { posix_spawn_file_actions_init(&actions_); }
  ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;

  posix_spawn_file_actions_t* Get() { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

/// What exec takes: pointers to the texts, and a null at the end.
std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

FedProgram::~FedProgram() {
  if (!IsRunning()) return;
  kill(static_cast<pid_t>(process_), SIGTERM);
  input_ = Descriptor();
  AwaitEnd();
}

FedProgram::Fault FedProgram::Start(const std::vector<std::string>& command,
                                    const std::vector<std::string>& variables) {
  // A socket, not a pipe: writing to one whose reader has gone need not raise SIGPIPE.
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return Reason(errno);
  input_ = Descriptor::Owning(ends[0]);
  const Descriptor programs = Descriptor::Owning(ends[1]);

  std::vector<char*> arguments = Pointers(command);
  std::vector<char*> environment = Pointers(variables);
  for (char** variable = environ; *variable; ++variable) {
    environment.insert(environment.end() - 1, *variable);
  }
  SpawnActions actions;
  posix_spawn_file_actions_adddup2(actions.Get(), programs.Number(), STDIN_FILENO);
  pid_t started = 0;
  const int error = posix_spawnp(&started, arguments[0], actions.Get(), nullptr, arguments.data(),
                                 environment.data());
  if (error != 0) return Reason(error);
  process_ = started;
  return std::nullopt;
}

FedProgram::Fault FedProgram::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = send(input_.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    } else if (errno != EINTR) {
      return Reason(errno);
    }
  }
  return std::nullopt;
}

FedProgram::Fault FedProgram::Finish() {
  input_ = Descriptor();
  const int status = AwaitEnd();
  if (WIFSIGNALED(status)) return "ended by signal " + std::to_string(WTERMSIG(status));
  if (WEXITSTATUS(status) != 0) return "ended with code " + std::to_string(WEXITSTATUS(status));
  return std::nullopt;
}

int FedProgram::AwaitEnd() {
  int status = 0;
  while (waitpid(static_cast<pid_t>(process_), &status, 0) < 0 && errno == EINTR) {
  }
  process_ = 0;
  return status;
}

}  // namespace starfolds
