// "System": the module plug-ins found beside the gallery (loaded through PluginLoader,
// their windows shown in place), the machine's identity, and a settings round-trip through
// the INI helpers.
#include "gallerypages.h"

#include "imoduleobject.h"
#include "libutilstatic.h"
#include "pluginloader.h"

#include <QtCore/QDir>
#include <QtCore/QThreadPool>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

class SystemPage : public QWidget
{
    Q_OBJECT
public:
    SystemPage()
    {
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(createModuleBox(), 3);
        auto* right = new QVBoxLayout;
        right->addWidget(createIdentityBox());
        right->addWidget(createSettingsBox());
        right->addStretch();
        layout->addLayout(right, 2);

        connect(&m_loader, &PluginLoader::sigModuleLoaded, this,
                [this](IModuleObject* module) { m_status->setText(tr("Loaded %1").arg(module->ModuleClassName())); });
        connect(&m_loader, &PluginLoader::sigModuleQuit, this,
                [this](const QString& path) { m_status->setText(tr("Unloaded %1").arg(QDir::toNativeSeparators(path))); });
        connect(&m_loader, &PluginLoader::sigModuleLoadFault, this,
                [this](const QString& path) { m_status->setText(tr("Not a module: %1").arg(QDir::toNativeSeparators(path))); });

        scanAndLoadAll();
    }

private:
    static QString moduleFolder() { return libUtilStatic::CurrentExeDirPath() + QStringLiteral("/modules"); }
    static QString settingsFile() { return libUtilStatic::GetTempDir() + QStringLiteral("/vorlin-gallery-system.ini"); }

    QWidget* createModuleBox()
    {
        auto* box = new QGroupBox(tr("Modules in %1").arg(QDir::toNativeSeparators(moduleFolder())));
        auto* layout = new QVBoxLayout(box);
        m_modules = new QTreeWidget;
        m_modules->setRootIsDecorated(false);
        m_modules->setHeaderLabels({tr("Module"), tr("Priority"), tr("Version"), tr("Fixed"), tr("State"), tr("Description")});
        m_modules->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        m_modules->setMaximumHeight(140);
        layout->addWidget(m_modules);

        auto* buttons = new QHBoxLayout;
        auto* rescan = new QPushButton(tr("Scan again"));
        auto* load = new QPushButton(tr("Load"));
        auto* unload = new QPushButton(tr("Unload"));
        for (QPushButton* button : {rescan, load, unload})
            buttons->addWidget(button);
        m_status = new QLabel;
        buttons->addWidget(m_status, 1);
        layout->addLayout(buttons);

        auto* windows = new QGroupBox(tr("Module windows"));
        m_windows = new QVBoxLayout(windows);
        layout->addWidget(windows);
        layout->addStretch();

        connect(rescan, &QPushButton::clicked, this, &SystemPage::scan);
        connect(load, &QPushButton::clicked, this, [this] {
            IModuleObject* module = nullptr;
            if (QTreeWidgetItem* item = m_modules->currentItem())
                m_loader.DyLoadModule(item->data(0, Qt::UserRole).toString(), module);
            refresh();
        });
        connect(unload, &QPushButton::clicked, this, [this] {
            if (QTreeWidgetItem* item = m_modules->currentItem())
                m_loader.DyUnloadModule(item->data(0, Qt::UserRole).toString());
            refresh();
        });
        return box;
    }

    QWidget* createIdentityBox()
    {
        auto* box = new QGroupBox(tr("This machine"));
        auto* form = new QFormLayout(box);
        auto addRow = [form](const QString& label, const QString& value) {
            auto* text = new QLabel(value.isEmpty() ? QStringLiteral("-") : value);
            text->setTextInteractionFlags(Qt::TextSelectableByMouse);
            text->setWordWrap(true);
            form->addRow(label, text);
        };
        addRow(tr("CPU id"), libUtilStatic::CpuId());
        addRow(tr("MAC address"), libUtilStatic::MacAddr());
        addRow(tr("Host name"), libUtilStatic::LocalHostName());
        addRow(tr("IPv4 addresses"), libUtilStatic::HostIpAddress().join(QStringLiteral(", ")));
        addRow(tr("Documents"), libUtilStatic::GetDocumentPath());
        QStringList drives;
        libUtilStatic::CheckReMovableDrive(drives);
        addRow(tr("Removable drives"), drives.join(QStringLiteral(", ")));
        return box;
    }

