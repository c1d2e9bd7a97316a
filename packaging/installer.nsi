; The installer: lays out the files, registers the library of each architecture with the system's own regsvr32, lists
; itself among the installed programs, and takes all that back. Works without windows under /S; /D=folder, the last
; argument, without quotes, names the folder. ./run package gives it
;   VERSION, OUT_FILE, SIZE_KB  the version, the installer's file and the size of what it installs
;   TARGET                      amd64-unicode or x86-unicode: where the installer itself runs
;   FILE_LIST                   the macros InstallFiles and RemoveFiles, one line a file

Unicode true
Target ${TARGET}
SetCompressor /SOLID lzma
!include LogicLib.nsh
!include x64.nsh
; In a 64-bit installer ${RunningX64} is a constant, and one of its branches is never jumped to.
!pragma warning disable 6012

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\QorlTST"
!include "${FILE_LIST}"

Name "QorlTST ${VERSION}"
OutFile "${OUT_FILE}"
BrandingText "QorlTST ${VERSION}"
RequestExecutionLevel admin
ManifestSupportedOS all
ManifestDPIAware true
ShowInstDetails show
ShowUninstDetails show
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "FileDescription" "QorlTST installer"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" ""
VIAddVersionKey /LANG=0 "ProductName" "QorlTST"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; The regsvr32 of each architecture; empty where the system has none.
Var Registrar64
Var Registrar32

; What installer and uninstaller both do; the functions of the latter bear the prefix "un.".
!macro DefineCommon un

; On a 64-bit system the entry among the installed programs stands with the 64-bit ones, whatever the installer is.
Function ${un}FindRegistrars
  StrCpy $Registrar64 ""
  StrCpy $Registrar32 "$SYSDIR\regsvr32.exe"
  ${If} ${RunningX64}
    SetRegView 64
    !if ${NSIS_PTR_SIZE} > 4
      StrCpy $Registrar64 "$SYSDIR\regsvr32.exe"
    !else
      StrCpy $Registrar64 "$WINDIR\Sysnative\regsvr32.exe"
    !endif
    StrCpy $Registrar32 "$WINDIR\SysWOW64\regsvr32.exe"
    ; A 64-bit system may come without its 32-bit half.
    ${IfNot} ${FileExists} $Registrar32
      StrCpy $Registrar32 ""
    ${EndIf}
  ${EndIf}
FunctionEnd

; Takes back everything; what was not there is no error. A library in use goes when the system starts next time.
Function ${un}RemoveAll
  ; A folder that a process stands in cannot be removed.
  SetOutPath $TEMP
  ${If} $Registrar32 != ""
  ${AndIf} ${FileExists} "$INSTDIR\x86\QorlTST.dll"
    ExecWait '"$Registrar32" /s /u "$INSTDIR\x86\QorlTST.dll"'
  ${EndIf}
  ${If} $Registrar64 != ""
  ${AndIf} ${FileExists} "$INSTDIR\x64\QorlTST.dll"
    ExecWait '"$Registrar64" /s /u "$INSTDIR\x64\QorlTST.dll"'
  ${EndIf}
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
FunctionEnd

!macroend
!insertmacro DefineCommon ""
!insertmacro DefineCommon "un."

; Ends the installation with exit code 2 and leaves nothing behind.
!macro GiveUp reason
  Call RemoveAll
  SetErrorLevel 2
  Abort "${reason}"
!macroend

Function .onInit
  Call FindRegistrars
  ; Empty unless /D named a folder.
  ${If} $INSTDIR == ""
    ReadRegStr $INSTDIR HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${EndIf}
  ${If} $INSTDIR == ""
    StrCpy $INSTDIR "$PROGRAMFILES32\QorlTST"
    ${If} ${RunningX64}
      StrCpy $INSTDIR "$PROGRAMFILES64\QorlTST"
    ${EndIf}
  ${EndIf}
FunctionEnd

Function un.onInit
  Call un.FindRegistrars
FunctionEnd

; Told where its folder is, an uninstaller works in place, so that it can be waited for, and cannot remove itself.
Function RemovePrevious
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    DetailPrint "Removing the version in $0"
    ExecWait '"$0\uninstall.exe" /S _?=$0'
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}
FunctionEnd

; $0: regsvr32, $1: the library. $2: 0, or why it failed.
Function Register
  ClearErrors
  ExecWait '"$0" /s "$1"' $2
  ${If} ${Errors}
    StrCpy $2 "not started"
  ${EndIf}
FunctionEnd

Function RegisterAll
  StrCpy $3 ""
  ${If} $Registrar64 != ""
    StrCpy $0 $Registrar64
    StrCpy $1 "$INSTDIR\x64\QorlTST.dll"
    Call Register
    ${If} $2 != 0
      !insertmacro GiveUp "The library for 64-bit programs was not registered: $2"
    ${EndIf}
    StrCpy $3 "Registered for 64-bit programs. "
  ${EndIf}
  ${If} $Registrar32 == ""
    StrCpy $3 "$3Not registered for 32-bit programs: this system runs none."
  ${Else}
    StrCpy $0 $Registrar32
    StrCpy $1 "$INSTDIR\x86\QorlTST.dll"
    Call Register
    ${If} $2 != 0
      !insertmacro GiveUp "The library for 32-bit programs was not registered: $2"
    ${EndIf}
    StrCpy $3 "$3Registered for 32-bit programs."
  ${EndIf}
  DetailPrint $3
FunctionEnd

Function ListAsInstalled
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "QorlTST ${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "Comments" $3
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" $INSTDIR
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE_KB}
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
FunctionEnd

Section
  Call RemovePrevious
  ClearErrors
  !insertmacro InstallFiles
  ${If} ${Errors}
    !insertmacro GiveUp "Not all files could be written."
  ${EndIf}
  Call RegisterAll
  Call ListAsInstalled
  ${If} ${Errors}
    !insertmacro GiveUp "The installation could not be listed among the installed programs."
  ${EndIf}
SectionEnd

Section un.
  Call un.RemoveAll
SectionEnd
