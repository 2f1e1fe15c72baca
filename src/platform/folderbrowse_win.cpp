#include "folderbrowse.h"

#ifdef Q_OS_WIN

#include <windows.h>
#include <shlobj.h>

namespace vorlin {
namespace platform {

QString browseForFolder(const QString& title, quintptr ownerWindow)
{
    HWND owner = reinterpret_cast<HWND>(ownerWindow);
    // Rooted at "This PC", so every drive is offered and nothing above it.
    LPITEMIDLIST root = nullptr;
    ::SHGetSpecialFolderLocation(owner, CSIDL_DRIVES, &root);

    const std::wstring wideTitle = title.toStdWString();
    BROWSEINFOW info = {};
    info.hwndOwner = owner;
    info.pidlRoot = root;
    info.lpszTitle = wideTitle.c_str();
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;

    QString chosen;
    if (LPITEMIDLIST selection = ::SHBrowseForFolderW(&info)) {
        wchar_t path[MAX_PATH] = {};
        if (::SHGetPathFromIDListW(selection, path))
            chosen = QString::fromWCharArray(path);
        ::CoTaskMemFree(selection);
    }
    if (root)
        ::CoTaskMemFree(root);
    return chosen;
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
