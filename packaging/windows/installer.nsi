; The installer: for one user, without administrator rights. Called by tools/release with
;   VERSION, BUILD  of the program
;   STAGE           the folder with all files of the program
;   OUTPUT          the installer to make
;   FILES           a script that installs the files (made from STAGE)
;   UNFILES         a script that removes exactly these files
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include "MUI2.nsh"
!include "FileFunc.nsh"

!define NAME "Verdalis"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"

VIProductVersion "${VERSION}.${BUILD}"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs ${NAME}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "${NAME}"
VIAddVersionKey "LegalCopyright" "Free software under the GNU General Public License, version 3"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\verdalis.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!define MUI_FINISHPAGE_NOAUTOCLOSE

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Tells the desktop that the type of farm files has changed.
!macro RefreshDesktop
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; A program that runs cannot be replaced. Ends the installer, or asks to close the program.
!macro RequireClosed PREFIX
  Function ${PREFIX}RequireClosed
    IfFileExists "$INSTDIR\verdalis.exe" 0 closed
    again:
      ClearErrors
      FileOpen $0 "$INSTDIR\verdalis.exe" a
      IfErrors 0 free
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} is open. Please save your farm and close ${NAME}, then choose Retry." /SD IDCANCEL IDRETRY again
      SetErrorLevel 3
      Quit
    free:
      FileClose $0
    closed:
  FunctionEnd
!macroend
!insertmacro RequireClosed ""
!insertmacro RequireClosed "un."

Section "Install"
  Call RequireClosed
  SetOverwrite on
  !include "${FILES}"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\verdalis.exe" "" "$INSTDIR\verdalis.exe" 0 SW_SHOWNORMAL "" "Plan crops and irrigation water for the most net return"

  WriteRegStr HKCU "Software\Classes\.verdalis" "" "Verdalis.Farm"
  WriteRegStr HKCU "Software\Classes\.verdalis" "Content Type" "application/x-verdalis-farm"
  WriteRegStr HKCU "Software\Classes\Verdalis.Farm" "" "Verdalis Farm"
  WriteRegStr HKCU "Software\Classes\Verdalis.Farm\DefaultIcon" "" '"$INSTDIR\verdalis.exe",0'
  WriteRegStr HKCU "Software\Classes\Verdalis.Farm\shell\open\command" "" '"$INSTDIR\verdalis.exe" "%1"'

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\verdalis.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" "$0"
  !insertmacro RefreshDesktop
SectionEnd

; Removes what was installed and nothing else: farms, crops and inputs of the user stay, wherever they are.
Section "Uninstall"
  Call un.RequireClosed
  !include "${UNFILES}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKCU "Software\Classes\Verdalis.Farm"
  ReadRegStr $0 HKCU "Software\Classes\.verdalis" ""
  StrCmp $0 "Verdalis.Farm" 0 +2
    DeleteRegKey HKCU "Software\Classes\.verdalis"
  DeleteRegKey HKCU "${UNINSTALL}"
  !insertmacro RefreshDesktop
SectionEnd
