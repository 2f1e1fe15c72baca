#include "moduleobject.h"

class BetaModule : public ModuleObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IModuleObject_iid FILE "betamodule.json")
    Q_INTERFACES(IModuleObject)
};

#include "betamodule.moc"
