#pragma once

#include "customshell_p.h"

class BaseCustomDialogImpl : public vorlin::CustomShell
{
public:
    using CustomShell::CustomShell;
};
