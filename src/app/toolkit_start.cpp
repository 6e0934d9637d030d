#include "app/toolkit_start.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "desktop/translation.h"
#include "platform/console.h"
#include "widgets/plain_text.h"
#include "widgets/program_icon.h"
#include "widgets/visible_boxes.h"

#ifdef __unix__
#include <unistd.h>
#endif

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;

struct Message {
  QtMsgType Type;
  QString Category, Text;
};

/// Qt's messages during its start. The message handler has no context argument, hence the global.
std::vector<Message> messages;

/// The first message of the platform plug-ins names the cause; the fatal message, after which Qt
/// aborts, only suggests reinstalling.
[[noreturn]] void EndProcess(const QString& fatal) {
  QString reason = fatal;
  for (const Message& message : messages) {
    if (!message.Category.startsWith("qt.qpa")) continue;
    reason = message.Text;
    break;
  }
  Complain("starfolds", "cannot connect to the display: " + reason.trimmed().toStdString());
  std::_Exit(kExitCannotDo);
}

void CollectMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtFatalMsg) EndProcess(text);
  messages.push_back({type, context.category, text});
}

/// Passes the collected messages on after a successful start.
void ReplayMessages() {
  qInstallMessageHandler(nullptr);
  for (const auto& [type, category, text] : messages) {
    const QByteArray name = category.toUtf8();
    const QMessageLogger logger(nullptr, 0, nullptr, name.constData());
    if (type == QtWarningMsg || type == QtCriticalMsg) logger.warning().noquote() << text;
  }
  messages.clear();
}

bool HasScreen() {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  return !platform.startsWith("offscreen") && !platform.startsWith("minimal");
}

bool OnTerminal() {
#ifdef __unix__
  return isatty(STDIN_FILENO) != 0 || isatty(STDOUT_FILENO) != 0 || isatty(STDERR_FILENO) != 0;
#else
  return false;
#endif
}

}  // namespace

bool NamesDesktop() {
#if defined(__unix__) && !defined(__APPLE__)
  const auto given = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
  return given("DISPLAY") || given("WAYLAND_DISPLAY") || given("QT_QPA_PLATFORM");
#else
  return true;
#endif
}

bool MessageBoxesAreSeen() { return NamesDesktop() && HasScreen() && !OnTerminal(); }

Toolkit::Toolkit(char* program) : arguments_{program, nullptr} {
  qInstallMessageHandler(CollectMessage);
  application_.emplace(argumentCount_, arguments_.data());
  InstallTranslations();
  ShowTextsAsPlain(*application_);
  ShowUncheckedBoxes(*application_);
  QApplication::setWindowIcon(ProgramIcon());
  ReplayMessages();
}

}  // namespace starfolds
