#include "app/toolkit_start.h"

#include <QPalette>
#include <QStyle>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/system_start.h"
#include "desktop/translation.h"
#include "platform/console.h"
#include "widgets/plain_text.h"
#include "widgets/program_icon.h"
#include "widgets/visible_boxes.h"

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
  const UserText message(STARFOLDS_TEXT("cannot connect to the display"), {},
                         reason.trimmed().toStdString());
  Complain("starfolds", InOneLine(message, TranslationBeforeStart()));
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

/// Windows' style paints selected rows in a light colour, and their texts in the usual one. Lists
/// that paint their texts themselves take the colour from the palette.
void ShowSelectedRowsReadably() {
  if (!QApplication::style()->inherits("QWindowsVistaStyle")) return;
  QPalette palette = QApplication::palette("QAbstractItemView");
  palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
  QApplication::setPalette(palette, "QAbstractItemView");
}

bool HasScreen() {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  return !platform.startsWith("offscreen") && !platform.startsWith("minimal");
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
  ShowSelectedRowsReadably();
  QApplication::setWindowIcon(ProgramIcon());
  ReplayMessages();
}

void Toolkit::EndWhereQtMayHang(int exitCode) const {
  if (!QGuiApplication::platformName().startsWith("wayland")) return;
  std::fflush(nullptr);
  std::_Exit(exitCode);
}

}  // namespace starfolds
