; Sets Terramark up, and makes the uninstaller. dist/make-windows gives VERSION (1.0), NUMBERS
; (1.0.0.0), COPYRIGHT, OUTPUT, PICTURES, the folder that draw_icons.py filled, and LIST, a file
; with the macros InstallFiles, DeleteFiles and RemoveFolders.
;
;   setup.exe [/S] [/AllUsers | /CurrentUser] [/D=FOLDER]
;   uninstall.exe [/S]
;
; /S asks nothing. The error level is then 0, or 2 when it was not done, since Terramark is open or
; a file could not be written, or 740 when only an administrator may do it.

Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all
; Whoever sets it up for themselves alone is not asked for an administrator.
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include "${LIST}"

Name "Terramark"
Caption "Terramark ${VERSION} Setup"
BrandingText "Terramark ${VERSION}"
OutFile "${OUTPUT}"
!define FOLDER_OF_USER "$LOCALAPPDATA\Programs\Terramark"
InstallDir "${FOLDER_OF_USER}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${NUMBERS}"
VIAddVersionKey "ProductName" "Terramark"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Terramark Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Terramark developers"
VIAddVersionKey "LegalCopyright" "${COPYRIGHT}"

!define ALL_APPS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define APPS_KEY "${ALL_APPS_KEY}\Terramark"
!define TYPE_KEY "Software\Classes\Terramark.Layout"
!define ENDING_KEY "Software\Classes\.tml"

!define MUI_ICON "${PICTURES}/terramark.ico"
!define MUI_UNICON "${PICTURES}/terramark.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}/setup.bmp"
Page custom ModePage LeaveModePage
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Open Terramark"
!define MUI_FINISHPAGE_RUN_FUNCTION OpenTerramark
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var ForAll ; 1: for all users
Var ModeGiven ; 1: by the command line
Var FolderGiven ; by the command line, or empty

; Says what is wrong and stops: Stop TEXT LEVEL.
!macro Stop text level
  MessageBox MB_OK|MB_ICONSTOP `${text}` /SD IDOK
  SetErrorLevel ${level}
  Abort `${text}`
!macroend

; Deletes a sample map, but not one that somebody saved another map over. FROM is the file that the
; setup has.
!macro DeleteSample file from
  ${If} ${FileExists} "${file}"
    GetFileTime "${file}" $0 $1
    GetFileTimeLocal "${from}" $2 $3
    ${If} $0 = $2
    ${AndIf} $1 = $3
      Delete "${file}"
    ${EndIf}
  ${EndIf}
!macroend

; What setup and uninstaller have in common; the names in the uninstaller begin with "un.".
!macro Common un
  ; Leaves 1 on the stack where an administrator's rights are at hand, or else 0.
  Function ${un}IsAdmin
    UserInfo::GetAccountType
    Exch $0
    ${If} $0 == "Admin"
      StrCpy $0 1
    ${Else}
      StrCpy $0 0
    ${EndIf}
    Exch $0
  FunctionEnd

  ; Windows lets nobody write to a program that runs.
  Function ${un}StopWhileOpen
    Push $0
    ${For} $R9 1 2
      StrCpy $R8 "$INSTDIR\terramark.exe"
      ${If} $R9 = 2
        StrCpy $R8 "$INSTDIR\terramark-check.exe"
      ${EndIf}
      ${Do}
        ${IfNot} ${FileExists} "$R8"
          ${Break}
        ${EndIf}
        ClearErrors
        FileOpen $0 "$R8" a
        ${IfNot} ${Errors}
          FileClose $0
          ${Break}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Terramark is open. Save your map and close it, then try again.$\r$\n$\r$\n$R8" \
            /SD IDCANCEL IDCANCEL`
          SetErrorLevel 2
          Abort "Terramark is open: $R8"
        ${EndIf}
      ${Loop}
    ${Next}
    Pop $0
  FunctionEnd
!macroend
!insertmacro Common ""
!insertmacro Common "un."

; Takes over $ForAll: the parts of the registry and the start menu, and the folder.
Function UseMode
  SetShellVarContext current
  StrCpy $INSTDIR "${FOLDER_OF_USER}"
  ${If} $ForAll = 1
    SetShellVarContext all
    StrCpy $INSTDIR "$PROGRAMFILES64\Terramark"
  ${EndIf}
  ReadRegStr $0 SHCTX "${APPS_KEY}" "InstallLocation"
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
  ${If} $FolderGiven != ""
    StrCpy $INSTDIR $FolderGiven
  ${EndIf}
