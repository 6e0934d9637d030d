// Writes pictures of the properties dialog, with every page and style, and of the other dialogs,
// for the documents. Usage: dialog_pictures FOLDER light|dark [FILE.qm] [WIDTH HEIGHT], with a
// translation and the size of the window. QT_SCALE_FACTOR sets their scale.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <QTimer>
#include <cstdlib>
#include <map>

#include "desktop/translation.h"
#include "info/frm_about.h"
#include "info/frm_credits.h"
#include "info/frm_system_diag.h"
#include "info/help_viewer.h"
#include "info/help_window.h"
#include "properties/frm_advanced.h"
#include "properties/frm_idle.h"
#include "properties/frm_props.h"
#include "settings/first_run.h"
#include "settings/stored_records.h"
#include "template_dialogs/frm_file_io.h"
#include "widgets/visible_boxes.h"

namespace {

using namespace starfolds;

QPalette DarkPalette() {
  QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Highlight, QColor(42, 110, 180));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(role, QColor(230, 230, 230));
    dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  return dark;
}

void StoreFactory(KeyValueTree& tree) {
  SettingsRecords records;
  LoadFactorySettings(records, FactorySet::Starfolds4x, 1);
  SaveSettings(tree, records);
  RegistryWrite(tree, sections::kGeneral, kAnimationType, Long{0});
  RegistryWrite(tree, sections::kGeneral, kResetSettings, Long{1});
}

template <class Widget>
Widget& Part(QWidget& dialog, const char* name) {
  return *dialog.findChild<Widget*>(name);
}

void Take(QWidget& window, const QString& file) {
  QElapsedTimer pause;  // after it the still of the body is updated
  pause.start();
  while (pause.elapsed() < 300) QApplication::processEvents();
  window.grab().save(file);
}

/// An editor, and the entry of its lists to select.
struct EditorPicture {
  const char* Type;  // of starfold
  const char* Button;
  const char* Editor;
  std::map<const char*, int> Chosen;
};
const EditorPicture kEditors[] = {
    {"Nested Horizontal Rings", "cmdFoldLevels", "frmLevels", {}},
    {"UD-IFS:  Space Station", "cmdIFS_Chem", "frmUserDefIFS", {{"cboTheme", 5}}},
    {"UD-ATOM:  Nested Shells", "cmdIFS_Chem", "frmMolecule", {{"cboTheme", 2}}},
};

void TakeEditors(FrmProps& dialog, const QString& prefix) {
  for (const EditorPicture& picture : kEditors) {
    auto& types = Part<BodyList>(dialog, "lstUniStarfold");
    for (int i = 0; i < types.count(); ++i) {
      if (types.EntryName(i) == picture.Type) types.setCurrentRow(i);
    }
    Part<QPushButton>(dialog, "cmdFoldProps").click();
    QTimer::singleShot(0, &dialog, [&] {
      auto& editor = *dialog.findChild<QDialog*>(picture.Editor);
      editor.resize(editor.sizeHint());  // the platform's screen is smaller
      for (const auto& [list, entry] : picture.Chosen) {
        editor.findChild<QComboBox*>(list)->setCurrentIndex(entry);
      }
      if (auto* atoms = editor.findChild<QListWidget*>("lstElements")) atoms->setCurrentRow(8);
      Take(editor, prefix + picture.Editor + ".png");
      editor.close();
    });
    Part<QPushButton>(dialog, picture.Button).click();
    Part<QPushButton>(dialog, "cmdAccept").click();
  }
}

void TakePictures(FrmProps& dialog, const QString& prefix) {
  const auto take = [&](const QString& name) { Take(dialog, prefix + name + ".png"); };
  TakeEditors(dialog, prefix);
  Part<BodyList>(dialog, "lstUniStarfold").setCurrentRow(6);
  Part<QCheckBox>(dialog, "chkUniTour").setChecked(true);
  Part<BodyList>(dialog, "lstCompStarfold").setCurrentRow(0);
  Part<QComboBox>(dialog, "cboPropCopyList").setCurrentIndex(5);
  for (int page = 0; page < kUniversePageCount; ++page) {
    Part<QComboBox>(dialog, "cboUniExtras").setCurrentIndex(page);
    take("universe-" + QString::number(page));
  }
  Part<QPushButton>(dialog, "cmdFoldProps").click();
  for (int style = 0; style < kStyleCount; ++style) {
    Part<QComboBox>(dialog, "cboFoldStyle").setCurrentIndex(style);
    take("style-" + QString::number(style));
  }
  for (int page = 1; page < kStarfoldPageCount; ++page) {
    Part<QComboBox>(dialog, "cboFoldExtras").setCurrentIndex(page);
    take("starfold-" + QString::number(page));
  }
}

void TakeAdvanced(KeyValueTree& tree, Help& help, const QString& prefix) {
  RegistryWrite(tree, sections::kAdvanced, "LockMessage", "Back at two. Mind the cat.");
  RegistryWrite(tree, sections::kAdvanced, "Adv_FontName", "DejaVu Serif");
  FrmAdvanced dialog(tree, help);
  dialog.ShowInPlace();
  dialog.grab().save(prefix + "advanced.png");
}

