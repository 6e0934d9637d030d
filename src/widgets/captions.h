// The captions by which processes of the saver find each other's windows.
#pragma once

namespace starfolds {

/// The saver's window, and the application window if it is resizable. The latter is excluded from
/// the search by caption, so that it does not keep a saver from starting.
inline constexpr char kSaverCaption[] = "TSLN:Starfolds 4.1a";
/// The preview inside a host's window.
inline constexpr char kPreviewCaption[] = "TSLN:Preview Starfolds 4.1a";
/// The properties dialog.
inline constexpr char kPropertiesCaption[] = "Starfold Properties";

}  // namespace starfolds
