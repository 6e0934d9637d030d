// What is in a template, beside the list of files.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

#include "platform/files.h"
#include "settings/records.h"
#include "widgets/elided_label.h"
#include "widgets/still_service.h"

namespace starfolds {

/// Shows stills of the most frequent bodies of a template, its numbers of stars and starfolds, and
/// which bodies it has. Reads the file when the chosen name has not changed for a moment.
class TemplatePreview : public QWidget {
  Q_OBJECT

 public:
  /// `disk` and `stills` must outlive the preview.
  TemplatePreview(Files& disk, StillService& stills, QWidget* parent = nullptr);

  /// Shows the template at a path; nothing if there is none.
  void ShowFile(const QString& path);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Read();
  void ShowRecords(const SettingsRecords& records);

  Files& disk_;
  StillService& stills_;
  QTimer pause_;
  QString path_;
  std::vector<StillKey> bodies_;  // the most frequent ones first
  QWidget* picture_;
  ElidedLabel* name_;
  QLabel* facts_;
};

}  // namespace starfolds
