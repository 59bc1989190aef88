#pragma once

#include <max.h>

#include <string>
#include <vector>

#include "maxhost/src/panel/HostWindow.h"

namespace maxhost {

/// The pages of the command panel, one below the other: lower categories first, within a category in the
/// order of adding. Simplified: pages do not roll up, APPENDROLL_CLOSED is ignored.
class CoreExport RollupPages {
  public:
    /// mainWindow must outlive the pages.
    explicit RollupPages(HostWindow& mainWindow);
    ~RollupPages();
    RollupPages(const RollupPages&) = delete;
    RollupPages& operator=(const RollupPages&) = delete;

    /// Makes a page from a dialog of a library and shows it. Its procedure gets WM_INITDIALOG with `param`
    /// before the call returns. Errors    null, with a note in Faults, when the dialog cannot be made.
    HWND add(HINSTANCE library, const TCHAR* dialog, DLGPROC procedure, const TCHAR* title, LPARAM param,
             int category);

    /// Destroys a page; anything else is ignored.
    void remove(HWND page);

    void removeAll();

    std::size_t count() const { return pages.size(); }

    /// Titles from top to bottom.
    std::vector<std::string> titles() const;

    /// The topmost page that has a control of this number; null when none has.
    HWND pageWith(int controlId) const;

  private:
    struct Page {
        HWND window;
        HWND heading;
        std::string title;
        int category;
    };

    HWND ensureFrame();
    void layOut();

    HostWindow& main;
    HWND frame = nullptr;
    std::vector<Page> pages;  // from top to bottom
};

}  // namespace maxhost
