// Templates in the properties dialog: entries of the File menu, and dropped files.
#pragma once

#include <QMenu>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/help.h"
#include "settings/property_flows.h"
#include "widgets/still_service.h"

namespace starfolds {

/// The dialog that templates are loaded into and saved from. All members must outlive the menu.
struct TemplateHost {
  QWidget& Window;
  PropertySettings& Settings;
  PropertiesDialog& Dialog;
  Help& HelpBook;
  /// Stores values that are still being edited in the records and boxes.
  std::function<void()> Settle;
  /// Called after a template was loaded.
  std::function<void()> Loaded;
  /// Shows the still picture in the preview again, after the progress.
  std::function<void()> ShowStill;
  /// Called before a template is loaded; `what` names the change.
  std::function<void(const QString& what)> AboutToChange;
  /// Shows what just happened.
  std::function<void(const QString& text)> Say;
  StillService* Stills = nullptr;
};

class TemplateMenu : public QObject {
  Q_OBJECT

 public:
  explicit TemplateMenu(TemplateHost host);

  /// Adds "Open", "Open Recent", "Save" and "Save As".
  void AddTo(QMenu& file);

  /// Asks for a name, and saves the template under it.
  void SaveAs() { Choose(false); }

  /// Copies a link to the settings of the dialog, for the page at this address, and says so.
  void ShareAsLink(const std::string& page);

  /// While disabled, drops are refused as well.
  void SetEnabled(bool enabled);

 signals:
  /// A template file was dropped onto the window.
  void Dropped(const QString& path);

 protected:
  /// Handles drag events of the dialog's window.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Open() { Choose(true); }
  void ListRecent();
  void Save();
  void Choose(bool open);
  void OpenDropped(const QString& path);
  void RunInPreview(bool open, const std::string& path);

  std::optional<std::string> LoadFrom(const std::string& path, ProgressPicture* picture);
  std::optional<std::string> SaveTo(const std::string& path, ProgressPicture* picture);
  TemplateFile& File() { return host_.Settings.Template; }

  TemplateHost host_;
  std::vector<QAction*> entries_;
  QMenu* recent_ = nullptr;
  bool enabled_ = true;
};

}  // namespace starfolds
