#include "moduleobject.h"

#include <QtCore/QJsonObject>
#include <QtCore/QPointer>
#include <QtCore/QVersionNumber>
#include <QtWidgets/QWidget>

class ModuleObjectImpl
{
public:
    ST_PropertyData property;
    QMap<QString, QWidget*> submodules;
};

ModuleObject::ModuleObject(QObject* parent)
    : QObject(parent)
    , d(new ModuleObjectImpl)
{
}

ModuleObject::~ModuleObject()
{
    // Deleting a widget removes it from the map through its destroyed() connection.
    while (!d->submodules.isEmpty())
        delete d->submodules.take(d->submodules.firstKey());
}

QString ModuleObject::ModuleClassName()
{
    return d->property.className.toString();
}

int ModuleObject::ModulePriority()
{
    return d->property.priority.toInt();
}

QString ModuleObject::ModuleVersion()
{
    const QVersionNumber version = QVersionNumber::fromString(d->property.version.toString());
    return QStringLiteral("%1.%2.%3").arg(version.majorVersion()).arg(version.minorVersion()).arg(version.microVersion());
}

QString ModuleObject::FixedVersion()
{
    return d->property.fixedVersion.toString();
}

QString ModuleObject::ModuleDescription()
{
    return d->property.description.toString();
}

ST_PropertyData ModuleObject::GetPropertyData()
{
    return d->property;
}

bool ModuleObject::isMainShowWindow()
{
    return d->property.mainShowWindow.toBool();
}

void ModuleObject::addSubmoduleWidget(QString name, QWidget* widget)
{
    if (!widget)
        return;
    d->submodules.insert(name, widget);
    // A widget replaced under its name stays connected but no longer matches.
    connect(widget, &QObject::destroyed, this, [this, name](QObject* gone) {
        if (d->submodules.value(name) == gone)
            d->submodules.remove(name);
    });
}

QMap<QString, QWidget*>* ModuleObject::getSubmoduleWidget()
{
    return &d->submodules;
}

void ModuleObject::ParseMetaData(const QJsonObject& metaData)
{
    const QVariant path = d->property.filePath;
    ParseMetaData(metaData, d->property);
    d->property.filePath = path;
}

void ModuleObject::setModuleFilePath(const QString& path)
{
    d->property.filePath = path;
}

void ModuleObject::ParseMetaData(const QJsonObject& metaData, ST_PropertyData& data)
{
    const QJsonObject own = metaData.value(QLatin1String("MetaData")).toObject();
    data.className = metaData.value(QLatin1String("className")).toString();
    data.priority = own.value(QLatin1String("priority_number")).toVariant().toInt();
    data.version = own.value(QLatin1String("version_number")).toVariant().toString();
    data.fixedVersion = own.value(QLatin1String("version_fixed")).toVariant().toString();
    data.mainShowWindow = own.value(QLatin1String("main_show_window")).toBool();
    data.description = own.value(QLatin1String("description")).toString();
}
