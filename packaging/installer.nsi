; The installer. packaging/make_package.sh calls it with VERSION, OUTPUT and LISTS, the folder of the two lists of
; files; paths in them are relative to the current folder.
;
;   setup.exe [/S] [/HOST=folder of the host] [/D=folder of the product]
;
; /S installs without questions; /D must come last and takes no quotes.

Target amd64-unicode
SetCompressor /SOLID lzma
!include LogicLib.nsh
!include FileFunc.nsh

!define PRODUCT "Zorva Kestrel Studio"
!define PRODUCT_KEY "SOFTWARE\Zorva Animations"
!define UNINSTALL_KEY "SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
!define HOST_KEY "SOFTWARE\Autodesk\3dsMax\12.0\MAX-1:409"

Name "${PRODUCT} v9.2"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Zorva Animations"
RequestExecutionLevel admin
VIProductVersion "${VERSION}"
VIAddVersionKey /LANG=1033 ProductName "${PRODUCT}"
VIAddVersionKey /LANG=1033 FileDescription "${PRODUCT} setup"
VIAddVersionKey /LANG=1033 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1033 CompanyName "Zorva Animations"
VIAddVersionKey /LANG=1033 LegalCopyright "Zorva Animations"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Var HostFolder

Function .onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/HOST=" $HostFolder
    ${If} ${Errors}
        SetRegView 64
        ReadRegStr $HostFolder HKLM "${HOST_KEY}" "Installdir"
    ${EndIf}
FunctionEnd

Section
    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    ; The plug-in looks for the product in the 32-bit part of the registry.
    SetRegView 32
    WriteRegStr HKLM "${PRODUCT_KEY}" "path" "$INSTDIR"

    ; The host searches the folders that its plugin.ini names.
    ${If} $HostFolder != ""
    ${AndIf} ${FileExists} "$HostFolder\plugin.ini"
        WriteINIStr "$HostFolder\plugin.ini" "Directories" "${PRODUCT}" "$INSTDIR\kestrelstudio\plugins\win\x64"
    ${Else}
        StrCpy $HostFolder ""
        DetailPrint "No host was found. Add $INSTDIR\kestrelstudio\plugins\win\x64 to its plug-in paths."
    ${EndIf}

    SetRegView 64
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Zorva Animations"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "HostFolder" "$HostFolder"
SectionEnd

Section Uninstall
    SetRegView 64
    ReadRegStr $HostFolder HKLM "${UNINSTALL_KEY}" "HostFolder"
    ${If} $HostFolder != ""
        DeleteINIStr "$HostFolder\plugin.ini" "Directories" "${PRODUCT}"
    ${EndIf}
    DeleteRegKey HKLM "${UNINSTALL_KEY}"

    SetRegView 32
    DeleteRegValue HKLM "${PRODUCT_KEY}" "path"
    DeleteRegValue HKLM "${PRODUCT_KEY}" "log"
    DeleteRegKey /ifempty HKLM "${PRODUCT_KEY}"

    !include "${LISTS}/uninstall.nsh"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
SectionEnd