FunctionEnd

; Begins anew, for all users, with the rights of an administrator, whom Windows asks for. Comes back
; when there is none.
Function BeginAsAdmin
  StrCpy $0 "/AllUsers"
  ${If} $FolderGiven != ""
    StrCpy $0 "$0 /D=$FolderGiven"
  ${EndIf}
  ClearErrors
  ExecShell "runas" "$EXEPATH" "$0"
  ${IfNot} ${Errors}
    SetErrorLevel 0
    Quit
  ${EndIf}
FunctionEnd

Function .onInit
  ${If} $INSTDIR != "${FOLDER_OF_USER}"
    StrCpy $FolderGiven $INSTDIR
  ${EndIf}
  Call IsAdmin
  Pop $2
  StrCpy $ForAll 0
  StrCpy $ModeGiven 1
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $ForAll 1
  ${Else}
    ClearErrors
    ${GetOptions} $0 "/CurrentUser" $1
    ${If} ${Errors}
      StrCpy $ModeGiven 0
      ; As it was set up before. Nobody is there to call an administrator when it is silent.
      ReadRegStr $0 HKCU "${APPS_KEY}" "InstallLocation"
      ReadRegStr $1 HKLM "${APPS_KEY}" "InstallLocation"
      ${If} $0 == ""
      ${AndIf} $1 != ""
        ${IfNot} ${Silent}
        ${OrIf} $2 = 1
          StrCpy $ForAll 1
        ${EndIf}
      ${EndIf}
    ${EndIf}
  ${EndIf}

  ${If} $ForAll = 1
  ${AndIf} $ModeGiven = 1
  ${AndIf} $2 = 0
    ${IfNot} ${Silent}
      Call BeginAsAdmin
    ${EndIf}
    !insertmacro Stop "Only an administrator can set Terramark up for all users." 740
  ${EndIf}
  Call UseMode
FunctionEnd

Var ForAllButton

Function ModePage
  ${If} $ModeGiven = 1
    Abort ; passes the page over
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Who is to use Terramark?" "Terramark is an editor for maps."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateFirstRadioButton} 0 20u 100% 12u "Only &me"
  Pop $1
  ${NSD_CreateAdditionalRadioButton} 0 40u 100% 12u \
    "&All users of this computer (takes an administrator)"
  Pop $ForAllButton
  ${If} $ForAll = 1
    StrCpy $1 $ForAllButton
  ${EndIf}
  ${NSD_Check} $1
  ${NSD_SetFocus} $1
  nsDialogs::Show
FunctionEnd

Function LeaveModePage
  ${NSD_GetState} $ForAllButton $ForAll
  Call IsAdmin
  Pop $0
  ${If} $ForAll = 1
  ${AndIf} $0 = 0
    Call BeginAsAdmin
    Abort ; stays on the page
  ${EndIf}
  Call UseMode
FunctionEnd

; By way of the start menu: what an administrator's setup opens itself has the same rights.
Function OpenTerramark
  Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\Terramark.lnk"'
FunctionEnd

; Has an older Terramark's own uninstaller remove it from the folder on the stack.
Function RemoveOlder
  Exch $0
  ${If} ${FileExists} "$0\uninstall.exe"
    ClearErrors
    ; Without _?= it would go on in a copy of itself that nobody waits for.
    ExecWait '"$0\uninstall.exe" /S _?=$0' $1
    ${If} ${Errors}
    ${OrIf} $1 <> 0
      !insertmacro Stop "The older Terramark in $0 cannot be removed. If it is open, close it." 2
    ${EndIf}
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}
  Pop $0
FunctionEnd

