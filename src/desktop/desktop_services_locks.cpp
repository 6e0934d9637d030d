#include "desktop/desktop_services_locks.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QStandardPaths>
#include <QWindow>
#include <map>
#include <optional>
#include <utility>

#include "desktop/other_programs.h"
#include "desktop/window_hints.h"

#ifdef __unix__
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#else
#include <QLockFile>
#endif

namespace starfolds {
namespace {

/// Timeout in milliseconds for the answer of another process, which answers between two frames.
constexpr int kPatienceMs = 1000;

/// By this token a Wayland desktop allows a program to take the focus. The launcher of a program
/// passes it in this environment variable.
constexpr char kActivationToken[] = "XDG_ACTIVATION_TOKEN";
constexpr qint64 kLongestToken = 256;

QByteArray DisplayName() {
  const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
  return QGuiApplication::platformName().toUtf8() + ' ' +
         (wayland.isEmpty() ? qgetenv("DISPLAY") : wayland);
}

/// A path derived from caption and display, short enough for a socket. Empty if the user has no
/// runtime folder.
QString MeetingPlace(const std::string& caption) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) return {};
  const QByteArray key = DisplayName() + '\n' + QByteArray::fromStdString(caption);
  const QByteArray digest = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex();
  return QDir(folder).filePath("starfolds-" + QString::fromLatin1(digest.left(16)));
}

/// Whether the window takes its caption. Dialogs that belong to another window do not.
bool TakesCaption(const QWindow& window) {
  return window.isTopLevel() && window.transientParent() == nullptr && !window.title().isEmpty() &&
         !window.property(kUnlistedProperty).toBool();
}

QWindow* OwnWindow(const std::string& caption) {
  for (QWindow* const window : QGuiApplication::topLevelWindows()) {
    const bool listed = !window->property(kUnlistedProperty).toBool();
    if (listed && window->isVisible() && window->title().toStdString() == caption) return window;
  }
  return nullptr;
}

void BringForward(QWindow& window) {
  if (window.windowStates() & Qt::WindowMinimized) window.showNormal();
  window.raise();
  window.requestActivate();
}

enum class LockState { Taken, OfAnotherProcess, Impossible };

#ifdef __unix__

/// The system releases the lock when its process ends, however it ends. The contents of the file do
/// not matter, and it stays: removing it could give two processes a lock each.
class CaptionLock {
 public:
  ~CaptionLock() {
    if (file_ >= 0) close(file_);
  }
  CaptionLock() = default;
  CaptionLock(const CaptionLock&) = delete;
  CaptionLock& operator=(const CaptionLock&) = delete;

  LockState Take(const QString& path) {
    file_ = open(QFile::encodeName(path).constData(),
                 O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (file_ < 0) return LockState::Impossible;
    if (flock(file_, LOCK_EX | LOCK_NB) == 0) return LockState::Taken;
    return errno == EWOULDBLOCK ? LockState::OfAnotherProcess : LockState::Impossible;
  }

 private:
  int file_ = -1;
};

#else

class CaptionLock {
 public:
  LockState Take(const QString& path) {
    lock_.emplace(path);
    lock_->setStaleLockTime(0);  // stale only if its process has ended
    if (lock_->tryLock()) return LockState::Taken;
    return lock_->error() == QLockFile::LockFailedError ? LockState::OfAnotherProcess
                                                        : LockState::Impossible;
  }

 private:
  std::optional<QLockFile> lock_;
};

#endif

/// A caption that belongs to this process during the lifetime of this object.
class OwnedCaption {
 public:
  explicit OwnedCaption(std::string caption)
      : caption_(std::move(caption)), place_(MeetingPlace(caption_)) {}

  /// False if another process has the caption. If locking is not possible, every process gets every
  /// caption: two savers are better than none.
  bool Take() {
    if (place_.isEmpty()) return true;
    const LockState state = lock_.Take(place_ + QStringLiteral(".lock"));
    if (state == LockState::Taken) Listen();
    return state != LockState::OfAnotherProcess;
  }

 private:
  /// If listening fails, the window cannot be brought forward by others; nothing else depends on
  /// it.
  void Listen() {
    // Removes the socket of a process that was killed.
    QLocalServer::removeServer(place_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Answer(); });
    server_.listen(place_);
  }

  void Answer() {
    while (QLocalSocket* const caller = server_.nextPendingConnection()) {
      QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
      QObject::connect(caller, &QLocalSocket::readyRead, caller,
                       [this, caller] { AnswerCaller(*caller); });
      if (caller->bytesAvailable() > 0) AnswerCaller(*caller);
    }
  }

  /// Reads a line with the caller's token, which may be empty, and raises the window.
  void AnswerCaller(QLocalSocket& caller) const {
    if (!caller.canReadLine()) {
      if (caller.bytesAvailable() > kLongestToken) caller.abort();
      return;
    }
    const QByteArray token = caller.readLine(kLongestToken).trimmed();
    if (!token.isEmpty()) qputenv(kActivationToken, token);
    if (QWindow* const window = OwnWindow(caption_)) BringForward(*window);
    caller.disconnectFromServer();
  }

  std::string caption_;
  QString place_;
  CaptionLock lock_;
  QLocalServer server_;
};

void AskForward(const std::string& caption) {
  const QString place = MeetingPlace(caption);
  if (place.isEmpty()) return;
  QLocalSocket owner;
  owner.connectToServer(place);
  if (!owner.waitForConnected(kPatienceMs)) return;
  owner.write(qgetenv(kActivationToken).left(kLongestToken - 2) + '\n');
  // The owner closes the connection when its window has come forward.
  owner.waitForDisconnected(kPatienceMs);
}

class LockDesktop : public StartsOtherPrograms, private QObject {
 public:
  LockDesktop() { qGuiApp->installEventFilter(this); }

  bool WindowExists(const std::string& caption) override {
    return OwnWindow(caption) != nullptr || !Take(caption);
  }

  void BringToFront(const std::string& caption) override {
    if (QWindow* const window = OwnWindow(caption)) {
      BringForward(*window);
    } else if (!owned_.contains(caption)) {
      AskForward(caption);
    }
  }

  bool IsWindow(Long) override { return false; }

 private:
  bool Take(const std::string& caption) {
    if (owned_.contains(caption)) return true;
    auto owned = std::make_unique<OwnedCaption>(caption);
    if (!owned->Take()) return false;
    owned_.emplace(caption, std::move(owned));
    return true;
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && object->isWindowType()) {
      const auto& window = static_cast<const QWindow&>(*object);
      if (TakesCaption(window)) Take(window.title().toStdString());
    }
    return false;
  }

  std::map<std::string, std::unique_ptr<OwnedCaption>> owned_;
};

}  // namespace

std::unique_ptr<DesktopServices> MakeLockDesktop() { return std::make_unique<LockDesktop>(); }

}  // namespace starfolds
