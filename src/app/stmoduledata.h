#pragma once

#include "vorlinglobal.h"

#include <QtCore/QMetaType>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

class IModuleObject;
class QPluginLoader;

// One module loaded by PluginLoader. Records are handed out by value; the module object
// and its loader stay valid until the module is unloaded.
struct VORLIN_EXPORT ST_ModuleData
{
    QString filePath;  // cleaned path the module was loaded from
    QString className; // "className" of the plug-in metadata
    IModuleObject* module = nullptr;
    QSharedPointer<QPluginLoader> loader;
};

using PluginData = ST_ModuleData;

Q_DECLARE_METATYPE(ST_ModuleData)
