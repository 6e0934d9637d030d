// Templates in the properties dialog: the File menu's entries, and files that are dropped.
#pragma once

#include <QMenu>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/help.h"
#include "settings/property_flows.h"

namespace starfolds {

/// The dialog that the templates are loaded into and saved from. All of it outlives the menu.
struct TemplateHost {
  QWidget& Window;
  PropertySettings& Settings;
  PropertiesDialog& Dialog;
  Help& HelpBook;
  /// Brings into the records and boxes what is still being edited.
  std::function<void()> Settle;
  /// A template has been loaded.
  std::function<void()> Loaded;
  /// Shows in the preview what it showed before the progress.
  std::function<void()> ShowStill;
};

class TemplateMenu : public QObject {
  Q_OBJECT

 public:
  explicit TemplateMenu(TemplateHost host);

  /// Adds "Open", "Save" and "Save As".
  void AddTo(QMenu& file);

  /// Asks for a name, and saves there.
  void SaveAs() { Choose(false); }

  /// While it is disabled nothing can be dropped, either.
  void SetEnabled(bool enabled);

 signals:
  /// A template was dropped onto the window.
  void Dropped(const QString& path);

 protected:
  /// Watches the dialog's window for what is dragged over it.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Open() { Choose(true); }
  void Save();
  void Choose(bool open);
  void OpenDropped(const QString& path);
  void RunInPreview(bool open, const std::string& path);

  std::optional<std::string> LoadFrom(const std::string& path, ProgressPicture* picture);
  std::optional<std::string> SaveTo(const std::string& path, ProgressPicture* picture);
  TemplateFile& File() { return host_.Settings.Template; }

  TemplateHost host_;
  std::vector<QAction*> entries_;
  bool enabled_ = true;
};

}  // namespace starfolds
