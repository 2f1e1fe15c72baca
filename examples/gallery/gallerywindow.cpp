#include "gallerywindow.h"

#include "gallerypages.h"
#include "icontextbutton.h"
#include "ititlebarwidget.h"
#include "iverticalbarwidget.h"
#include "mainapplication.h"
#include "simulatedvehicle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>

namespace {

const QColor kChrome(26, 33, 40);

// The title bar: logo, title, clock and the system buttons with the library's icons.
class GalleryTitleBar : public ITitleBarWidget
{
public:
    GalleryTitleBar()
    {
        initSysBtnLayout();
        setFixedHeight(40);
        setBackgroundColor(true, kChrome);
        setSysBtnIcon(QStringLiteral(":/title_sysbtn/title_close_n.png"),
                      QStringLiteral(":/title_sysbtn/title_minimize_n.png"),
                      QStringLiteral(":/title_sysbtn/title_maximized_n.png"),
                      QStringLiteral(":/title_sysbtn/title_maximized2normal_n.png"));
        setLogoSize(28, 28);
        setTitleLogo(QString(), QStringLiteral(":/gallery/logo.svg"));
        setTitleTextPalette(16, QStringLiteral("#E6E8EB"));
        findChild<QLabel*>(QStringLiteral("labelTime"))->setStyleSheet(QStringLiteral("color: #AEB6C1;"));
        for (QToolButton* button : findChildren<QToolButton*>())
            button->setStyleSheet(sysButtonHoverStyle());
    }
};

// Icons of the navigation buttons, used in turn.
const char* const kNavigationIcons[] = {"home", "operation", "record", "setting", "system"};

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : IMainWindow(parent)
    , m_titleBar(new GalleryTitleBar)
    , m_navigation(new IVerticalBarWidget)
    , m_pages(new QStackedWidget)
{
    initWindowStyle();
    setMenuWidget(m_titleBar);
    SetTitleWidget(m_titleBar);

    auto* central = new QWidget;
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(1, 0, 1, 0);
    layout->setSpacing(0);
    m_navigation->setFixedWidth(96);
    m_navigation->setBackgroundColor(true, kChrome);
    layout->addWidget(m_navigation);
    layout->addWidget(m_pages, 1);
    setCentralWidget(central);

    auto* app = qobject_cast<MainApplication*>(QCoreApplication::instance());
    for (const GalleryPage& page : GalleryPages::sorted()) {
        const int index = m_pages->count();
        QWidget* widget = page.create();
        m_pages->addWidget(widget);
        m_titles.append(page.title);
        IconTextButton* button = m_navigation->appendIconButton(IVerticalBarWidget::LayoutTOP, QString());
        const QString icon = QStringLiteral(":/navi_bar/icon_%1").arg(QLatin1String(kNavigationIcons[index % 5]));
        button->setIcon(icon + QStringLiteral(".png"), icon + QStringLiteral("_hover.png"),
                        icon + QStringLiteral("_hover.png"), icon + QStringLiteral(".png"));
        button->setFixedHeight(72);
        connect(button, &IconTextButton::sigClicked, this, [this, index] { showPage(index); });
        m_pageButtons.append(button);
        if (app)
            app->insertPageWindow(QLatin1String(page.title), widget);
    }
    m_navigation->addStretch(IVerticalBarWidget::LayoutBOTTOM);

    setStatusBar(new QStatusBar);
    initStatusBarWidgetUI(true);
    SimulatedVehicle* vehicle = SimulatedVehicle::instance();
    connect(vehicle, &SimulatedVehicle::changed, this, [this, vehicle] { setDeviceLinked(vehicle->isLinked()); });
    setDeviceLinked(vehicle->isLinked());
    setBorderColor(QColor(60, 66, 76));

    showPage(0);
    retranslate();
    resize(1280, 800);
}

int GalleryWindow::pageCount() const
{
    return m_pages->count();
}

QWidget* GalleryWindow::page(int index) const
{
    return m_pages->widget(index);
}

QString GalleryWindow::pageTitle(int index) const
{
    return QCoreApplication::translate("Gallery", m_titles.value(index));
}

void GalleryWindow::showPage(int index)
{
    m_pages->setCurrentIndex(index);
    // The bar does not group its buttons: keep exactly the current page's pressed.
    for (int i = 0; i < m_pageButtons.size(); ++i)
        m_pageButtons[i]->setChecked(i == index);
}

void GalleryWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    IMainWindow::changeEvent(event);
}

QString GalleryWindow::statusBarCredit() const
{
    return tr("vorlin widgets for ground control ");
}

void GalleryWindow::retranslate()
{
    const QString title = QCoreApplication::translate("Gallery", "vorlin gallery");
    setWindowTitle(title);
    m_titleBar->setTitleText(title);
    for (int i = 0; i < m_pageButtons.size(); ++i)
        m_pageButtons[i]->setText(pageTitle(i));
}
