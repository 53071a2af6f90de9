#include "workbench/company/LoadPath.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace tsln::workbench {

void restrictLoadPath() {
#ifdef _WIN32
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    SetDllDirectoryW(L"");
#endif
}

}  // namespace tsln::workbench
