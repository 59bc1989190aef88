#pragma once
// The page of the panel tests, and the numbers of the product's page that it stands in for.
#define IDD_PAGE_WITH_ATTACH 147
#define IDC_START_BUTTON 1046
#define IDC_ATTACH_BUTTON 1074
