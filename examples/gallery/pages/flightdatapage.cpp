// "Flight data": the attitude meter and the telemetry read-outs of a title or monitor
// bar, all driven by the simulated aircraft.
#include "gallerypages.h"

#include "simulatedvehicle.h"

#include "batterypowerlabel.h"
#include "batteryvoltagelabel.h"
#include "colorstatuswidget.h"
#include "communicationinfolabel.h"
#include "datetimelabel.h"
#include "lxvehiclemeterwidget.h"
#include "separatelinewidget.h"
#include "tiplabel.h"
#include "valuelabel.h"

#include <QtCore/QEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

enum LinkState { Linked = 1, Weak = 2, Lost = 3 };

// Keeps the meter square and centred in whatever room it is given: the instrument's
// faces stretch with the widget.
class SquareHolder : public QWidget
{
public:
    explicit SquareHolder(QWidget* child)
        : m_child(child)
    {
        child->setParent(this);
        setMinimumSize(320, 320);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

protected:
    void resizeEvent(QResizeEvent*) override
    {
        const int side = qMin(width(), height());
        m_child->setGeometry((width() - side) / 2, (height() - side) / 2, side, side);
    }

private:
    QWidget* m_child;
};

ValueLabel* readout()
{
    auto* label = new ValueLabel;
    label->setFixedWidth(110);
    label->setRadius(4);
    label->setBackgroundColor(true, QColor(32, 40, 52));
    label->setTextColor(Qt::white);
    return label;
}

} // namespace

class FlightDataPage : public TranslatedPage
{
    Q_OBJECT
public:
    FlightDataPage()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(createStatusBar());

        auto* body = new QHBoxLayout;
        layout->addLayout(body, 1);
        m_meter = new LxVehicleMeterWidget;
        body->addWidget(new SquareHolder(m_meter), 1);

        auto* form = new QFormLayout;
        form->setLabelAlignment(Qt::AlignRight);
        m_rollLabel = new QLabel;
        m_pitchLabel = new QLabel;
        m_headingLabel = new QLabel;
        m_roll = readout();
        m_pitch = readout();
        m_heading = readout();
        form->addRow(m_rollLabel, m_roll);
        form->addRow(m_pitchLabel, m_pitch);
        form->addRow(m_headingLabel, m_heading);
        auto* side = new QVBoxLayout;
        side->addStretch();
        side->addLayout(form);
        side->addStretch();
        body->addLayout(side);

        connect(SimulatedVehicle::instance(), &SimulatedVehicle::changed, this, &FlightDataPage::refresh);
        retranslate();
        refresh();
    }


