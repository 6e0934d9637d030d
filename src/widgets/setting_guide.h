// Explains the setting that a control edits, in its place.
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/help.h"
#include "settings/fields.h"

namespace starfolds {

/// The setting that a control edits at present.
struct GuidedSetting {
  std::string Name;     // stored name
  std::string Default;  // as it is stored; of a list the position
  int Style = kAnyStyle;
};

template <class Record>
GuidedSetting Guided(const Field<Record>& field, int style = kAnyStyle) {
  return {std::string(field.Name), DefaultText(field), style};
}

/// Gives a number box, a list or a check box a tool tip with what the help says of its setting, the
/// range and the default, F1 to that section, and "Back to Default" in its context menu. Belongs to
/// the control. `help` must outlive it.
class SettingGuide : public QObject {
  Q_DECLARE_TR_FUNCTIONS(starfolds::SettingGuide)

 public:
  using Source = std::function<GuidedSetting()>;
  SettingGuide(QWidget& control, Help& help, Source setting);

  /// The tool tip, in lines of readable length.
  QString Tip() const;
  /// Enters the default.
  void ResetToDefault();

  /// Opens the help at the setting of the control with the focus. False if that control has no
  /// guide.
  static bool ShowHelpOf(const QWidget* focused);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void ShowMenu(const QPoint& place);
  QString DefaultShown() const;

  QWidget& control_;
  Help& help_;
  Source setting_;
};

}  // namespace starfolds
