// A module with a sub-module window, loaded and unloaded by the tests.
#include "moduleobject.h"

#include <QtWidgets/QLabel>

class AlphaModule : public ModuleObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IModuleObject_iid FILE "alphamodule.json")
    Q_INTERFACES(IModuleObject)
public:
    AlphaModule() { addSubmoduleWidget(QStringLiteral("panel"), new QLabel(QStringLiteral("alpha"))); }
};

#include "alphamodule.moc"
