#pragma once

#include "imainwindow.h"

class IconTextButton;
class ITitleBarWidget;
class IVerticalBarWidget;
class QStackedWidget;

// The gallery's main window: a frameless window with its title bar, the navigation bar
// beside the pages and a status bar whose link indicator follows the simulated vehicle.
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
    QString statusBarCredit() const override;

private:
    void retranslate();

    ITitleBarWidget* m_titleBar;
    IVerticalBarWidget* m_navigation;
    QStackedWidget* m_pages;
    QList<IconTextButton*> m_pageButtons;
    QList<const char*> m_titles;
};
