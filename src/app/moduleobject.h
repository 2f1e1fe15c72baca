#pragma once

#include "imoduleobject.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

class ModuleObjectImpl;
class QJsonObject;

// Base class of module plug-ins: answers IModuleObject from the plug-in's metadata, which
// PluginLoader hands over right after loading.
//
// Sub-module widgets are not owned by a parent chain of the module, but they are code of
// the plug-in: whatever is still registered when the module object is destroyed (which
// unloading does) is deleted with it, so no widget outlives its library.
class VORLIN_EXPORT ModuleObject : public QObject, public IModuleObject
{
    Q_OBJECT
    Q_INTERFACES(IModuleObject)
public:
    explicit ModuleObject(QObject* parent = nullptr);
    ~ModuleObject() override;

    QString ModuleClassName() override;
    int ModulePriority() override;
    // "version_number" as "major.minor.patch", missing parts as 0.
    QString ModuleVersion() override;
    QString FixedVersion() override;
    QString ModuleDescription() override;
    ST_PropertyData GetPropertyData() override;
    // "main_show_window" of the metadata; false when the key is missing.
    bool isMainShowWindow() override;

    void addSubmoduleWidget(QString name, QWidget* widget) override;
    QMap<QString, QWidget*>* getSubmoduleWidget() override;

    // Fills this module's record from the plug-in metadata (keeps the stored file path).
    void ParseMetaData(const QJsonObject& metaData);
    // The file the module was loaded from; PluginLoader sets it before parsing.
    void setModuleFilePath(const QString& path);
    // Fills any record from plug-in metadata as QPluginLoader::metaData() returns it.
    static void ParseMetaData(const QJsonObject& metaData, ST_PropertyData& data);

private:
    QSharedPointer<ModuleObjectImpl> d;
};
