// "Buttons": every button kind in its states, a tab menu with drop-downs and a
// navigation bar with the shipped icons. Whatever a widget emits is shown at the bottom.
#include "gallerypages.h"

#include "basebutton.h"
#include "basestatebutton.h"
#include "blueiconbutton.h"
#include "delaybutton.h"
#include "displaybutton.h"
#include "doubleclickbutton.h"
#include "iconcheckbutton.h"
#include "icontextbutton.h"
#include "iverticalbarwidget.h"
#include "rotatingwaitingbutton.h"
#include "stateswitchbutton.h"
#include "svgbutton.h"
#include "tabmenuitemwidget.h"
#include "tabmenuwidget.h"
#include "yellowiconbutton.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

const char* const StarSvg =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"24\" height=\"24\" viewBox=\"0 0 24 24\">"
    "<g fill=\"#ffffff\"><path d=\"M12 2l3 7h7l-5.5 4.5 2 7.5-6.5-4.5-6.5 4.5 2-7.5L2 9h7z\"/></g></svg>";

// The four states of a button: normal, checked, disabled and (by the caller) busy.
enum Look { Normal, Checked, Disabled };

void applyLook(IconTextButton* button, Look look)
{
    if (look == Checked) {
        button->setCheckable(IconTextButton::CheckableToggle);
        button->setChecked(true);
    } else if (look == Disabled) {
        button->setDisable(true);
    }
}

} // namespace

