#include "bordestylewidget.h"
#include "imainwindow.h"
#include "ititlebarwidget.h"
#include "mainapplication.h"
#include "separatelinewidget.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QToolButton>

#include <memory>

namespace {

// A title bar with the default system buttons, as applications build it.
class TitleBar : public ITitleBarWidget
{
public:
    TitleBar() { initSysBtnLayout(); }
};

QToolButton* sysButton(QWidget* bar, const char* name)
{
    return bar->findChild<QToolButton*>(QLatin1String(name));
}

QColor iconColour(QToolButton* button)
{
    const QImage image = button->icon().pixmap(QSize(8, 8)).toImage();
    return image.isNull() ? QColor() : image.pixelColor(4, 4);
}

MainApplication* app()
{
    return static_cast<MainApplication*>(QCoreApplication::instance());
}

} // namespace

class TitleBarTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_window.reset(new IMainWindow); // registers itself before the title bar exists
        m_bar = new TitleBar;
        m_window->setMenuWidget(m_bar);
    }

    void cleanup()
    {
        m_window.reset();
    }

    void roleButtonVisibility()
    {
        const auto visible = [this] {
            QStringList names;
            for (const char* name : {"cfg_button", "min_button", "max_button", "close_button"})
                if (!sysButton(m_bar, name)->isHidden())
                    names << QLatin1String(name);
            return names;
        };
        QCOMPARE(visible(), (QStringList{"min_button", "max_button", "close_button"}));
        m_bar->showSysBtnRoles(ITitleBarWidget::SysBtnMin | ITitleBarWidget::SysBtnClose);
        QCOMPARE(visible(), (QStringList{"min_button", "close_button"}));
        m_bar->hiddenSysBtnRoles(ITitleBarWidget::SysBtnClose);
        QCOMPARE(visible(), QStringList{"min_button"});
        // Through the meta-object system, under the registered type name.
        QVERIFY(QMetaObject::invokeMethod(m_bar, "showSysBtnRoles",
                                          Q_ARG(ITitleBarWidget::SysBtnRoles, ITitleBarWidget::SysBtnConfig)));
        QCOMPARE(visible(), QStringList{"cfg_button"});
    }

    void titleLabelPlacement()
    {
        TitleBar bar;
        auto* label = bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly).value(0);
        QVERIFY(label);
        bar.setTitleLogo(QStringLiteral("Ground station"), QString());
        QCOMPARE(bar.titleText(), QStringLiteral("Ground station"));
        bar.setTitleAlignment(Qt::AlignHCenter);
        bar.resize(300, 40);
        bar.show();
        QCoreApplication::processEvents();
        const int labelWidth = label->fontMetrics().horizontalAdvance(label->text()) + 100;
        QCOMPARE(label->geometry(), QRect((300 - labelWidth) / 2, 2, labelWidth, 36));

        // Too wide to centre: it stays right of the logo, and only moves on a resize.
        bar.setTitleText(QString(60, QLatin1Char('W')));
        QCOMPARE(label->x(), (300 - labelWidth) / 2);
        bar.resize(301, 40);
        QCoreApplication::processEvents();
        QWidget* logo = bar.layout()->itemAt(1)->widget();
        QCOMPARE(label->x(), logo->geometry().right() + 10);
    }

    void maximiseIconFollowsTheWindowState()
    {
        QTemporaryDir dir;
        const auto icon = [&dir](const char* name, Qt::GlobalColor colour) {
            QImage image(8, 8, QImage::Format_RGB32);
            image.fill(colour);
            const QString path = dir.filePath(QLatin1String(name));
            image.save(path);
            return path;
        };
        m_bar->setSysBtnIcon(QString(), QString(), icon("max.png", Qt::blue), icon("restore.png", Qt::yellow));
        QToolButton* max = sysButton(m_bar, "max_button");
        QCOMPARE(iconColour(max), QColor(Qt::blue));
        m_window->show();

        // A state change from outside the title bar swaps the icon too.
        m_window->setWindowState(Qt::WindowMaximized);
        QCOMPARE(iconColour(max), QColor(Qt::yellow));
        m_window->setWindowState(Qt::WindowNoState);
        QCOMPARE(iconColour(max), QColor(Qt::blue));
        // Minimising hides the title bar, so neither it nor the restore changes the icon.
        m_window->setWindowState(Qt::WindowMaximized);
        m_window->setWindowState(Qt::WindowMinimized);
        m_window->setWindowState(Qt::WindowMaximized);
        QCOMPARE(iconColour(max), QColor(Qt::yellow));
        m_window->setWindowState(Qt::WindowNoState);
        QCOMPARE(iconColour(max), QColor(Qt::blue));

        // A hidden title bar stops watching.
        m_bar->hide();
        m_window->setWindowState(Qt::WindowFullScreen);
        QCOMPARE(iconColour(max), QColor(Qt::blue));
    }

    void buttonsDriveTheMainWindow()
    {
        m_window->show();
        QSignalSpy configuration(m_bar, &ITitleBarWidget::sigConfiguration);
        sysButton(m_bar, "cfg_button")->click();
        QCOMPARE(configuration.count(), 1);
        // The maximise button is driven against a real window manager in tst_frames_x11.
        sysButton(m_bar, "close_button")->click();
        QVERIFY(!m_window->isVisible());
    }

    void titleBarWithoutMainWindowIsInert()
    {
        m_window.reset(); // unregisters by dying
        QVERIFY(!app()->MainWindow());
        TitleBar bar;
        QSignalSpy normal(&bar, &ITitleBarWidget::sigNormal);
        QSignalSpy maximised(&bar, &ITitleBarWidget::sigMaximized);
        sysButton(&bar, "max_button")->click();
        QCOMPARE(normal.count() + maximised.count(), 0);
    }

    void borderedPanelLayout()
    {
        BordeStyleWidget panel;
        panel.setBorderColor(Qt::red);
        auto* content = new QWidget;
        panel.insertWidget(content);
        panel.resize(200, 150);
        QCOMPARE(content->parentWidget(), &panel);
        QCoreApplication::processEvents(); // the posted resize lays out
        QCOMPARE(content->geometry(), QRect(0, 39, 200, 110)); // overlaps the title's last row
        QList<QRect> expected{QRect(0, 0, 2, 150), QRect(0, 0, 200, 2), QRect(0, 148, 200, 2), QRect(198, 0, 2, 150)};
        for (SeparateLineWidget* line : panel.findChildren<SeparateLineWidget*>()) {
            QCOMPARE(line->color(), QColor(Qt::red));
            QVERIFY2(expected.removeOne(line->geometry()), "a line out of place");
        }
        QVERIFY(expected.isEmpty());
    }

private:
    std::unique_ptr<IMainWindow> m_window;
    TitleBar* m_bar = nullptr;
};

int runTitleBarTests(int argc, char** argv)
{
    TitleBarTest titleBar;
    return QTest::qExec(&titleBar, argc, argv);
}

#include "tst_titlebar.moc"
