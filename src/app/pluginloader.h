#pragma once

#include "itoolobject.h"
#include "stmoduledata.h"
#include "stpropertydata.h"

#include <QtCore/QSharedPointer>

class IModuleObject;
class PluginLoaderImpl;

// Finds, loads, lists, orders and unloads module plug-ins (Qt plug-ins whose root object
// implements IModuleObject). Scanning reads metadata only; nothing runs until
// DyLoadModule. Destroying the loader leaves loaded modules in memory, as QPluginLoader
// does; unload them explicitly to release their libraries.
class VORLIN_EXPORT PluginLoader : public IToolObject
{
    Q_OBJECT
public:
    explicit PluginLoader(QObject* parent = nullptr);
    ~PluginLoader() override;

    // Appends one record per plug-in file in the folder; no plug-in is loaded.
    Q_INVOKABLE void ScanModuleDirectory(QString sDirPath, PropertyDataList& sModuleList);
    Q_INVOKABLE bool DyLoadModule(QString sAbsolutePath, IModuleObject*& pModuleOut);
    // Emits sigModuleQuit while the module still exists, then deletes it and unloads its
    // library (deleting the module's remaining sub-module widgets with it).
    Q_INVOKABLE bool DyUnloadModule(QString sAbsolutePath);
    Q_INVOKABLE bool DyUnloadModule(IModuleObject* plugin);
    Q_INVOKABLE void DyModuleDataList(QList<PluginData>& vModuleList);
    // Replaces the list by the loaded modules in ascending priority.
    Q_INVOKABLE void DyModuleObjectListSort(QList<IModuleObject*>& vModuleObjectList);
    Q_INVOKABLE IModuleObject* GetModuleObject(QString sModuleClassName);

Q_SIGNALS:
    void sigModuleLoaded(IModuleObject* plugin);
    void sigModuleQuit(QString pluginPath);
    void sigModuleLoadFault(QString pluginPath);

private:
    bool unloadModule(const ST_ModuleData& module);

    QSharedPointer<PluginLoaderImpl> d;
};
