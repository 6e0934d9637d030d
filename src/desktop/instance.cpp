#include "desktop/instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QGuiApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>
#include <QStandardPaths>
#include <QWindow>
#include <map>
#include <utility>

#include "desktop/other_programs.h"
#include "desktop/window_hints.h"

namespace starfolds {
namespace {

/// How long another process has for its part of a conversation, in milliseconds. It answers between
/// two frames.
constexpr int kPatienceMs = 1000;

/// With this a Wayland desktop lets a program give itself the focus. Whoever starts a program hands
/// it over here.
constexpr char kActivationToken[] = "XDG_ACTIVATION_TOKEN";
constexpr qint64 kLongestToken = 256;

QByteArray DisplayName() {
  const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
  return QGuiApplication::platformName().toUtf8() + ' ' +
         (wayland.isEmpty() ? qgetenv("DISPLAY") : wayland);
}

/// The same for the same caption on the same display, and short, as a socket's path has to be.
/// Empty where the user has no folder for such things.
QString MeetingPlace(const std::string& caption) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) return {};
  const QByteArray key = DisplayName() + '\n' + QByteArray::fromStdString(caption);
  const QByteArray digest = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex();
  return QDir(folder).filePath("starfolds-" + QString::fromLatin1(digest.left(16)));
}

/// Boxes that belong to another window come and go with it.
bool StandsForItself(const QWindow& window) {
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

/// A caption that belongs to this process, for as long as this object lives.
class OwnedCaption {
 public:
  explicit OwnedCaption(std::string caption)
      : caption_(std::move(caption)),
        place_(MeetingPlace(caption_)),
        lock_(place_ + QStringLiteral(".lock")) {
    // However old: it is stale if its process is gone, and only then.
    lock_.setStaleLockTime(0);
  }

  /// False: another process has it. Where nothing can be locked everybody has every caption: two
  /// savers are better than none.
  bool Take() {
    if (place_.isEmpty()) return true;
    if (!lock_.tryLock()) return lock_.error() != QLockFile::LockFailedError;
    Listen();
    return true;
  }

 private:
  /// Where it cannot listen the window is not brought forward, and that is all.
  void Listen() {
    // What a process that was killed has left.
    QLocalServer::removeServer(place_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Answer(); });
    server_.listen(place_);
  }

  void Answer() {
    while (QLocalSocket* const caller = server_.nextPendingConnection()) {
      QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
      QObject::connect(caller, &QLocalSocket::readyRead, caller, [this, caller] { Obey(*caller); });
      if (caller->bytesAvailable() > 0) Obey(*caller);
    }
  }

  /// A line with the caller's token, which may be empty.
  void Obey(QLocalSocket& caller) const {
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
  QLockFile lock_;
  QLocalServer server_;
};

void AskForward(const std::string& caption) {
  const QString place = MeetingPlace(caption);
  if (place.isEmpty()) return;
  QLocalSocket owner;
  owner.connectToServer(place);
  if (!owner.waitForConnected(kPatienceMs)) return;
  owner.write(qgetenv(kActivationToken).left(kLongestToken - 2) + '\n');
  // The owner hangs up when his window has come forward.
  owner.waitForDisconnected(kPatienceMs);
}

class InstanceDesktop : public StartsOtherPrograms, private QObject {
 public:
  InstanceDesktop() { qGuiApp->installEventFilter(this); }

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
      if (StandsForItself(window)) Take(window.title().toStdString());
    }
    return false;
  }

  std::map<std::string, std::unique_ptr<OwnedCaption>> owned_;
};

}  // namespace

std::unique_ptr<DesktopServices> MakeInstanceDesktop() {
  return std::make_unique<InstanceDesktop>();
}

}  // namespace starfolds
