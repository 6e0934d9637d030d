#include "app/windows.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

#include "app/saver_screens.h"
#include "desktop/foreign_owner.h"
#include "desktop/foreign_window.h"
#include "desktop/translation.h"
#include "hosting/frm_app_exe.h"
#include "hosting/frm_preview.h"
#include "hosting/frm_saver.h"
#include "info/frm_about.h"
#include "info/frm_system_diag.h"
#include "numbers/text.h"
#include "platform/console.h"
#include "properties/frm_props.h"
#include "settings/former_settings.h"
#include "settings/overrides.h"
#include "settings/product.h"
#include "settings/templates.h"
#include "storage/disk_files.h"
#include "storage/processor_time.h"
#include "storage/storage_places.h"
#include "storage/tree_file.h"
#include "template_dialogs/frm_file_io.h"
#include "widgets/qt_message_boxes.h"

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;
constexpr int kExitWrongUse = 2;

/// The folder of the user's stored settings.
std::string UserFolder() { return FolderOf(OwnTreeFiles().User); }

}  // namespace

AppWindows::AppWindows(ProcessState& process, const StartOptions& options, KeyValueTree& edited)
    : process_(process),
      options_(options),
      ofRun_(*process.Tree),
      edited_(edited),
      seed_([options] { return options.Seed ? *options.Seed : ClockSeed(); }),
      help_(edited, *process.Desktop, boxes_) {}

bool AppWindows::FileExists(const std::string& path) { return DiskFiles().Exists(path); }

/// Shows nothing after a template could not be loaded, because the effect would not be the
/// requested one.
void AppWindows::ShowFrmSaver() {
  if (exitCode_ != 0) return;
  const auto place = PlaceOfSaver(options_);
  if (!place) {
    const std::string number = std::to_string(options_.Screen.value_or(1));
    return Fail({STARFOLDS_TEXT("there is no screen %1"), {number}}, kExitCannotDo);
  }
  const OtherScreens others(options_, [this] { process_.Requests.AskQuit(); });
  FrmSaver(process_, seed_, *place).Load();
}

void AppWindows::ShowFrmAppExe() {
  AppWindowShape shape;
  shape.FullScreen = options_.FullScreen;
  if (options_.Size) shape.Size = QSize(options_.Size->Width, options_.Size->Height);
  shape.Framed = options_.AskedFor == Role::Window;
  const auto showProperties = [this](QWindow& owner, bool help) {
    // After the dialog is shown, because otherwise the help would open below it.
    if (help) QTimer::singleShot(0, [this] { help_.ShowTopic(help::kWindows); });
    RunFrmProps(&owner);
  };
  FrmAppExe(process_, seed_, showProperties, shape).Activate();
}

/// The dialog belongs to the window that the system names behind the switch, if there is one. The
/// end of that window also ends the loops of dialogs that are open above it.
void AppWindows::ShowFrmProps() {
  const ForeignOwner owner(WindowOfSettings(options_.CommandLine), [this] {
    process_.Requests.AskQuit();
    QCoreApplication::quit();
  });
  RunFrmProps(owner.Window());
}

/// The safety copy of the settings goes beside the program, or else beside the user's settings.
void AppWindows::RunFrmProps(QWindow* owner) {
  DiskFiles disk;
  const auto showDiagnostics = [&](QWidget& over) {
    FrmSystemDiag({edited_,
                   *process_.Desktop,
                   boxes_,
                   help_,
                   {STARFOLDS_VERSION, OwnTreeFiles().User},
                   ProcessorTime},
                  &over)
        .RunModal();
  };
  const auto showAbout = [&](QWidget& over) {
    FrmAbout({process_, help_, STARFOLDS_VERSION, seed_}, &over).exec();
  };
  FrmProps frmProps({process_, edited_, boxes_, disk, help_,
                     QCoreApplication::applicationDirPath().toStdString(), UserFolder(), seed_,
                     owner, STARFOLDS_HOME_PAGE, STARFOLDS_SHARE_PAGE, showDiagnostics, showAbout,
                     ChangesInWords(options_.Changes)});
  frmProps.ShowModal();
  process_.Tree = &ofRun_;  // a run that could not read the tree may be able to do so now
}

void AppWindows::LoadFrmPreview() {
  if (!CanOpenForeignWindows()) {
    Fail(STARFOLDS_TEXT("a preview inside another program's window needs an X server"),
         kExitCannotDo);
    return;
  }
  FrmPreview(process_, seed_).Load();
}

void AppWindows::ShowInHost(Long hostWindow) {
  process_.Mode = RunMode::ScreenSaver;
  if (GuestWindow(process_, seed_, hostWindow).Run(false)) return;
  // A host that ends while its saver starts is not an error; a number from a user or a script that
  // names no window is.
  Fail({STARFOLDS_TEXT("there is no window %1 to show anything in"), {std::to_string(hostWindow)}},
       options_.HostWindow ? kExitCannotDo : 0);
}

/// Runs nothing after a failure: a file that cannot be read is most likely a typing error, and if
/// the universe cannot be stored, another one would be shown.
void AppWindows::LoadTemplate(const std::string& path) {
  DiskFiles disk;
  TemplateFile file(disk);
  if (const auto fault = file.Load(path)) {
    return Fail({STARFOLDS_TEXT("cannot read %1"), {Quoted(path)}, *fault}, kExitWrongUse);
  }
  TemplateImport done =
      ImportOverFormerSettings(file, path, edited_, process_.Profiles, disk, UserFolder());
  if (done.Fault) {
    done.Fault->Subject =
        TranslatedText({STARFOLDS_TEXT("cannot store the universe of %1"), {Quoted(path)}});
    return Fail(*done.Fault, kExitWrongUse);
  }
  done.FormerSettings = Harmless(done.FormerSettings);
  Print(ImportNote(Harmless(path), done, TranslatedText));
}

/// Reports a failure in a message box, because a user who clicked on a file has no terminal.
bool AppWindows::BeginWithTemplate(const std::string& path, KeyValueTree& tree) {
  DiskFiles disk;
  TemplateFile file(disk);
  const auto fault = StoreTemplate(file, path, tree);
  if (!fault) return true;
  Fail({STARFOLDS_TEXT("cannot read %1"), {Quoted(path)}, *fault}, kExitWrongUse);
  boxes_.Show(TemplateFaultText(true, path, *fault), BoxStyle::Exclamation,
              std::string(kProductName));
  return false;
}

void AppWindows::Fail(const UserText& message, int exitCode) {
  Complain("starfolds", InOneLine(message, TranslatedText));
  exitCode_ = exitCode;
}

}  // namespace starfolds
