#pragma once
// Numbers of the plug-in's dialogs, controls and stored files. Read by the resource script and by C++
// sources; the core and the host address some of them by number, so they never change.

// Dialogs
#define IDD_CONTROLLER_PAGE 145
#define IDD_STUDIO_PAGE 147

// Files
#define IDX_OPTION_GROUP 152

// Controls. The studio page carries no attach button; a page that does is served by the same procedure.
#define IDC_START_STUDIO 1046
#define IDC_CONVERT_TO_PRS 1057
#define IDC_ATTACH_CORE 1074
