#pragma once

#define IDD_BUTTON_PAGE 200
#define IDC_LABEL 201
#define IDC_FIELD 202
#define IDC_PRESS 203