    QWidget* createSettingsBox()
    {
        auto* box = new QGroupBox(tr("Settings round-trip (GB2312 INI)"));
        auto* form = new QFormLayout(box);
        auto* file = new QLabel(QDir::toNativeSeparators(settingsFile()));
        file->setWordWrap(true);
        form->addRow(tr("File"), file);
        m_station = new QLineEdit(QStringLiteral("地面站一号"));
        form->addRow(tr("Station name"), m_station);
        m_port = new QSpinBox;
        m_port->setRange(1, 65535);
        m_port->setValue(14550);
        form->addRow(tr("Link port"), m_port);

        auto* buttons = new QHBoxLayout;
        auto* writeSync = new QPushButton(tr("Write"));
        auto* writeAsync = new QPushButton(tr("Write in background"));
        auto* read = new QPushButton(tr("Read back"));
        for (QPushButton* button : {writeSync, writeAsync, read})
            buttons->addWidget(button);
        form->addRow(buttons);
        m_readBack = new QLabel;
        form->addRow(tr("Read"), m_readBack);

        connect(writeSync, &QPushButton::clicked, this, [this] {
            libUtilStatic::SyncIniSetValue(settingsFile(), QStringLiteral("station/name"), m_station->text());
            libUtilStatic::SyncIniSetValue(settingsFile(), QStringLiteral("link/port"), m_port->value());
            readBack();
        });
        connect(writeAsync, &QPushButton::clicked, this, [this] {
            libUtilStatic::AsyncIniSetValue(settingsFile(), QStringLiteral("station/name"), m_station->text());
            libUtilStatic::AsyncIniSetValue(settingsFile(), QStringLiteral("link/port"), m_port->value());
            m_readBack->setText(tr("written in the background; read back when you like"));
        });
        connect(read, &QPushButton::clicked, this, &SystemPage::readBack);
        if (!libUtilStatic::IniContains(settingsFile(), QStringLiteral("station/name")))
            writeSync->click();
        readBack();
        return box;
    }

    void readBack()
    {
        const QString file = settingsFile();
        m_readBack->setText(QStringLiteral("%1, %2")
                                .arg(libUtilStatic::IniGetValue(file, QStringLiteral("station/name")).toString())
                                .arg(libUtilStatic::IniGetValue(file, QStringLiteral("link/port"), 0).toInt()));
    }

    void scan()
    {
        m_scanned.clear();
        m_loader.ScanModuleDirectory(moduleFolder(), m_scanned);
        refresh();
    }

    void scanAndLoadAll()
    {
        scan();
        for (const ST_PropertyData& record : qAsConst(m_scanned)) {
            IModuleObject* module = nullptr;
            m_loader.DyLoadModule(record.filePath.toString(), module);
        }
        refresh();
    }

    // The table of scanned modules and, below it, the windows of the loaded ones in
    // priority order.
    void refresh()
    {
        const QString current = m_modules->currentItem() ? m_modules->currentItem()->data(0, Qt::UserRole).toString() : QString();
        m_modules->clear();
        for (const ST_PropertyData& record : qAsConst(m_scanned)) {
            const bool loaded = m_loader.GetModuleObject(record.className.toString());
            auto* item = new QTreeWidgetItem(m_modules, {record.className.toString(), record.priority.toString(),
                                                         record.version.toString(), record.fixedVersion.toString(),
                                                         loaded ? tr("loaded") : tr("not loaded"), record.description.toString()});
            item->setData(0, Qt::UserRole, record.filePath);
            item->setToolTip(0, QDir::toNativeSeparators(record.filePath.toString()));
            if (record.filePath.toString() == current || !m_modules->currentItem())
                m_modules->setCurrentItem(item);
        }

        QList<IModuleObject*> modules;
        m_loader.DyModuleObjectListSort(modules);
        for (IModuleObject* module : qAsConst(modules)) {
            const QMap<QString, QWidget*>* windows = module->getSubmoduleWidget();
            for (auto it = windows->cbegin(); it != windows->cend(); ++it) {
                if (m_windows->indexOf(it.value()) < 0) // the module deletes them when unloaded
                    m_windows->addWidget(it.value());
            }
        }
    }

    PluginLoader m_loader;
    PropertyDataList m_scanned;
    QTreeWidget* m_modules;
    QLabel* m_status;
    QVBoxLayout* m_windows;
    QLineEdit* m_station;
    QSpinBox* m_port;
    QLabel* m_readBack;
};

GALLERY_PAGE(SystemPage, QT_TRANSLATE_NOOP("Gallery", "System"), 90)

#include "systempage.moc"
