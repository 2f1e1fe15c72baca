#include "gallerywindow.h"

#include "gallerypages.h"
#include "mainapplication.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

GalleryWindow::GalleryWindow(QWidget* parent)
    : IMainWindow(parent)
    , m_pageList(new QListWidget)
    , m_pages(new QStackedWidget)
{
    auto* central = new QWidget;
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_pageList->setFixedWidth(160);
    layout->addWidget(m_pageList);
    layout->addWidget(m_pages, 1);
    setCentralWidget(central);

    auto* app = qobject_cast<MainApplication*>(QCoreApplication::instance());
    for (const GalleryPage& page : GalleryPages::sorted()) {
        QWidget* widget = page.create();
        m_pages->addWidget(widget);
        m_titles.append(page.title);
        m_pageList->addItem(QString());
        if (app)
            app->insertPageWindow(QLatin1String(page.title), widget);
    }
    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_pageList->setCurrentRow(0);
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
    m_pageList->setCurrentRow(index);
}

void GalleryWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    IMainWindow::changeEvent(event);
}

void GalleryWindow::retranslate()
{
    setWindowTitle(QCoreApplication::translate("Gallery", "vorlin gallery"));
    for (int i = 0; i < m_titles.size(); ++i)
        m_pageList->item(i)->setText(pageTitle(i));
}
