; The setup file of velCRO. deploy/windows/build gives VERSION, FOLDER (what is installed), ICON and OUT.
;   velCRO-<version>-setup.exe                       asks
;   velCRO-<version>-setup.exe /S /SERVER=<name>     a seat against a server, without a question
;   velCRO-<version>-setup.exe /S /SAMPLE            a seat to try out, on sample data
; More for a seat against a server: /USER= /PASSWORD= /COMPANY= /BRANCH=; last of all /D=<folder>.
; Without a question and without a choice the seat stays what it was.
Unicode true
Target amd64-unicode
ManifestSupportedOS Win10
ManifestDPIAware true
RequestExecutionLevel admin
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include x64.nsh

Name "velCRO"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES64\velCRO"
BrandingText "Velmara Retail Software"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "velCRO"
VIAddVersionKey ProductVersion "${VERSION}.0"
VIAddVersionKey FileVersion "${VERSION}.0"
VIAddVersionKey FileDescription "Setup of velCRO"
VIAddVersionKey CompanyName "Velmara Retail Software"
VIAddVersionKey LegalCopyright ""

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\velCRO"
!define OWN_KEY "Software\Velmara\velCRO"

Var Seat ; "server" or "sample"
Var Server
Var User
Var Password
Var Company
Var Branch
Var Configuration
Var ServerChoice
Var SampleChoice
Var ServerEdit
Var UserEdit
Var PasswordEdit
Var CompanyEdit
Var BranchEdit

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TEXT "This puts velCRO ${VERSION}, the customer repair orders of the Velmara retail suite, on this seat.$\r$\n$\r$\nClose velCRO before you go on, if it runs."
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Open velCRO"
!define MUI_FINISHPAGE_RUN_FUNCTION openProgram
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
Page custom askForSeat takeSeat
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Where the programs of the suite look for it: below the folder of 32-bit programs where there is one.
!macro findConfiguration
    StrCpy $Configuration "C:\Program Files"
    ${If} ${FileExists} "C:\Program Files (x86)\*.*"
        StrCpy $Configuration "C:\Program Files (x86)"
    ${EndIf}
    StrCpy $Configuration "$Configuration\Common Files\Microsoft Shared\MSHelp16\MSHelp16.cnf"
!macroend

Function .onInit
    ${IfNot} ${RunningX64}
        MessageBox MB_ICONSTOP "velCRO needs a 64-bit Windows 10 or later." /SD IDOK
        Abort
    ${EndIf}
    SetRegView 64
    !insertmacro findConfiguration
    ReadRegStr $0 HKLM "${OWN_KEY}" "Folder"
    ${If} $0 != ""
    ${AndIf} $INSTDIR == "$PROGRAMFILES64\velCRO"
        StrCpy $INSTDIR $0
    ${EndIf}
    ReadRegStr $Seat HKLM "${OWN_KEY}" "Seat"
    ${If} $Seat == ""
        StrCpy $Seat "sample"
        ${If} ${FileExists} $Configuration
            StrCpy $Seat "server"
        ${EndIf}
    ${EndIf}
    ReadINIStr $Server $Configuration "Common" "Host"
    ReadINIStr $User $Configuration "Common" "User"
    ReadINIStr $Password $Configuration "Common" "Pswd"
    ReadINIStr $Company $Configuration "Till" "Company"
    ReadINIStr $Branch $Configuration "Till" "Branch"

    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/SAMPLE" $R1
    ${IfNot} ${Errors}
        StrCpy $Seat "sample"
    ${EndIf}
    !macro takeOption name variable
        ClearErrors
        ${GetOptions} $R0 "/${name}=" $R1
        ${IfNot} ${Errors}
            StrCpy ${variable} $R1
            StrCpy $Seat "server"
        ${EndIf}
    !macroend
    !insertmacro takeOption "SERVER" $Server
    !insertmacro takeOption "USER" $User
    !insertmacro takeOption "PASSWORD" $Password
    !insertmacro takeOption "COMPANY" $Company
    !insertmacro takeOption "BRANCH" $Branch
    ${If} ${Silent}
    ${AndIf} $Seat == "server"
    ${AndIf} $Server == ""
        SetErrorLevel 3
        Abort
    ${EndIf}
FunctionEnd

; label, edit and their place, one under the other
!macro edit text value variable top
    ${NSD_CreateLabel} 16u ${top} 70u 10u "${text}"
    Pop $0
    ${NSD_CreateText} 90u ${top} 130u 12u "${value}"
    Pop ${variable}
!macroend

