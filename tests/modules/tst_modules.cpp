#include "imoduleobject.h"
#include "libvorlin.h"
#include "moduleobject.h"
#include "pluginloader.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

namespace {

QStringList g_log;

void captureMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    g_log.append(text);
}

QString copyInto(const QTemporaryDir& dir, const QString& source, const QString& name)
{
    const QString target = dir.filePath(name);
    QFile::copy(source, target);
    return target;
}

QStringList classNames(const PropertyDataList& list)
{
    QStringList names;
    for (const ST_PropertyData& record : list)
        names.append(record.className.toString());
    return names;
}

} // namespace

class TestModules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        g_log.clear();
        qInstallMessageHandler(captureMessage);
    }
    void cleanup()
    {
        qInstallMessageHandler(nullptr);
        QList<IModuleObject*> loaded;
        m_loader.DyModuleObjectListSort(loaded);
        for (IModuleObject* module : qAsConst(loaded))
            m_loader.DyUnloadModule(module);
        libVorlin::SetImmediateQuit(false);
    }

    void scanReadsMetadataOfLibraryNamedFiles()
    {
        QTemporaryDir dir;
        copyInto(dir, ALPHA_PLUGIN, QStringLiteral("libalpha.so"));
        copyInto(dir, BETA_PLUGIN, QStringLiteral("LIBBETA.SO"));           // upper-case suffix
        copyInto(dir, GAMMA_PLUGIN, QStringLiteral("libgamma.so.1"));       // versioned name
        copyInto(dir, NOTAMODULE_PLUGIN, QStringLiteral("readme.so.txt"));  // containment, not ending
        copyInto(dir, GAMMA_PLUGIN, QStringLiteral(".solib"));              // suffix at the very start
        copyInto(dir, BETA_PLUGIN, QStringLiteral("module.bin"));           // no suffix at all
        copyInto(dir, PLAIN_PLUGIN, QStringLiteral("libplain.so"));         // no metadata
        QFile damaged(dir.filePath(QStringLiteral("libdamaged.so")));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        QFile real(ALPHA_PLUGIN);
        QVERIFY(real.open(QIODevice::ReadOnly));
        damaged.write(real.read(3000)); // a header whose sections point past the end
        damaged.close();

        PropertyDataList list;
        list.append(ST_PropertyData()); // the scan appends, it does not clear
        m_loader.ScanModuleDirectory(dir.path(), list);

        QCOMPARE(classNames(list), QStringList({QString(), QStringLiteral("BetaModule"), QStringLiteral("AlphaModule"),
                                                QStringLiteral("GammaModule"), QStringLiteral("NotAModule")}));
        const ST_PropertyData& alpha = list.at(2);
        QCOMPARE(alpha.priority, QVariant(3));
        QCOMPARE(alpha.version.toString(), QStringLiteral("2.1.7"));
        QCOMPARE(alpha.fixedVersion.toString(), QStringLiteral("2.1.7-r3"));
        QCOMPARE(alpha.mainShowWindow.toBool(), true);
        QCOMPARE(alpha.description.toString(), QStringLiteral("Alpha test module"));
        QCOMPARE(alpha.filePath.toString(), dir.filePath(QStringLiteral("libalpha.so")));
        QCOMPARE(list.at(3).version.toString(), QStringLiteral("3")); // a number is taken as text

        QList<PluginData> loaded;
        m_loader.DyModuleDataList(loaded);
        QVERIFY(loaded.isEmpty());
    }

    void loadAnswersFromMetadataAndRefusesTheSameModuleTwice()
    {
        QSignalSpy loadedSpy(&m_loader, &PluginLoader::sigModuleLoaded);
        IModuleObject* beta = nullptr;
        QVERIFY(m_loader.DyLoadModule(QStringLiteral(BETA_PLUGIN), beta));
        QVERIFY(beta);
        QCOMPARE(loadedSpy.count(), 1);
        QCOMPARE(loadedSpy.at(0).at(0).value<IModuleObject*>(), beta);
        QCOMPARE(beta->ModuleVersion(), QStringLiteral("1.2.0")); // "1.2" in the metadata
        QCOMPARE(beta->FixedVersion(), QStringLiteral("1.2.0-b1"));
        QCOMPARE(beta->ModuleDescription(), QStringLiteral("Beta test module"));
        QCOMPARE(beta->isMainShowWindow(), false);
        QCOMPARE(m_loader.GetModuleObject(QStringLiteral("BetaModule")), beta);
        QCOMPARE(m_loader.GetModuleObject(QStringLiteral("Beta")), nullptr);

        // Same path, even spelt differently: refused without a word.
        const QFileInfo info(QStringLiteral(BETA_PLUGIN));
        IModuleObject* again = nullptr;
        QVERIFY(!m_loader.DyLoadModule(info.path() + QStringLiteral("/./") + info.fileName(), again));
        QCOMPARE(again, nullptr);
        QVERIFY(g_log.isEmpty());

        // Another file declaring a class name already loaded.
        IModuleObject* alpha = nullptr;
        QVERIFY(m_loader.DyLoadModule(QStringLiteral(ALPHA_PLUGIN), alpha));
        QVERIFY(!m_loader.DyLoadModule(QStringLiteral(ALPHACOPY_PLUGIN), again));
        QCOMPARE(g_log, QStringList(QStringLiteral("AlphaModule: has loaded repeated. filePath: " ALPHACOPY_PLUGIN)));
        QCOMPARE(loadedSpy.count(), 2);
        QCOMPARE(m_loader.GetModuleObject(QStringLiteral("AlphaModule")), alpha);
        QCOMPARE(alpha->GetPropertyData().filePath.toString(), QStringLiteral(ALPHA_PLUGIN));
    }

    void loadFailsCleanly_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("faultSignal");
        QTest::addColumn<QString>("message");
        const QString notPlugin = QStringLiteral(": was not a right plugin, parse json failure.");
        QTest::newRow("plain library") << QStringLiteral(PLAIN_PLUGIN) << true << QStringLiteral(PLAIN_PLUGIN) + notPlugin;
        QTest::newRow("root is no module") << QStringLiteral(NOTAMODULE_PLUGIN) << false
                                           << QStringLiteral("Plugin execute failed: loader->instance(). ModuleName: " NOTAMODULE_PLUGIN ".");
        QTest::newRow("unresolved symbol") << QStringLiteral(UNRESOLVED_PLUGIN) << false
                                           << QStringLiteral("Cannot load plugin. Error details: ");
    }
    void loadFailsCleanly()
    {
        QFETCH(QString, path);
        QFETCH(bool, faultSignal);
        QFETCH(QString, message);
        QSignalSpy faultSpy(&m_loader, &PluginLoader::sigModuleLoadFault);
        QSignalSpy loadedSpy(&m_loader, &PluginLoader::sigModuleLoaded);
        IModuleObject* module = nullptr;
        QVERIFY(!m_loader.DyLoadModule(path, module));
        QCOMPARE(module, nullptr);
        QCOMPARE(loadedSpy.count(), 0);
        QCOMPARE(faultSpy.count(), faultSignal ? 1 : 0);
        if (faultSignal)
            QCOMPARE(faultSpy.at(0).at(0).toString(), path);
        QCOMPARE(g_log.size(), 1);
        QVERIFY2(g_log.first().startsWith(message), qPrintable(g_log.first()));
        QList<PluginData> loaded;
        m_loader.DyModuleDataList(loaded);
        QVERIFY(loaded.isEmpty());
    }

    void immediateQuitRefusesLoading()
    {
        libVorlin::SetImmediateQuit(true);
        IModuleObject* module = nullptr;
        QVERIFY(!m_loader.DyLoadModule(QStringLiteral(BETA_PLUGIN), module));
        QCOMPARE(m_loader.GetModuleObject(QStringLiteral("BetaModule")), nullptr);
    }

    void sortOrdersByPriority()
    {
        IModuleObject* module = nullptr;
        for (const char* path : {ALPHA_PLUGIN, BETA_PLUGIN})
            QVERIFY(m_loader.DyLoadModule(QString::fromUtf8(path), module));
        // Callable by name, as from a script.
        bool loaded = false;
        QVERIFY(QMetaObject::invokeMethod(&m_loader, "DyLoadModule", Q_RETURN_ARG(bool, loaded),
                                          Q_ARG(QString, QStringLiteral(GAMMA_PLUGIN)), Q_ARG(IModuleObject*&, module)));
        QVERIFY(loaded);
        QCOMPARE(module->ModuleVersion(), QStringLiteral("3.0.0")); // the number 3 in the metadata
        QList<IModuleObject*> sorted = {nullptr}; // replaced, not appended to
        m_loader.DyModuleObjectListSort(sorted);
        QStringList names;
        for (IModuleObject* m : qAsConst(sorted))
            names.append(m->ModuleClassName());
        QCOMPARE(names, QStringList({QStringLiteral("BetaModule"), QStringLiteral("GammaModule"), QStringLiteral("AlphaModule")}));

        QList<PluginData> records;
        m_loader.DyModuleDataList(records);
        QCOMPARE(records.size(), 3);
        QCOMPARE(records.at(1).filePath, QStringLiteral(BETA_PLUGIN));
        QCOMPARE(records.at(1).className, QStringLiteral("BetaModule"));
    }

    void unloadReleasesTheModuleAndItsWindows()
    {
        IModuleObject* alpha = nullptr;
        QVERIFY(m_loader.DyLoadModule(QStringLiteral(ALPHA_PLUGIN), alpha));
        QPointer<QWidget> panel = alpha->getSubmoduleWidget()->value(QStringLiteral("panel"));
        QVERIFY(panel);

        QSignalSpy quitSpy(&m_loader, &PluginLoader::sigModuleQuit);
        bool aliveDuringSignal = false;
        QObject receiver;
        connect(&m_loader, &PluginLoader::sigModuleQuit, &receiver, [&] {
            aliveDuringSignal = !panel.isNull() && !m_loader.GetModuleObject(QStringLiteral("AlphaModule"));
        });
        QVERIFY(m_loader.DyUnloadModule(QStringLiteral(ALPHA_PLUGIN)));
        QCOMPARE(quitSpy.count(), 1);
        QCOMPARE(quitSpy.at(0).at(0).toString(), QStringLiteral(ALPHA_PLUGIN));
        QVERIFY(aliveDuringSignal);
        receiver.disconnect();
        QVERIFY(panel.isNull());
        QCOMPARE(m_loader.GetModuleObject(QStringLiteral("AlphaModule")), nullptr);

        QVERIFY(!m_loader.DyUnloadModule(QStringLiteral(ALPHA_PLUGIN)));
        QCOMPARE(g_log, QStringList(QStringLiteral("It was no matched plugin. Error path: " ALPHA_PLUGIN)));

        // Loaded again from scratch, with a window of its own.
        QVERIFY(m_loader.DyLoadModule(QStringLiteral(ALPHA_PLUGIN), alpha));
        QVERIFY(alpha->getSubmoduleWidget()->value(QStringLiteral("panel")));
        QVERIFY(m_loader.DyUnloadModule(alpha));
        g_log.clear();
        QVERIFY(!m_loader.DyUnloadModule(alpha));
        QCOMPARE(g_log, QStringList(QStringLiteral("It was a Error module object.")));
        QCOMPARE(quitSpy.count(), 2);
    }

    void submoduleWidgetsFollowTheirLifetime()
    {
        QScopedPointer<ModuleObject> module(new ModuleObject);
        auto* kept = new QWidget;
        QPointer<QWidget> keptGuard(kept);
        auto* replaced = new QWidget;
        module->addSubmoduleWidget(QStringLiteral("kept"), kept);
        module->addSubmoduleWidget(QStringLiteral("panel"), replaced);
        auto* panel = new QWidget;
        module->addSubmoduleWidget(QStringLiteral("panel"), panel);
        delete replaced; // no longer under its name: the newer entry stays
        QCOMPARE(module->getSubmoduleWidget()->value(QStringLiteral("panel")), panel);
        delete panel;
        QCOMPARE(module->getSubmoduleWidget()->keys(), QStringList(QStringLiteral("kept")));
        module.reset();
        QVERIFY(keptGuard.isNull());
    }

private:
    PluginLoader m_loader;
};

QTEST_MAIN(TestModules)
#include "tst_modules.moc"