class ButtonsPage : public QWidget
{
    Q_OBJECT
public:
    ButtonsPage()
    {
        auto* outer = new QHBoxLayout(this);
        outer->addWidget(createNavigationBar());

        auto* column = new QVBoxLayout;
        outer->addLayout(column, 1);
        column->addWidget(createTabMenu());

        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(12);
        grid->setVerticalSpacing(10);
        column->addLayout(grid);
        m_captions = QStringList{tr("Normal"), tr("Checked"), tr("Disabled"), tr("Busy")};
        for (int col = 0; col < m_captions.size(); ++col) {
            auto* header = new QLabel(m_captions.at(col));
            m_headers.append(header);
            grid->addWidget(header, 0, col + 1);
        }
        addRow(grid, 1, tr("Icon and text"), [this](Look look) {
            auto* button = new IconTextButton;
            button->setFixedSize(120, 32);
            button->setRadius(6);
            button->setText(tr("Record"));
            button->setTextAlignment(IconTextButton::AlignTextRight);
            button->setIcon(QStringLiteral(":/navi_bar/icon_record.png"), QStringLiteral(":/navi_bar/icon_record_hover.png"),
                            QStringLiteral(":/navi_bar/icon_record_hover.png"), QStringLiteral(":/navi_bar/icon_record.png"));
            button->setBackgroundColor(QColor(42, 44, 48), QColor(52, 56, 62), QColor(18, 99, 196), QColor(90, 90, 90));
            button->setTextColor(Qt::white, Qt::white, Qt::white, QColor(170, 170, 170));
            button->setUnderline(look == Checked);
            button->setUnderlineAttribute(QColor(64, 158, 255), 2);
            applyLook(button, look);
            return report(button);
        });
        addRow(grid, 2, tr("Base button"), [this](Look look) {
            auto* button = new BaseButton(look, tr("Confirm"));
            button->setFixedSize(100, 32);
            applyLook(button, look);
            connect(button, &BaseButton::sigClicked, this,
                    [this](int id, QPoint) { show(QStringLiteral("BaseButton::sigClicked(%1)").arg(id)); });
            return button;
        });
        addRow(grid, 3, tr("Blue / yellow"), [this](Look look) {
            IconTextButton* button = look == Checked ? static_cast<IconTextButton*>(new YellowIconButton)
                                                     : new BlueIconButton;
            button->setFixedSize(100, 32);
            button->setRadius(4);
            button->setText(look == Checked ? tr("Yellow") : tr("Blue"));
            button->setTextColor(Qt::white, Qt::white, Qt::white, Qt::darkGray);
            applyLook(button, look);
            return report(button);
        });
        addRow(grid, 4, tr("Check button"), [this](Look look) {
            auto* button = new IconCheckButton;
            button->setText(QString());
            applyLook(button, look);
            return report(button);
        });
        addRow(grid, 5, tr("SVG button"), [this](Look look) {
            auto* button = new SvgButton;
            button->setFixedSize(40, 40);
            button->setSvgWidgetRect(24, 24);
            button->setRadius(8);
            button->setBackgroundColor(QColor(18, 99, 196), QColor(13, 90, 182), QColor(10, 83, 170),
                                       QColor(241, 241, 241));
            button->setSvgPath(m_svgFile);
            if (look == Checked)
                button->setSvgColor(QStringLiteral("#ffd24a"));
            button->setEnabled(look != Disabled);
            connect(button, qOverload<bool>(&SvgButton::sigClicked), this,
                    [this] { show(QStringLiteral("SvgButton::sigClicked(true)")); });
            return button;
        });

        grid->addWidget(new QLabel(tr("Count-down")), 6, 0);
        grid->addWidget(createDelayButton(false), 6, 1, Qt::AlignLeft);
        grid->addWidget(createDelayButton(true), 6, 4, Qt::AlignLeft);
        grid->addWidget(new QLabel(tr("Waiting")), 7, 0);
        grid->addWidget(createWaitingButton(false), 7, 1, Qt::AlignLeft);
        grid->addWidget(createWaitingButton(true), 7, 4, Qt::AlignLeft);

        auto* others = new QHBoxLayout;
        column->addLayout(others);
        auto* doubleClick = new DoubleClickButton;
        doubleClick->setText(tr("Double-click me"));
        connect(doubleClick, &DoubleClickButton::doubleClicked, this, [this] { show(QStringLiteral("doubleClicked()")); });
        others->addWidget(doubleClick);

        auto* cycle = new BaseStateButton;
        cycle->setFixedSize(90, 32);
        cycle->addButton(1, tr("Arm"));
        cycle->addButton(2, tr("Take off"));
        cycle->addButton(3, tr("Land"));
        connect(cycle, &BaseStateButton::sigClicked, this,
                [this](int id, QPoint) { show(QStringLiteral("BaseStateButton::sigClicked(%1)").arg(id)); });
        others->addWidget(cycle);

        for (bool on : {false, true}) {
            auto* toggle = new StateSwitchButton(on ? tr("Lights") : tr("Beacon"));
            toggle->setChecked(on);
            connect(toggle, &QCheckBox::toggled, this,
                    [this](bool checked) { show(QStringLiteral("toggled(%1)").arg(checked)); });
            others->addWidget(toggle);
        }

        auto* display = new DisplayButton;
        display->setFixedSize(120, 70);
        display->setTipText(tr("Mode"));
        display->setAreaText(tr("Loiter"));
        connect(display, &DisplayButton::sigClicked, this, [this] { show(QStringLiteral("DisplayButton::sigClicked()")); });
        others->addWidget(display);
        others->addStretch();

        column->addWidget(m_emitted);
        column->addStretch();
        show(QStringLiteral("-"));
    }

private:
    QTemporaryDir m_dir;
    QString m_svgFile = writeSvg();
    QStringList m_captions;
    QList<QLabel*> m_headers;
    QLabel* m_emitted = new QLabel(this);

