#pragma once

#include "imainwindow.h"

class QListWidget;
class QStackedWidget;

// The gallery's main window: the page list beside the pages.
class GalleryWindow : public IMainWindow
{
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    int pageCount() const;
    QWidget* page(int index) const;
    QString pageTitle(int index) const;
    void showPage(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QListWidget* m_pageList;
    QStackedWidget* m_pages;
    QList<const char*> m_titles;
};
