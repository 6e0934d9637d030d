// The dialog shown once to a new user, and after an upgrade.
#pragma once

#include <QDialog>
#include <functional>

#include "platform/help.h"
#include "settings/property_flows.h"
#include "widgets/picture_box.h"

class QPushButton;
class QVBoxLayout;

namespace starfolds {

/// Writes the safety copy of the settings, and shows its progress in the picture.
using SafetyCopy = std::function<void(ProgressPicture*)>;

class FrmWelcome : public QDialog {
  Q_OBJECT

 public:
  FrmWelcome(const WelcomePage& page, SafetyCopy saveCopy, Help& helpBook,
             QWidget* parent = nullptr);

  /// Whether the user chose the factory settings; then the safety copy has been written.
  bool ResetRequested() const { return resetRequested_; }

  void reject() override;

 private:
  void AddBanner();
  void AddText(const WelcomePage& page);
  void AddButtons(const WelcomePage& page);
  void Reset();

  SafetyCopy saveCopy_;
  bool resetRequested_ = false;
  bool saving_ = false;
  QVBoxLayout* column_ = nullptr;  // below the banner
  QPushButton* cmdReset_ = nullptr;
  QPushButton* cmdDismiss_ = nullptr;
  PictureBox* picStatus_ = nullptr;
};

/// Shows the dialog over `parent` until it is dismissed. True if the user chose the reset.
bool RunWelcome(QWidget* parent, const WelcomePage& page, const SafetyCopy& saveCopy,
                Help& helpBook);

}  // namespace starfolds
