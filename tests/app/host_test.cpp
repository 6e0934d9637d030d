// The program as a guest in the windows of a scripted host: the contract of today's saver hosts
// (arguments, environment, window, signals), and the preview. Needs an X server.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace starfolds {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using Texts = std::vector<std::string>;

/// For what must happen in the end, on a machine that has much else to do.
constexpr auto kPatience = 20s;

bool WaitUntil(const std::function<bool()>& done) {
  for (const auto end = Clock::now() + kPatience; Clock::now() < end;) {
    if (done()) return true;
    std::this_thread::sleep_for(1ms);
  }
  return done();
}

/// The program, from its start to its end, with what it says on stderr.
class Program {
 public:
  Program(Texts arguments, Texts environment) {
    arguments.insert(arguments.begin(), STARFOLDS_PROGRAM);
    int pipeEnds[2];
    if (pipe2(pipeEnds, O_CLOEXEC) != 0) std::abort();
    reader_ = pipeEnds[0];
    fcntl(reader_, F_SETFL, O_NONBLOCK);
    process_ = fork();
    if (process_ == 0) {
      dup2(pipeEnds[1], STDERR_FILENO);
      execve(STARFOLDS_PROGRAM, Pointers(arguments).data(), Pointers(environment).data());
      _exit(127);
    }
    close(pipeEnds[1]);
  }
  ~Program() {
    if (!status_) {
      kill(process_, SIGKILL);
      waitpid(process_, nullptr, 0);
    }
    close(reader_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void Signal(int number) const { kill(process_, number); }

  bool Runs() {
    int status = 0;
    if (!status_ && waitpid(process_, &status, WNOHANG) == process_) status_ = status;
    ReadWords();
    return !status_;
  }

  /// The exit code; negative: the signal that killed it; nothing: it does not end.
  std::optional<int> ExitCode() {
    if (!WaitUntil([&] { return !Runs(); })) return std::nullopt;
    return WIFEXITED(*status_) ? WEXITSTATUS(*status_) : -WTERMSIG(*status_);
  }

  const std::string& Words() const { return words_; }
  bool StderrIsOpen() const { return !stderrClosed_; }

  /// Whether SIGTERM no longer kills it.
  bool CatchesSignals() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/status");
    for (std::string line; std::getline(status, line);) {
      if (!line.starts_with("SigCgt:")) continue;
      return (std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
    }
    return false;
  }

 private:
  static std::vector<char*> Pointers(Texts& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  void ReadWords() {
    char room[4096];
    ssize_t got = 0;
    while ((got = read(reader_, room, sizeof room)) > 0) {
      words_.append(room, static_cast<std::size_t>(got));
    }
    if (got == 0) stderrClosed_ = true;
  }

  pid_t process_ = -1;
  int reader_ = -1;
  std::optional<int> status_;
  std::string words_;
  bool stderrClosed_ = false;
};

/// A window of the scripted host.
class HostWindow {
 public:
  HostWindow(xcb_connection_t* connection, int width, int height,
             xcb_window_class_t kind = XCB_WINDOW_CLASS_INPUT_OUTPUT)
      : connection_(connection), window_(xcb_generate_id(connection)) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::uint32_t alone = 1;
    xcb_create_window(connection, 0, window_, screen.root, 100, 100,
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                      kind, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &alone);
    xcb_map_window(connection, window_);
    Settle();
  }
  ~HostWindow() { Destroy(); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  void Destroy() {
    if (window_ == XCB_WINDOW_NONE) return;
    xcb_destroy_window(connection_, window_);
    window_ = XCB_WINDOW_NONE;
    Settle();
  }

  void Resize(std::uint32_t width, std::uint32_t height) const {
    const std::uint32_t size[] = {width, height};
    xcb_configure_window(connection_, window_, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         size);
    Settle();
  }

  std::string Number() const { return std::to_string(window_); }
  std::string HexNumber() const {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", window_);
    return text;
  }

  /// The window's content as it stands on the screen, what is inside it included.
  std::vector<std::uint32_t> Picture(int width, int height) const {
    const auto request = xcb_get_image(
        connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0, static_cast<std::uint16_t>(width),
        static_cast<std::uint16_t>(height), ~std::uint32_t{0});
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(connection_, request, nullptr), &std::free);
    if (!reply) return {};
    const auto* const words = reinterpret_cast<std::uint32_t*>(xcb_get_image_data(reply.get()));
    return {words, words + xcb_get_image_data_length(reply.get()) / 4};
  }

  /// Pixels that are not black.
  int Lit(int width, int height) const {
    const auto isLit = [](std::uint32_t word) { return (word & 0xFFFFFFU) != 0; };
    return static_cast<int>(std::ranges::count_if(Picture(width, height), isLit));
  }

 private:
  void Settle() const {
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }

  xcb_connection_t* connection_;
  xcb_window_t window_;
};

std::string FromEnvironment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

class Host : public testing::Test {
 protected:
  Host() : Connection(xcb_connect(nullptr, nullptr), &xcb_disconnect) {}

  void SetUp() override { ASSERT_EQ(xcb_connection_has_error(Connection.get()), 0); }

  /// All that a host which strips the environment leaves of it.
  static Texts Stripped(Texts more = {}) {
    Texts environment{"PATH=/usr/bin:/bin",
                      "HOME=" + std::filesystem::temp_directory_path().string(),
                      "LANG=C.UTF-8",
                      "DISPLAY=" + FromEnvironment("DISPLAY"),
                      "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere",
                      "LSAN_OPTIONS=" + FromEnvironment("LSAN_OPTIONS")};
    environment.insert(environment.end(), more.begin(), more.end());
    return environment;
  }

  static std::string Names(const HostWindow& window) {
    return "XSCREENSAVER_WINDOW=" + window.HexNumber();
  }

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> Connection;
  std::mt19937 Random{std::random_device()()};
};

TEST_F(Host, Smoke) {
  HostWindow window(Connection.get(), 300, 200);
  const auto begin = Clock::now();
  Program program({"/P", window.Number()}, Stripped());
  EXPECT_TRUE(WaitUntil([&] { return window.Lit(300, 200) > 100; }));
  std::cerr << "lit after " << Milliseconds(Clock::now() - begin).count() << "\n";
  window.Resize(500, 400);
  EXPECT_TRUE(WaitUntil([&] { return window.Lit(500, 400) > 2000; }));
  std::cerr << window.Lit(500, 400) << "\n";
  EXPECT_TRUE(program.Runs());
  const auto end = Clock::now();
  window.Destroy();
  EXPECT_EQ(program.ExitCode(), 0);
  std::cerr << "ended after " << Milliseconds(Clock::now() - end).count() << "\n";
  std::cerr << program.Words();
}

}  // namespace
}  // namespace starfolds
