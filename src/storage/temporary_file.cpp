#include "storage/temporary_file.h"

#include <signal.h>
#include <sys/random.h>

#include <algorithm>
#include <array>
#include <cinttypes>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace starfolds {
namespace {

constexpr int kMostNames = 100;  // tried; a second one is hardly ever needed

constexpr std::array<int, 4> kEndSignals{SIGINT, SIGTERM, SIGHUP, SIGPIPE};

/// The paths of the named temporary files of this process, for the signal handler. An empty text is
/// a free entry; further files than these are not removed by signals.
std::array<std::array<char, PATH_MAX>, 8> registeredPaths;

/// The signal handler runs before or after a change of `registeredPaths`, but not during it.
class SignalsHeldBack {
 public:
  SignalsHeldBack() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : kEndSignals) sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, &former_);
  }
  ~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }
  SignalsHeldBack(const SignalsHeldBack&) = delete;
  SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

 private:
  sigset_t former_{};
};

/// Replaces `former` by `path` in the list of the signal handler; "" stands for no file.
void Register(const std::string& former, const std::string& path) {
  const auto entry = std::find_if(registeredPaths.begin(), registeredPaths.end(),
                                  [&](const auto& text) { return former == text.data(); });
  if (entry == registeredPaths.end() || path.size() >= entry->size()) return;
  std::memcpy(entry->data(), path.c_str(), path.size() + 1);
}

void RemoveAndEnd(int signal) {
  for (const auto& path : registeredPaths) {
    if (path[0] != '\0') unlink(path.data());
  }
  ::signal(signal, SIG_DFL);
  raise(signal);  // ends the process when the handler returns
}

/// A name that nobody can predict.
std::string RandomName(const std::string& folder) {
  std::array<std::uint64_t, 2> bits{};
  [[maybe_unused]] const auto count = getrandom(bits.data(), sizeof bits, 0);
  std::array<char, 60> name{};
  std::snprintf(name.data(), name.size(), "starfolds-%016" PRIx64 "%016" PRIx64 ".part", bits[0],
                bits[1]);
  return folder + "/" + name.data();
}

/// Tries random names until `create` succeeds, which returns 0 or an `errno`, and registers the
/// name. `path` is empty on failure.
template <class Create>
int CreateWithRandomName(const std::string& folder, std::string& path, const Create& create) {
  const SignalsHeldBack heldBack;
  int error = EEXIST;
  for (int i = 0; i < kMostNames && error == EEXIST; ++i) {
    path = RandomName(folder);
    error = create(path);
  }
  if (error != 0) {
    path.clear();
  } else {
    Register("", path);
  }
  return error;
}

std::string ProcessName(const Descriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.Number());
}

/// A file without a name; not open where that is not supported, or where it could not be given a
/// name later.
Descriptor UnnamedFile([[maybe_unused]] const std::string& folder, [[maybe_unused]] mode_t rights) {
#ifdef O_TMPFILE
  Descriptor file(folder, O_TMPFILE | O_WRONLY, rights);
  if (file.IsOpen() && access(ProcessName(file).c_str(), F_OK) == 0) return file;
#endif
  return {};
}

}  // namespace

TemporaryFile::~TemporaryFile() {
  if (path_.empty()) return;
  const SignalsHeldBack heldBack;
  unlink(path_.c_str());
  Register(path_, "");
}

int TemporaryFile::Create(const std::string& folder, mode_t rights) {
  folder_ = folder;
  file_ = UnnamedFile(folder, rights);
  if (file_.IsOpen()) return 0;
  return CreateWithRandomName(folder, path_, [&](const std::string& path) {
    file_ = Descriptor(path, O_WRONLY | O_CREAT | O_EXCL, rights);
    return file_.Error();
  });
}

std::string TemporaryFile::PathForOthers() const {
  if (!path_.empty()) return path_;
  return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(file_.Number());
}

int TemporaryFile::LinkTo(const std::string& path) const {
  const bool linked =
      linkat(AT_FDCWD, ProcessName(file_).c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
  return linked ? 0 : errno;
}

int TemporaryFile::GiveRandomName() {
  return CreateWithRandomName(folder_, path_,
                              [this](const std::string& path) { return LinkTo(path); });
}

int TemporaryFile::TakeName(const std::string& target) {
  if (path_.empty()) {
    // A link cannot replace a file, so the random name is needed only if the target exists.
    const int error = LinkTo(target);
    if (error != EEXIST) return error;
    if (const int failure = GiveRandomName()) return failure;
  }
  const SignalsHeldBack heldBack;
  if (rename(path_.c_str(), target.c_str()) != 0) return errno;
  Register(path_, "");
  path_.clear();
  return 0;
}

void RemoveTemporaryFilesOnSignals() {
  for (const int signal : kEndSignals) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = RemoveAndEnd;
    sigaction(signal, &action, nullptr);
  }
}

}  // namespace starfolds
