#include "pluginloader.h"

#include "imoduleobject.h"
#include "libvorlin.h"
#include "moduleobject.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QMutex>
#include <QtCore/QPluginLoader>

#include <algorithm>

namespace {

// A file is examined when its name contains the library suffix after its first character,
// or the upper-case suffix anywhere: a containment test, so versioned names such as
// libmod.so.1 qualify and so does readme.so.txt (then skipped for lack of metadata).
bool looksLikeLibrary(const QString& fileName)
{
#ifdef Q_OS_WIN
    const QLatin1String suffix(".dll"), upperSuffix(".DLL");
#else
    const QLatin1String suffix(".so"), upperSuffix(".SO");
#endif
    return fileName.indexOf(suffix) > 0 || fileName.contains(upperSuffix);
}

} // namespace

class PluginLoaderImpl
{
public:
    QMutex mutex;
    QList<ST_ModuleData> modules;

    // Callers hold the mutex.
    int indexOfPath(const QString& path) const
    {
        for (int i = 0; i < modules.size(); ++i) {
            if (modules.at(i).filePath == path)
                return i;
        }
        return -1;
    }
    int indexOfClassName(const QString& className) const
    {
        for (int i = 0; i < modules.size(); ++i) {
            if (modules.at(i).className == className)
                return i;
        }
        return -1;
    }
    int indexOfModule(const IModuleObject* module) const
    {
        for (int i = 0; i < modules.size(); ++i) {
            if (modules.at(i).module == module)
                return i;
        }
        return -1;
    }
};

PluginLoader::PluginLoader(QObject* parent)
    : IToolObject(parent)
    , d(new PluginLoaderImpl)
{
    qRegisterMetaType<IModuleObject*>("IModuleObject*");
}

PluginLoader::~PluginLoader() = default;

void PluginLoader::ScanModuleDirectory(QString sDirPath, PropertyDataList& sModuleList)
{
    const QFileInfoList entries = QDir(sDirPath).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (!looksLikeLibrary(entry.fileName()))
            continue;
        const QString path = entry.absoluteFilePath();
        const QJsonObject metaData = QPluginLoader(path).metaData();
        if (metaData.isEmpty())
            continue;
        ST_PropertyData record;
        ModuleObject::ParseMetaData(metaData, record);
        record.filePath = path;
        sModuleList.append(record);
    }
}

bool PluginLoader::DyLoadModule(QString sAbsolutePath, IModuleObject*& pModuleOut)
{
    const QString path = QDir::cleanPath(sAbsolutePath);
    if (libVorlin::isImmediateQuit())
        return false;
    {
        QMutexLocker locker(&d->mutex);
        if (d->indexOfPath(path) >= 0)
            return false;
    }

    QSharedPointer<QPluginLoader> loader(new QPluginLoader(path));
    loader->setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::ExportExternalSymbolsHint);

    const QJsonObject metaData = loader->metaData();
    if (metaData.isEmpty()) {
        Q_EMIT sigModuleLoadFault(path);
        qCritical().noquote() << path + QLatin1String(": was not a right plugin, parse json failure.");
        return false;
    }

    const QString className = metaData.value(QLatin1String("className")).toString();
    {
        QMutexLocker locker(&d->mutex);
        if (d->indexOfClassName(className) >= 0) {
            qCritical().noquote() << className + QLatin1String(": has loaded repeated. filePath:") << path;
            return false;
        }
    }

    if (!loader->load()) {
        qWarning().noquote() << QStringLiteral("Cannot load plugin. Error details: %1.").arg(loader->errorString());
        return false;
    }

    QObject* root = loader->instance();
    auto* module = qobject_cast<IModuleObject*>(root);
    if (!module) {
        qWarning().noquote() << QStringLiteral("Plugin execute failed: loader->instance(). ModuleName: %1.").arg(path);
        loader->unload();
        return false;
    }

    if (auto* moduleObject = qobject_cast<ModuleObject*>(root)) {
        moduleObject->setModuleFilePath(path);
        moduleObject->ParseMetaData(metaData);
    }

    ST_ModuleData record;
    record.filePath = path;
    record.className = className;
    record.module = module;
    record.loader = loader;
    {
        QMutexLocker locker(&d->mutex);
        d->modules.append(record);
    }
    Q_EMIT sigModuleLoaded(module);
    pModuleOut = module;
    return true;
}

bool PluginLoader::DyUnloadModule(QString sAbsolutePath)
{
    const QString path = QDir::cleanPath(sAbsolutePath);
    ST_ModuleData module;
    {
        QMutexLocker locker(&d->mutex);
        const int index = d->indexOfPath(path);
        if (index >= 0)
            module = d->modules.takeAt(index);
    }
    if (!module.module) {
        qWarning().noquote() << "It was no matched plugin. Error path:" << sAbsolutePath;
        return false;
    }
    return unloadModule(module);
}

bool PluginLoader::DyUnloadModule(IModuleObject* plugin)
{
    ST_ModuleData module;
    {
        QMutexLocker locker(&d->mutex);
        const int index = plugin ? d->indexOfModule(plugin) : -1;
        if (index >= 0)
            module = d->modules.takeAt(index);
    }
    if (!module.module) {
        qWarning() << "It was a Error module object.";
        return false;
    }
    return unloadModule(module);
}

// The record is already out of the list, so receivers of sigModuleQuit see the module
// as gone from the loader while its object is still alive.
bool PluginLoader::unloadModule(const ST_ModuleData& module)
{
    Q_EMIT sigModuleQuit(module.filePath);
    const bool unloaded = module.loader->unload();
    if (!unloaded)
        qWarning().noquote() << "PluginLoader::DyUnloadModule:" << module.filePath << module.loader->errorString();
    return unloaded;
}

void PluginLoader::DyModuleDataList(QList<PluginData>& vModuleList)
{
    QMutexLocker locker(&d->mutex);
    vModuleList = d->modules;
}

void PluginLoader::DyModuleObjectListSort(QList<IModuleObject*>& vModuleObjectList)
{
    vModuleObjectList.clear();
    QMutexLocker locker(&d->mutex);
    for (const ST_ModuleData& module : qAsConst(d->modules))
        vModuleObjectList.append(module.module);
    if (vModuleObjectList.size() < 2)
        return;
    // Unstable on purpose: modules of equal priority end in no defined order.
    std::sort(vModuleObjectList.begin(), vModuleObjectList.end(),
              [](IModuleObject* a, IModuleObject* b) { return a->ModulePriority() < b->ModulePriority(); });
}

IModuleObject* PluginLoader::GetModuleObject(QString sModuleClassName)
{
    QMutexLocker locker(&d->mutex);
    const int index = d->indexOfClassName(sModuleClassName);
    return index >= 0 ? d->modules.at(index).module : nullptr;
}