private:
    // A dark bar as an application's title bar carries it: link and battery read-outs,
    // state dots and the clock, separated by thin lines.
    QWidget* createStatusBar()
    {
        auto* bar = new QFrame;
        bar->setObjectName(QStringLiteral("FlightStatusBar"));
        bar->setStyleSheet(QStringLiteral("#FlightStatusBar { background: rgb(24, 30, 40); border-radius: 4px; }"
                                          "#FlightStatusBar QLabel { color: white; }"));
        bar->setFixedHeight(44);
        auto* row = new QHBoxLayout(bar);
        row->setContentsMargins(12, 4, 12, 4);
        row->setSpacing(10);

        m_link = new CommunicationInfoLabel;
        m_link->setFixedSize(84, 32);
        m_voltage = new BatteryVoltageLabel;
        m_voltage->setFixedSize(150, 32);
        m_battery = new BatteryPowerLabel;
        QFont small = m_battery->font();
        small.setPixelSize(10);
        m_battery->setFont(small);

        m_linkDot = new ColorStatusWidget;
        m_linkDot->setFixedSize(14, 14);
        m_batteryDot = new ColorStatusWidget;
        m_batteryDot->setFixedSize(14, 14);
        m_details = new TipLabel;
        m_details->setTipWidget(createDetailsTip());
        m_details->setTipShowPos(TipLabel::TipBottomLeft);
        m_clock = new DateTimeLabel;

        const auto separator = [] {
            auto* line = new SeparateLineWidget;
            line->setFixedSize(1, 24);
            line->setColor(QColor(80, 90, 104));
            return line;
        };
        row->addWidget(m_link);
        row->addWidget(m_linkDot);
        row->addWidget(separator());
        row->addWidget(m_voltage);
        row->addWidget(m_battery);
        row->addWidget(m_batteryDot);
        row->addWidget(separator());
        row->addWidget(m_details);
        row->addStretch();
        row->addWidget(m_clock);
        return bar;
    }

    QWidget* createDetailsTip()
    {
        m_tip = new QLabel(nullptr, Qt::ToolTip | Qt::FramelessWindowHint);
        m_tip->setStyleSheet(QStringLiteral("QLabel { background: rgb(32, 40, 52); color: white; padding: 8px; }"));
        return m_tip;
    }

    void retranslate() override
    {
        m_rollLabel->setText(tr("Roll"));
        m_pitchLabel->setText(tr("Pitch"));
        m_headingLabel->setText(tr("Heading"));
        m_details->setText(tr("Details…"));
        m_linkDot->addState(Linked, QColor(18, 196, 122), tr("Link good"));
        m_linkDot->addState(Weak, QColor(230, 160, 30), tr("Link weak"));
        m_linkDot->addState(Lost, QColor(220, 50, 50), tr("Link lost"));
        m_batteryDot->addState(Linked, QColor(18, 196, 122), tr("Battery good"));
        m_batteryDot->addState(Weak, QColor(230, 160, 30), tr("Battery low"));
        m_batteryDot->addState(Lost, QColor(220, 50, 50), tr("Battery critical"));
        refresh();
    }

    void refresh()
    {
        const SimulatedVehicle* vehicle = SimulatedVehicle::instance();
        m_meter->setRoll(float(vehicle->roll()));
        m_meter->setPitch(float(vehicle->pitch()));
        m_meter->setHeading(float(vehicle->heading()));
        m_roll->setText(QStringLiteral("%1°").arg(vehicle->roll(), 0, 'f', 1));
        m_pitch->setText(QStringLiteral("%1°").arg(vehicle->pitch(), 0, 'f', 1));
        m_heading->setText(QStringLiteral("%1°").arg(vehicle->heading(), 0, 'f', 0));

        m_link->setValue(vehicle->linkQuality());
        m_voltage->setBatteryValue(int(vehicle->voltage() * 100));
        m_battery->setValue(vehicle->batteryPercent());
        const int link = vehicle->linkQuality();
        m_linkDot->setState(link > 60 ? Linked : link > 10 ? Weak : Lost);
        const int battery = vehicle->batteryPercent();
        m_batteryDot->setState(battery > 30 ? Linked : battery > 15 ? Weak : Lost);
        m_tip->setText(tr("Voltage %1 V\nBattery %2 %\nLink %3 %")
                           .arg(vehicle->voltage(), 0, 'f', 2)
                           .arg(battery)
                           .arg(link));
        m_tip->adjustSize();
    }

    LxVehicleMeterWidget* m_meter;
    QLabel* m_rollLabel;
    QLabel* m_pitchLabel;
    QLabel* m_headingLabel;
    ValueLabel* m_roll;
    ValueLabel* m_pitch;
    ValueLabel* m_heading;
    CommunicationInfoLabel* m_link;
    BatteryVoltageLabel* m_voltage;
    BatteryPowerLabel* m_battery;
    ColorStatusWidget* m_linkDot;
    ColorStatusWidget* m_batteryDot;
    TipLabel* m_details;
    QLabel* m_tip;
    DateTimeLabel* m_clock;
};

GALLERY_PAGE(FlightDataPage, QT_TRANSLATE_NOOP("Gallery", "Flight data"), 60)

#include "flightdatapage.moc"
