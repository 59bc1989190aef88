#pragma once
// Pages of the panel tests, and the numbers of the product's page that they stand in for.
#define IDD_PAGE_WITH_ATTACH 147
#define IDD_PAGE_WITHOUT_ATTACH 201
#define IDC_START_BUTTON 1046
#define IDC_ATTACH_BUTTON 1074
