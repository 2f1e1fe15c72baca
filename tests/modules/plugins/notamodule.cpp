// A valid Qt plug-in whose root object is not a module.
#include <QtCore/QObject>
#include <QtCore/QtPlugin>

class NotAModule : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.vorlin.tests.Unrelated/1.0" FILE "notamodule.json")
};

#include "notamodule.moc"