Function askForSeat
    !insertmacro MUI_HEADER_TEXT "This seat" "What shall velCRO work on?"
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateRadioButton} 0 0 100% 12u "This seat works against a &server"
    Pop $ServerChoice
    !insertmacro edit "Server:" $Server $ServerEdit 15u
    !insertmacro edit "Log-in of the seats:" $User $UserEdit 30u
    ${NSD_CreateLabel} 16u 45u 70u 10u "Its password:"
    Pop $0
    ${NSD_CreatePassword} 90u 45u 130u 12u $Password
    Pop $PasswordEdit
    !insertmacro edit "Company:" $Company $CompanyEdit 60u
    !insertmacro edit "Branch:" $Branch $BranchEdit 75u
    ${NSD_CreateRadioButton} 0 96u 100% 12u "Try it with s&ample data; no server is needed"
    Pop $SampleChoice
    ${NSD_CreateLabel} 16u 110u 280u 20u "Every user of this seat gets sample data of his own at the first start. Sign in as COUNTER1 with the password COUNTER."
    Pop $0
    ${If} $Seat == "server"
        ${NSD_Check} $ServerChoice
    ${Else}
        ${NSD_Check} $SampleChoice
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function takeSeat
    ${NSD_GetText} $ServerEdit $Server
    ${NSD_GetText} $UserEdit $User
    ${NSD_GetText} $PasswordEdit $Password
    ${NSD_GetText} $CompanyEdit $Company
    ${NSD_GetText} $BranchEdit $Branch
    ${NSD_GetState} $ServerChoice $0
    StrCpy $Seat "sample"
    ${If} $0 == ${BST_CHECKED}
        StrCpy $Seat "server"
        ${If} $Server == ""
            MessageBox MB_ICONEXCLAMATION "Type the server's name, as in shopserver or shopserver,1433."
            SendMessage $HWNDPARENT ${WM_NEXTDLGCTL} $ServerEdit 1
            Abort
        ${EndIf}
    ${EndIf}
FunctionEnd

; Not as the administrator who installs: the user's own folders count.
Function openProgram
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\velCRO\velCRO.lnk"'
FunctionEnd

; What is there stays, but for what was asked for.
!macro configure section key value
    WriteINIStr $Configuration "${section}" "${key}" "${value}"
!macroend

Function writeConfiguration
    ${GetParent} $Configuration $0
    CreateDirectory $0
    !insertmacro configure "Common" "Host" $Server
    !insertmacro configure "Common" "User" $User
    !insertmacro configure "Common" "Pswd" $Password
    !insertmacro configure "Local" "Host" $Server
    !insertmacro configure "Local" "User" $User
    !insertmacro configure "Local" "Pswd" $Password
    !insertmacro configure "Till" "Company" $Company
    !insertmacro configure "Till" "Branch" $Branch
    ReadINIStr $0 $Configuration "Common" "DBName"
    ${If} $0 == ""
        !insertmacro configure "Common" "DBName" "VELCOMMON"
    ${EndIf}
    ReadINIStr $0 $Configuration "Local" "DBName"
    ${If} $0 == ""
        !insertmacro configure "Local" "DBName" "VELTILL"
    ${EndIf}
FunctionEnd

Section "velCRO"
    SetRegView 64
    SetShellVarContext all
    ClearErrors
    Delete "$INSTDIR\velCRO.exe"
    ${If} ${Errors}
        MessageBox MB_ICONSTOP "velCRO runs on this seat. Close it and start the setup again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    ; What an older version brought and this one does not would be loaded beside it.
    ${If} ${FileExists} "$INSTDIR\installed"
        RMDir /r "$INSTDIR\platforms"
        RMDir /r "$INSTDIR\styles"
        RMDir /r "$INSTDIR\imageformats"
        RMDir /r "$INSTDIR\multimedia"
        RMDir /r "$INSTDIR\tls"
        Delete "$INSTDIR\*.dll"
    ${EndIf}
    SetOutPath $INSTDIR
    File /r "${FOLDER}\*.*"

    CreateDirectory "$SMPROGRAMS\velCRO"
    Delete "$SMPROGRAMS\velCRO\*.lnk"
    ${If} $Seat == "server"
        Call writeConfiguration
        CreateShortcut "$SMPROGRAMS\velCRO\velCRO.lnk" "$INSTDIR\velCRO.exe"
        CreateShortcut "$SMPROGRAMS\velCRO\velCRO on sample data.lnk" "$INSTDIR\velcro-sample.exe" "" "$INSTDIR\velCRO.exe"
    ${Else}
        CreateShortcut "$SMPROGRAMS\velCRO\velCRO.lnk" "$INSTDIR\velcro-sample.exe" "" "$INSTDIR\velCRO.exe"
    ${EndIf}
    CreateShortcut "$SMPROGRAMS\velCRO\Remove velCRO.lnk" "$INSTDIR\uninstall.exe"

    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr HKLM "${OWN_KEY}" "Folder" $INSTDIR
    WriteRegStr HKLM "${OWN_KEY}" "Seat" $Seat
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "velCRO"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Velmara Retail Software"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\velCRO.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" $INSTDIR
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} $INSTDIR "/S=0K" $0 $1 $2
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; The machine configuration belongs to all programs of the suite, and what users entered to them.
Section "Uninstall"
    SetRegView 64
    SetShellVarContext all
    ClearErrors
    Delete "$INSTDIR\velCRO.exe"
    ${If} ${Errors}
        MessageBox MB_ICONSTOP "velCRO runs on this seat. Close it and remove it then." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    !include "${REMOVE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir $INSTDIR
    RMDir /r "$SMPROGRAMS\velCRO"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
    DeleteRegKey HKLM "${OWN_KEY}"
    DeleteRegKey /ifempty HKLM "Software\Velmara"
SectionEnd
