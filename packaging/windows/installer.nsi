; The installer of Windows, for one user and without an administrator's rights. scripts/make-windows-package runs it
; with the definitions VERSION, NUMBERS (four of them), STAGE (the folder to install), SIZE (in kB), OUT, and the file
; REMOVE, which holds the uninstaller's list of what was installed.
;
;   setup.exe /S                 without a question; 5 is given back while the program runs
;   setup.exe /S /D=C:\Folder    into this folder (the last word, without quotes)
;   uninstall.exe /S

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user

!include LogicLib.nsh
!include MUI2.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmark"

Name "Quillmark ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Quillmark"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
BrandingText " "
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${NUMBERS}"
VIFileVersion "${NUMBERS}"
VIAddVersionKey "ProductName" "Quillmark"
VIAddVersionKey "CompanyName" "Quillmark"
VIAddVersionKey "FileDescription" "Quillmark Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "quillmark.ico"
!define MUI_UNICON "quillmark.ico"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\quillmark.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Quillmark"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be opened for writing. Ends the setup with 5 then, and changes nothing.
!macro RefuseWhileRunning PROGRAM
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Quillmark is running. Please close it, then start this again." /SD IDOK
      SetErrorLevel 5
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend
!macro RefuseWhileAnyRuns
  !insertmacro RefuseWhileRunning "quillmark.exe"
  !insertmacro RefuseWhileRunning "quillmark-cli.exe"
  !insertmacro RefuseWhileRunning "quillmark-preview.exe"
!macroend

; What an older version had and this one has not must not stay: its own uninstaller takes it away. It waits for that one
; only when it is told the folder, and leaves the uninstaller itself, which is then written over.
!macro RemoveOlder
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
    ${If} $0 <> 0
      MessageBox MB_OK|MB_ICONEXCLAMATION "The older version could not be removed." /SD IDOK
      SetErrorLevel 6
      Quit
    ${EndIf}
  ${EndIf}
!macroend

Section
  !insertmacro RefuseWhileAnyRuns
  !insertmacro RemoveOlder
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "Quillmark could not be written to $INSTDIR." /SD IDOK
    SetErrorLevel 7
    Quit
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\Quillmark.lnk" "$INSTDIR\quillmark.exe"
  WriteRegStr HKCU "${KEY}" "DisplayName" "Quillmark"
  WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\quillmark.exe"
  WriteRegStr HKCU "${KEY}" "Publisher" "Quillmark"
  WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

; Only what was installed goes: the user's jobs stay, and whatever else was put into the folder.
Section Uninstall
  !insertmacro RefuseWhileAnyRuns
  !include "${REMOVE}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Quillmark.lnk"
  DeleteRegKey HKCU "${KEY}"
SectionEnd
