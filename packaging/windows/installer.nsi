; The installer for Windows, built by pack.sh, which defines
;   VERSION, PACKAGE (the folder with the files to install), SETUP (the file to write) and
;   PARTS (a folder with templates.nsh, the commands that remove exactly the templates of PACKAGE, and
;         side.bmp, the picture of the last page).
;
; /S        without a window
; /ALLUSERS for all users, /CURRENTUSER for this one; else as before, else for all if that is allowed
; /SAVER    makes it the screen saver of this user
; /D=FOLDER for the program; the last argument, without quotes
;
; The uninstaller takes /S, /ALLUSERS and /CURRENTUSER as well, and
; /SETTINGS  also removes the settings of this user
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!define NAME "Starfolds"
!define TYPE "Tessellane.Starfolds.Template"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define DESKTOP "Control Panel\Desktop"

!define MULTIUSER_MUI
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME UninstallString
!define MULTIUSER_INSTALLMODE_FUNCTION FindPlaces
!define MULTIUSER_INSTALLMODE_UNFUNCTION un.FindPlaces
!include MUI2.nsh
!include MultiUser.nsh
!include FileFunc.nsh
!include WinMessages.nsh

Name "${NAME}"
OutFile "${SETUP}"
InstallDir "" ; empty unless /D= is given
BrandingText "${NAME} ${VERSION}"
ManifestDPIAware true
ShowInstDetails nevershow
ShowUninstDetails nevershow
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installer of the ${NAME} screen saver"
VIAddVersionKey CompanyName "Tessellane"
VIAddVersionKey LegalCopyright "Copyright (c) 2026 the Starfolds authors"

!define MUI_ICON "${__FILEDIR__}/starfolds.ico"
!define MUI_UNICON "${__FILEDIR__}/starfolds.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PARTS}/side.bmp"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Choose ${NAME} as the screen saver"
!define MUI_FINISHPAGE_RUN_FUNCTION OpenListOfSavers
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.HideSpace
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Var Given     ; the folder of /D=
Var Saver     ; the file that the system starts
Var Scenes    ; the folder of the templates

; The system lists the savers of its own folder, which only an administrator can write. For one user
; the saver lies beside the program, and is listed while it is that user's screen saver.
!macro FindPlaces
  ${If} $MultiUser.InstallMode == AllUsers
    StrCpy $Saver "$SYSDIR\starfolds.scr"
    StrCpy $Scenes "$APPDATA\Tessellane\templates" ; ProgramData: the saver finds them there
  ${Else}
    StrCpy $Saver "$INSTDIR\starfolds.scr"
    StrCpy $Scenes "$INSTDIR\templates"
  ${EndIf}
!macroend

Function FindPlaces
  ${If} $Given != ""
    StrCpy $INSTDIR $Given
  ${EndIf}
  !insertmacro FindPlaces
FunctionEnd

Function un.FindPlaces
  !insertmacro FindPlaces
FunctionEnd

Function .onInit
  SetRegView 64
  StrCpy $Given $INSTDIR
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS" $1
  ${IfNot} ${Errors}
    Call un.SelectSettings
  ${EndIf}
FunctionEnd

; The uninstaller needs no space, and says so otherwise.
Function un.HideSpace
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $0 $0 1023
  ShowWindow $0 ${SW_HIDE}
FunctionEnd

; A program that runs can be renamed but not removed: it is removed at the next start of the system.
!macro RemoveProgram FILE
  Delete "${FILE}"
  ${If} ${FileExists} "${FILE}"
    ${GetParent} "${FILE}" $0
    GetTempFileName $1 $0
    Delete $1
    Rename "${FILE}" $1
    Delete /REBOOTOK $1
  ${EndIf}
!macroend

Function OpenListOfSavers
  Exec '"$SYSDIR\rundll32.exe" desk.cpl,InstallScreenSaver $Saver'
FunctionEnd

; Without quotes, as the system stores it; so without blanks, if the volume has short names.
Function BecomeSaver
  GetFullPathName /SHORT $0 $Saver
  ${If} $0 == ""
    StrCpy $0 $Saver
  ${EndIf}
  WriteRegStr HKCU "${DESKTOP}" "SCRNSAVE.EXE" $0
  WriteRegStr HKCU "${DESKTOP}" "ScreenSaveActive" "1"
  System::Call 'user32::SystemParametersInfoW(i 0x11, i 1, p 0, i 3)' ; SPI_SETSCREENSAVEACTIVE
FunctionEnd

Function RegisterTemplates
  ReadRegStr $0 SHCTX "Software\Classes\.sfd" ""
  ${If} $0 == "" ; else it belongs to another program, and "Open with" lists this one
    WriteRegStr SHCTX "Software\Classes\.sfd" "" "${TYPE}"
  ${EndIf}
  WriteRegStr SHCTX "Software\Classes\.sfd\OpenWithProgids" "${TYPE}" ""
  WriteRegStr SHCTX "Software\Classes\${TYPE}" "" "Starfolds template"
  WriteRegStr SHCTX "Software\Classes\${TYPE}\DefaultIcon" "" "$INSTDIR\starfolds.exe,0"
  ; A double click shows the template and stores nothing.
  WriteRegStr SHCTX "Software\Classes\${TYPE}\shell" "" "preview"
  WriteRegStr SHCTX "Software\Classes\${TYPE}\shell\preview" "" "&Preview in a window"
  WriteRegStr SHCTX "Software\Classes\${TYPE}\shell\preview\command" "" \
    '"$INSTDIR\starfolds.exe" --window "%1"'
  ; The whole command line is the name of the file: without quotes, and in its long form.
  WriteRegStr SHCTX "Software\Classes\${TYPE}\shell\open" "" "&Open in the screen saver"
  WriteRegStr SHCTX "Software\Classes\${TYPE}\shell\open\command" "" '"$Saver" %L'
