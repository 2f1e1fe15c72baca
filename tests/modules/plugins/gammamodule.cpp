#include "moduleobject.h"

class GammaModule : public ModuleObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IModuleObject_iid FILE "gammamodule.json")
    Q_INTERFACES(IModuleObject)
};

#include "gammamodule.moc"