    QString writeSvg()
    {
        const QString path = m_dir.filePath(QStringLiteral("star.svg"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(StarSvg);
        return path;
    }

    void show(const QString& what) { m_emitted->setText(tr("Emitted: %1").arg(what)); }

    IconTextButton* report(IconTextButton* button)
    {
        connect(button, qOverload<bool>(&IconTextButton::sigClicked), this, [this, button](bool checked) {
            show(QStringLiteral("%1::sigClicked(%2)").arg(QLatin1String(button->metaObject()->className())).arg(checked));
        });
        return button;
    }

    template <typename Create>
    void addRow(QGridLayout* grid, int row, const QString& title, Create create)
    {
        grid->addWidget(new QLabel(title), row, 0);
        for (Look look : {Normal, Checked, Disabled})
            grid->addWidget(create(look), row, look + 1, Qt::AlignLeft);
    }

    QWidget* createDelayButton(bool busy)
    {
        auto* delay = new DelayButton;
        delay->setFixedSize(90, 32);
        delay->setRadius(6);
        delay->setMaxCount(5);
        delay->setText(tr("Send"));
        delay->setBackgroundColor(QColor(18, 99, 196), QColor(13, 90, 182), QColor(10, 83, 170), QColor(150, 150, 150));
        delay->setTextColor(Qt::black, Qt::black, Qt::black, Qt::white);
        connect(delay, &DelayButton::sigDelayButtonClicked, this, [this] { show(QStringLiteral("sigDelayButtonClicked()")); });
        connect(delay, &DelayButton::sigDelayButtonTimeout, this, [this] { show(QStringLiteral("sigDelayButtonTimeout()")); });
        if (busy) {
            // Started the way a click starts it, before the page shows.
            delay->setMaxCount(30);
            QMetaObject::invokeMethod(delay, "slotSelfClicked");
        }
        return delay;
    }

    QWidget* createWaitingButton(bool busy)
    {
        auto* waiting = new RotatingWaitingButton;
        waiting->setFixedSize(90, 32);
        waiting->setWaitingTime(busy ? 60000 : 3000);
        waiting->setRotateColor(QColor(200, 200, 200), QColor(0, 187, 101));
        waiting->setShowText(tr("Connect"), false);
        if (busy)
            waiting->startWaiting();
        connect(waiting, &RotatingWaitingButton::sigWaitingTimeout, this,
                [this] { show(QStringLiteral("sigWaitingTimeout()")); });
        return waiting;
    }

    QWidget* createTabMenu()
    {
        auto* menu = new TabMenuWidget;
        menu->setFixedHeight(36);
        menu->setBackgroundColor(QColor(26, 33, 40));
        const QStringList titles{tr("Flight"), tr("Mission"), tr("Payload"), tr("Help")};
        for (int id = 0; id < titles.size(); ++id) {
            auto* entry = new TabMenuItemWidget(id, titles.at(id));
            entry->setBackgroundColor(QColor(26, 33, 40), QColor(39, 41, 44), QColor(18, 99, 196), QColor(26, 33, 40));
            entry->setFixedWidth(110);
            if (id == 1 || id == 2) {
                for (int sub = 0; sub < 3; ++sub)
                    entry->insertSubMenuItem(sub, tr("%1 item %2").arg(titles.at(id)).arg(sub + 1));
            }
            menu->insertMenuItem(entry);
        }
        menu->setCurrentMenuItem(0, -1, false);
        connect(menu, &TabMenuWidget::sigMenuItemClicked, this, [this](int main, int sub) {
            show(QStringLiteral("TabMenuWidget::sigMenuItemClicked(%1, %2)").arg(main).arg(sub));
        });
        return menu;
    }

    QWidget* createNavigationBar()
    {
        auto* bar = new IVerticalBarWidget;
        bar->setFixedWidth(88);
        bar->setBackgroundColor(true, QColor(26, 33, 40));
        const struct { const char* icon; const char* title; IVerticalBarWidget::BtnLayoutIndex group; } entries[] = {
            {"home", QT_TR_NOOP("Home"), IVerticalBarWidget::LayoutTOP},
            {"operation", QT_TR_NOOP("Fly"), IVerticalBarWidget::LayoutTOP},
            {"record", QT_TR_NOOP("Records"), IVerticalBarWidget::LayoutMIDDLE},
            {"system", QT_TR_NOOP("System"), IVerticalBarWidget::LayoutBOTTOM},
            {"setting", QT_TR_NOOP("Settings"), IVerticalBarWidget::LayoutBOTTOM},
        };
        for (const auto& entry : entries) {
            IconTextButton* button = bar->appendIconButton(entry.group, tr(entry.title));
            button->setFixedHeight(64);
            const QString normal = QStringLiteral(":/navi_bar/icon_%1.png").arg(QLatin1String(entry.icon));
            const QString hover = QStringLiteral(":/navi_bar/icon_%1_hover.png").arg(QLatin1String(entry.icon));
            button->setIcon(normal, hover, hover, normal);
            button->setFontPixelSize(12, QStringLiteral("Microsoft YaHei UI"), false);
            connect(button, qOverload<bool>(&IconTextButton::sigClicked), this,
                    [this, button] { show(QStringLiteral("navigation \"%1\"").arg(button->text())); });
        }
        bar->addStretch(IVerticalBarWidget::LayoutMIDDLE);
        bar->setButtonTextColor(QColor(168, 178, 190), Qt::white, Qt::white, Qt::gray);
        return bar;
    }
};

GALLERY_PAGE(ButtonsPage, QT_TRANSLATE_NOOP("Gallery", "Buttons"), 20)

#include "buttonspage.moc"