Section "Terramark" Terramark
  Call StopWhileOpen
  ; An older one, wherever it is, and one that the other mode has set up in this folder.
  ReadRegStr $0 SHCTX "${APPS_KEY}" "InstallLocation"
  ReadRegStr $2 HKCU "${APPS_KEY}" "InstallLocation"
  ReadRegStr $3 HKLM "${APPS_KEY}" "InstallLocation"
  ${If} $0 == ""
    ${If} $2 == $INSTDIR
    ${OrIf} $3 == $INSTDIR
      StrCpy $0 $INSTDIR
    ${EndIf}
  ${EndIf}
  ${If} $0 != ""
    Push $0
    Call RemoveOlder
  ${EndIf}

  ; First what removes it, should the rest fail.
  ClearErrors
  SetOutPath $INSTDIR
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    !insertmacro Stop "Nothing can be written into $INSTDIR." 2
  ${EndIf}
  WriteRegStr SHCTX "${APPS_KEY}" "DisplayName" "Terramark"
  WriteRegStr SHCTX "${APPS_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${APPS_KEY}" "Publisher" "Terramark developers"
  WriteRegStr SHCTX "${APPS_KEY}" "DisplayIcon" "$INSTDIR\terramark.exe"
  WriteRegStr SHCTX "${APPS_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${APPS_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${APPS_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  SectionGetSize ${Terramark} $0
  WriteRegDWORD SHCTX "${APPS_KEY}" "EstimatedSize" $0
  WriteRegDWORD SHCTX "${APPS_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${APPS_KEY}" "NoRepair" 1

  ClearErrors
  !insertmacro InstallFiles
  ${If} ${Errors}
    !insertmacro Stop "Not all files could be written into $INSTDIR." 2
  ${EndIf}

  ; The dialogs for files begin in the folder where the program is started. That is where users keep
  ; what they make, and not the samples: in an installation for all nobody may save there. The
  ; samples lie in the folder of the program.
  StrCpy $OUTDIR "$DOCUMENTS"
  ${If} $ForAll = 1
    StrCpy $OUTDIR "%USERPROFILE%\Documents"
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\Terramark.lnk" "$INSTDIR\terramark.exe"

  ; Name and icon of a layout. It has no command to open it: the program takes no arguments, and
  ; would show an empty map. If another program has the ending, that keeps it.
  WriteRegStr SHCTX "${TYPE_KEY}" "" "Map Layout"
  WriteRegStr SHCTX "${TYPE_KEY}\DefaultIcon" "" "$INSTDIR\terramark.exe,-2"
  ReadRegStr $0 HKCR ".tml" ""
  ${If} $0 == ""
    WriteRegStr SHCTX "${ENDING_KEY}" "" "Terramark.Layout"
  ${EndIf}
  ${RefreshShellIcons}
SectionEnd

Function un.onInit
  StrCpy $ForAll 0
  SetShellVarContext current
  ReadRegStr $0 HKLM "${APPS_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $ForAll 1
    SetShellVarContext all
    Call un.IsAdmin
    Pop $0
    ${If} $0 = 0
      ${IfNot} ${Silent}
        ClearErrors
        ExecShell "runas" "$INSTDIR\uninstall.exe"
        ${IfNot} ${Errors}
          Quit
        ${EndIf}
      ${EndIf}
      !insertmacro Stop "Only an administrator can remove Terramark for all users." 740
    ${EndIf}
  ${EndIf}
FunctionEnd

Section "Uninstall"
  Call un.StopWhileOpen
  SetOutPath $TEMP ; a folder in use could not be removed
  ClearErrors
  !insertmacro DeleteFiles
  ${If} ${Errors}
    !insertmacro Stop "Not all files could be deleted from $INSTDIR." 2
  ${EndIf}
  Delete "$INSTDIR\uninstall.exe"
  ; Where something else lies in a folder, it stays.
  !insertmacro RemoveFolders
  RMDir "$INSTDIR"
  ${If} $INSTDIR == "${FOLDER_OF_USER}"
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}

  ; Not where another Terramark has been set up since.
  ReadRegStr $0 SHCTX "${APPS_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    DeleteRegKey SHCTX "${APPS_KEY}"
    ${If} $ForAll = 0
      DeleteRegKey /ifempty HKCU "${ALL_APPS_KEY}" ; a new user has none
    ${EndIf}
    Delete "$SMPROGRAMS\Terramark.lnk"
    DeleteRegKey SHCTX "${TYPE_KEY}"
    ReadRegStr $0 SHCTX "${ENDING_KEY}" ""
    ${If} $0 == "Terramark.Layout"
      DeleteRegValue SHCTX "${ENDING_KEY}" ""
      DeleteRegKey /ifempty SHCTX "${ENDING_KEY}"
    ${EndIf}
    ${RefreshShellIcons}
  ${EndIf}
SectionEnd
