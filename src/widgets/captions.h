// The captions by which the processes of the saver find each other's windows.
#pragma once

namespace starfolds {

/// Of the saver's window, and of the application window where it can be resized. The latter is
/// hidden from the search by caption, so that it keeps no saver from starting.
inline constexpr char kSaverCaption[] = "TSLN:Starfolds 4.1a";
/// Of the preview inside a host's window.
inline constexpr char kPreviewCaption[] = "TSLN:Preview Starfolds 4.1a";
/// Of the properties dialog.
inline constexpr char kPropertiesCaption[] = "Starfold Properties";

}  // namespace starfolds
