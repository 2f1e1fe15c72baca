// A module whose library cannot be loaded: it needs a symbol that nothing defines.
#include "moduleobject.h"

extern "C" void vorlin_test_symbol_nobody_defines();

class UnresolvedModule : public ModuleObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IModuleObject_iid FILE "betamodule.json")
    Q_INTERFACES(IModuleObject)
public:
    UnresolvedModule() { vorlin_test_symbol_nobody_defines(); }
};

#include "unresolvedmodule.moc"
