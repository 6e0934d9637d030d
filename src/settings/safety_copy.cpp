#include "settings/safety_copy.h"

#include "platform/user_text.h"
#include "settings/product.h"

namespace starfolds {

std::string SafetyCopyPath(PropertySettings& settings) {
  const bool beside = settings.Disk.CanWriteFolder(settings.ProgramFolder);
  std::string path = beside ? settings.ProgramFolder : settings.UserFolder;
  if (!path.ends_with('/') && !path.ends_with('\\')) path += '/';
  return path + "propsave.sfd";
}

void SaveSafetyCopy(PropertySettings& settings, PropertiesDialog& dialog,
                    ProgressPicture* picture) {
  settings.Template.TemplateFileName = SafetyCopyPath(settings);
  if (const auto fault = SaveTemplate(settings, dialog, picture)) {
    settings.Boxes.Show({STARFOLDS_TEXT("The current settings could not be saved to:\n%1"),
                         {settings.Template.TemplateFileName},
                         *fault},
                        BoxStyle::Exclamation, std::string(kProductName));
  }
}

}  // namespace starfolds