/// Asks the idle service that is in the search path, if there is one.
void TakeIdle(KeyValueTree& tree, Help& help, const QString& prefix) {
  FrmIdle dialog(tree, help, FindIdleProgram());
  dialog.ShowInPlace();
  QElapsedTimer answer;
  answer.start();
  while (answer.elapsed() < 3000) QApplication::processEvents();
  dialog.grab().save(prefix + "idle.png");
}

void TakeFileIo(KeyValueTree& tree, Help& help, MessageBoxes& boxes, const QString& prefix) {
  QDir folder(QDir::temp().filePath("starfolds-pictures"));  // the pictures show its name
  folder.removeRecursively();
  qputenv("HOME", folder.path().toLocal8Bit());
  for (const char* path : {"Documents", "Music", "Universes/Old"}) folder.mkpath(path);
  for (const char* name : {"clockwork", "fern-house", "quiet-night"}) {
    QFile(folder.filePath(QString("Universes/") + name + ".sfd")).open(QIODevice::WriteOnly);
  }
  RegistryWrite(tree, sections::kTemplate, "Path_Dir", folder.filePath("Universes").toStdString());
  const auto take = [&](bool open, const QString& name) {
    FrmFileIo dialog({tree, help, boxes, "/", {}, [&](const std::string&, ProgressPicture* bar) {
                        DrawProgress(bar, 2, 3);
                        dialog.grab().save(prefix + name + ".png");
                        return std::optional<std::string>("enough");
                      }});
    QTimer::singleShot(300, &dialog, [&] {
      Part<QLineEdit>(dialog, "txtFile").setText("quiet-night.sfd");
      if (open) {
        dialog.grab().save(prefix + name + ".png");
      } else {
        Part<QPushButton>(dialog, "cmdOK").click();
      }
      dialog.reject();
    });
    dialog.ChooseTemplate(open, true, "Select Template to Open",
                          "Starfold Templates (*.sfd)|*.sfd|All Files (*.*)|*.*|", "sfd");
  };
  take(true, "template-open");
  take(false, "template-save");
  folder.removeRecursively();
}

/// The number of frames that the run in the About box is shown for, and a page of the credits.
constexpr int kAboutFrames = 200;
constexpr int kCreditsMs = 2600;

/// Processes Qt's events in each pump.
class EventsPump : public CountedPump {
 public:
  std::function<void()> OnEach;
  void PumpEvents() override {
    QApplication::processEvents();
    if (OnEach) OnEach();
  }
};

void TakeAbout(ProcessState& process, Help& help, const QString& prefix) {
  EventsPump events;
  process.Events = &events;
  FrmAbout about({process, help, "0.1.0", [] { return 1U; }});
  int frame = 0;
  events.OnEach = [&] {
    if (++frame != kAboutFrames) return;
    about.grab().save(prefix + "about.png");
    about.close();
  };
  about.exec();

  FrmCredits credits(1);
  QTimer::singleShot(kCreditsMs, &credits, [&] {
    credits.grab().save(prefix + "credits.png");
    credits.close();
  });
  credits.exec();
}

void TakeHelp(KeyValueTree& tree, DesktopServices& desktop, MessageBoxes& boxes,
              const QString& prefix) {
  HelpWindow help(tree, desktop, boxes);
  help.ShowTopic(help::kMolecule);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* viewer = qobject_cast<HelpViewer*>(window);
    if (!viewer) continue;
    viewer->resize(900, 640);
    Take(*viewer, prefix + "help.png");
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (argc > 3) InstallTranslation(argv[3]);
  const QString look = argv[2];
  if (look == "dark") QApplication::setPalette(DarkPalette());
  ShowUncheckedBoxes(application);
  MemoryTree tree;
  StoreFactory(tree);
  MemoryFiles disk;
  MemoryDesktop desktop;
  ScriptedMessageBoxes boxes;
  MemoryHelp help;
  CountedPump events;
  static ProcessState process;  // large
  process.Tree = &tree;
  process.Events = &events;
  process.Desktop = &desktop;
  FrmProps dialog({process, tree, boxes, disk, help, "/", "/", [] { return 1U; }});
  dialog.Open();
  dialog.resize(argc > 5 ? QSize(std::atoi(argv[4]), std::atoi(argv[5])) : QSize(1280, 700));
  QDir().mkpath(argv[1]);
  const QString prefix = QString(argv[1]) + "/" + look + "-";
  TakePictures(dialog, prefix);
  TakeAdvanced(tree, help, prefix);
  TakeIdle(tree, help, prefix);
  TakeFileIo(tree, help, boxes, prefix);
  FrmSystemDiag diagnostics({tree, desktop, boxes, help, {"0.1.0", "settings.db"}, {}});
  diagnostics.ShowInPlace();
  Take(diagnostics, prefix + "diagnostics.png");
  TakeAbout(process, help, prefix);
  TakeHelp(tree, desktop, boxes, prefix);
  return 0;
}
