// A minimal module: metadata from demomodule.json and one sub-module window, a flight timer
// that counts while it is shown.
#include "moduleobject.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTime>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

class FlightTimerPanel : public QWidget
{
    Q_OBJECT
public:
    FlightTimerPanel()
    {
        auto* layout = new QVBoxLayout(this);
        m_display = new QLabel;
        m_display->setAlignment(Qt::AlignCenter);
        m_display->setStyleSheet(QStringLiteral("font-size: 28px; color: #1e90ff;"));
        auto* reset = new QPushButton(tr("Reset"));
        layout->addWidget(new QLabel(tr("Flight time (from the demo module)")));
        layout->addWidget(m_display);
        layout->addWidget(reset);
        connect(reset, &QPushButton::clicked, this, [this] {
            m_elapsed.restart();
            refresh();
        });
        connect(&m_tick, &QTimer::timeout, this, &FlightTimerPanel::refresh);
        m_elapsed.start();
        refresh();
    }

protected:
    void showEvent(QShowEvent*) override { m_tick.start(250); }
    void hideEvent(QHideEvent*) override { m_tick.stop(); }

private:
    void refresh() { m_display->setText(QTime(0, 0).addMSecs(int(m_elapsed.elapsed())).toString(QStringLiteral("hh:mm:ss"))); }

    QLabel* m_display;
    QTimer m_tick;
    QElapsedTimer m_elapsed;
};

class DemoModule : public ModuleObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IModuleObject_iid FILE "demomodule.json")
    Q_INTERFACES(IModuleObject)
public:
    DemoModule() { addSubmoduleWidget(QStringLiteral("flight timer"), new FlightTimerPanel); }
};

#include "demomodule.moc"
