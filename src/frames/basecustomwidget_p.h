#pragma once

#include "customshell_p.h"

class BaseCustomWidgetImpl : public vorlin::CustomShell
{
public:
    using CustomShell::CustomShell;
};