FunctionEnd

Function RegisterUninstaller
  StrCpy $0 '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" $0
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" "$0 /S"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "${NAME} screen saver"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\starfolds.exe,0"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "Tessellane"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
  SectionGetSize 0 $0
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" $0
FunctionEnd

Section "-Program"
  !insertmacro FindPlaces ; the page may have changed the folder
  !insertmacro RemoveProgram "$INSTDIR\starfolds.exe"
  !insertmacro RemoveProgram "$Saver"
  SetOutPath "$INSTDIR"
  File "/oname=starfolds.exe" "${PACKAGE}/starfolds.scr"
  File "${PACKAGE}/starfolds-render.exe" "${PACKAGE}/README.txt" "${PACKAGE}/LICENSE.txt"
  File "/oname=$Saver" "${PACKAGE}/starfolds.scr"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  SetOutPath "$Scenes"
  File "${PACKAGE}/templates/*.sfd"

  SetOutPath "$INSTDIR" ; the folder in which the shortcuts start
  CreateDirectory "$SMPROGRAMS\${NAME}"
  CreateShortcut "$SMPROGRAMS\${NAME}\${NAME}.lnk" "$INSTDIR\starfolds.exe" "--window"
  CreateShortcut "$SMPROGRAMS\${NAME}\${NAME} Settings.lnk" "$INSTDIR\starfolds.exe" "--settings"
  CreateShortcut "$SMPROGRAMS\${NAME}\Choose the Screen Saver.lnk" "$SYSDIR\rundll32.exe" \
    "desk.cpl,InstallScreenSaver $Saver" "$INSTDIR\starfolds.exe"
  Call RegisterTemplates
  Call RegisterUninstaller
  ${RefreshShellIcons}

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SAVER" $1
  ${IfNot} ${Errors}
    Call BecomeSaver
  ${EndIf}
SectionEnd

Section "un.Program" Program
  SectionIn RO
  GetFullPathName /SHORT $3 $Saver ; empty if the file is missing
  ReadRegStr $2 HKCU "${DESKTOP}" "SCRNSAVE.EXE"
  ${If} $2 != ""
    ${If} $2 == $Saver
    ${OrIf} $2 == $3
      DeleteRegValue HKCU "${DESKTOP}" "SCRNSAVE.EXE"
    ${EndIf}
  ${EndIf}
  !insertmacro RemoveProgram "$Saver"
  !insertmacro RemoveProgram "$INSTDIR\starfolds.exe"
  !insertmacro RemoveProgram "$INSTDIR\starfolds-render.exe"
  Delete "$INSTDIR\README.txt"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\uninstall.exe"
  !include "${PARTS}/templates.nsh"
  RMDir "$Scenes" ; stays if there are templates of others
  ${If} $MultiUser.InstallMode == AllUsers
    RMDir "$APPDATA\Tessellane"
  ${EndIf}
  SetOutPath "$TEMP" ; the current folder cannot be removed
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}\${NAME}.lnk"
  Delete "$SMPROGRAMS\${NAME}\${NAME} Settings.lnk"
  Delete "$SMPROGRAMS\${NAME}\Choose the Screen Saver.lnk"
  RMDir "$SMPROGRAMS\${NAME}"

  ReadRegStr $0 SHCTX "Software\Classes\.sfd" ""
  ${If} $0 == "${TYPE}"
    DeleteRegValue SHCTX "Software\Classes\.sfd" ""
  ${EndIf}
  DeleteRegValue SHCTX "Software\Classes\.sfd\OpenWithProgids" "${TYPE}"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.sfd\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.sfd"
  DeleteRegKey SHCTX "Software\Classes\${TYPE}"
  DeleteRegKey SHCTX "${UNINSTALL}"
  ${RefreshShellIcons}
SectionEnd

Section /o "un.My settings" Settings
  SetShellVarContext current
  Delete "$APPDATA\Tessellane\settings.db*"
  Delete "$APPDATA\Tessellane\former-settings-*.sfd"
  Delete "$APPDATA\Tessellane\propsave.sfd"
  RMDir "$APPDATA\Tessellane"
SectionEnd

Function un.SelectSettings
  !insertmacro SelectSection ${Settings}
FunctionEnd

LangString OfProgram ${LANG_ENGLISH} "The program, its templates and its shortcuts."
LangString OfSettings ${LANG_ENGLISH} \
  "Your own settings, which another version could still use. Those of other users are kept."
!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${Program} $(OfProgram)
  !insertmacro MUI_DESCRIPTION_TEXT ${Settings} $(OfSettings)
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END
