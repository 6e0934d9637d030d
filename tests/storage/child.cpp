#include "storage/child.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace starfolds {
namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

Child::Child(const std::function<void()>& part) {
  std::fflush(nullptr);
  process_ = fork();
  if (process_ != 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that is given up leaves nobody behind
  part();
  std::fflush(nullptr);
  _exit(testing::Test::HasFailure() ? 1 : 0);
}

Child::~Child() {
  Kill();
  if (process_ > 0) waitpid(process_, nullptr, 0);
}

void Child::Kill() {
  if (process_ > 0) kill(process_, SIGKILL);
}

bool Child::Succeeded() {
  int status = -1;
  if (process_ <= 0 || waitpid(process_, &status, 0) != process_) return false;
  process_ = -1;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool WaitForFile(const std::string& path) {
  for (int i = 0; i < 30000; ++i) {
    if (access(path.c_str(), F_OK) == 0) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

bool SucceedsAsOrdinaryUser(const std::function<void()>& part) {
  return Child([&] {
           if (geteuid() == 0) {
             ASSERT_EQ(setresuid(kNobody, kNobody, kNobody), 0);
           }
           part();
         })
      .Succeeded();
}

}  // namespace starfolds
