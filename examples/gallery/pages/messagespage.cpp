// "Messages": the simulated aircraft's warnings arrive in a message view and in the warning
// panel, and a table of its parameters follows it live.
#include "gallerypages.h"

#include "msgviewitem.h"
#include "msgviewwidget.h"
#include "simulatedvehicle.h"
#include "viewheader.h"
#include "viewitem.h"
#include "viewwidget.h"
#include "warnmsgview.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

class MessagesPage : public QWidget
{
    Q_OBJECT
public:
    MessagesPage()
    {
        auto* grid = new QGridLayout(this);
        grid->setHorizontalSpacing(16);

        grid->addWidget(new QLabel(tr("Vehicle parameters (ViewWidget)")), 0, 0);
        grid->addWidget(createTable(), 1, 0);

        grid->addWidget(new QLabel(tr("Warnings (MsgViewWidget), newest first")), 0, 1);
        m_messages = new MsgViewWidget;
        m_messages->setStyleSheet(QStringLiteral("MsgViewWidget { background-color: #ffffff; border: 1px solid #cccccc; }"));
        m_messages->setAttribute(Qt::WA_StyledBackground);
        grid->addWidget(m_messages, 1, 1);
        grid->addLayout(createControls(), 2, 1);

        grid->addWidget(new QLabel(tr("Warning panel (WarnMsgView)")), 0, 2);
        m_panel = new WarnMsgView;
        m_panel->setFixedWidth(360);
        grid->addWidget(m_panel, 1, 2);
        grid->setRowStretch(1, 1);
        grid->setColumnStretch(0, 3);
        grid->setColumnStretch(1, 2);

        SimulatedVehicle* vehicle = SimulatedVehicle::instance();
        connect(vehicle, &SimulatedVehicle::warningRaised, this, &MessagesPage::addWarning);
        connect(vehicle, &SimulatedVehicle::changed, this, &MessagesPage::updateTable);
        addWarning(0, tr("Telemetry link up"));
        updateTable();
    }

private:
    struct Parameter
    {
        QLabel* value;
        QLabel* state;
    };

    ViewWidget* createTable()
    {
        m_table = new ViewWidget;
        m_table->setStyleSheet(QStringLiteral("ViewWidget { background-color: #2b2f36; }"));
        m_table->setAttribute(Qt::WA_StyledBackground);
        m_table->setHeaderContents({tr("Parameter"), tr("Value"), tr("Unit"), tr("State")}, {3, 2, 2, 3});
        m_table->setInsideLineColor(QColor(70, 76, 86), QColor(70, 76, 86));
        const QStringList names = {tr("Roll"), tr("Pitch"), tr("Heading"), tr("Voltage"), tr("Battery"), tr("Link quality")};
        const QStringList units = {QStringLiteral("°"), QStringLiteral("°"), QStringLiteral("°"), QStringLiteral("V"),
                                   QStringLiteral("%"), QStringLiteral("%")};
        for (int i = 0; i < names.size(); ++i) {
            auto* row = new ViewItem;
            row->setItemContents({names.at(i), QString(), units.at(i), QString()}, {3, 2, 2, 3});
            const QList<QWidget*> cells = row->getItemWidgets();
            m_parameters.append(Parameter{qobject_cast<QLabel*>(cells.at(1)), qobject_cast<QLabel*>(cells.at(3))});
            m_table->appendViewItem(row);
        }
        // A row of caller widgets: the link quality as a bar.
        auto* linkRow = new ViewItem;
        m_linkBar = new QProgressBar;
        m_linkBar->setTextVisible(false);
        QList<QWidget*> cells{new QLabel(tr("Link")), m_linkBar};
        cells.first()->setStyleSheet(QStringLiteral("color: white;"));
        linkRow->setItemWidgets(cells, {3, 7});
        m_table->appendViewItem(linkRow);
        m_table->setItemBackgroundColor(QColor(49, 54, 62));
        return m_table;
    }

    QLayout* createControls()
    {
        auto* row = new QHBoxLayout;
        row->addWidget(new QLabel(tr("Cap")));
        auto* cap = new QSpinBox;
        cap->setRange(1, 500);
        cap->setValue(m_messages->maxCount());
        connect(cap, qOverload<int>(&QSpinBox::valueChanged), m_messages, &MsgViewWidget::setMaxCount);
        row->addWidget(cap);
        auto* add = new QPushButton(tr("Add 50"));
        connect(add, &QPushButton::clicked, this, [this] {
            for (int i = 0; i < 50; ++i)
                addWarning(0, tr("Test message %1").arg(++m_testCount));
        });
        row->addWidget(add);
        auto* top = new QPushButton(tr("Scroll to top"));
        connect(top, &QPushButton::clicked, m_messages, &MsgViewWidget::scrollTop);
        row->addWidget(top);
        auto* clear = new QPushButton(tr("Clear"));
        connect(clear, &QPushButton::clicked, m_messages, &MsgViewWidget::clearAll);
        row->addWidget(clear);
        m_count = new QLabel;
        row->addWidget(m_count);
        row->addStretch();
        return row;
    }

    void addWarning(int kind, const QString& text)
    {
        const MsgInfoT info{kind, text, QDateTime::currentDateTime()};
        m_messages->addItem(info);
        m_panel->messageView()->addItem(info);
        m_count->setText(tr("%n row(s)", nullptr, m_messages->items().size()));
    }

    void updateTable()
    {
        const SimulatedVehicle* v = SimulatedVehicle::instance();
        const double values[] = {v->roll(), v->pitch(), v->heading(), v->voltage(), double(v->batteryPercent()),
                                 double(v->linkQuality())};
        const int decimals[] = {1, 1, 0, 2, 0, 0};
        const QString states[] = {
            std::abs(v->roll()) > 30 ? tr("steep bank") : tr("level"),
            std::abs(v->pitch()) > 10 ? tr("climbing or diving") : tr("steady"),
            tr("flying"),
            v->voltage() < 21.0 ? tr("low") : tr("normal"),
            v->batteryPercent() < 25 ? tr("land soon") : tr("normal"),
            v->isLinked() ? tr("linked") : tr("lost"),
        };
        for (int i = 0; i < m_parameters.size(); ++i) {
            m_parameters.at(i).value->setText(QString::number(values[i], 'f', decimals[i]));
            m_parameters.at(i).state->setText(states[i]);
        }
        m_linkBar->setValue(v->linkQuality());
    }

    ViewWidget* m_table = nullptr;
    QList<Parameter> m_parameters;
    QProgressBar* m_linkBar = nullptr;
    MsgViewWidget* m_messages = nullptr;
    WarnMsgView* m_panel = nullptr;
    QLabel* m_count = nullptr;
    int m_testCount = 0;
};

GALLERY_PAGE(MessagesPage, QT_TRANSLATE_NOOP("Gallery", "Messages"), 70)

#include "messagespage.moc"
