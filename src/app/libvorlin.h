#pragma once

#include "vorlinglobal.h"

// Entry points of the library: the compiled-in resource tree and the library's own
// immediate-quit flag (separate from the application's).
class VORLIN_EXPORT libVorlin
{
public:
    static void InitVorlin();
    static void FreeVorlin();
    static void SetImmediateQuit(bool quit);
    static bool isImmediateQuit();
};
