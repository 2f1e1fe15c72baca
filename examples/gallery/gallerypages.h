#pragma once

#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>

// The gallery's page catalogue. A page registers itself from its own source file:
//   GALLERY_PAGE(ButtonsPage, QT_TRANSLATE_NOOP("Gallery", "Buttons"), 20)
// Pages are shown in ascending order.
struct GalleryPage
{
    const char* title; // translated in the "Gallery" context
    int order;
    std::function<QWidget*()> create;
};

class GalleryPages
{
public:
    static bool add(const char* title, int order, std::function<QWidget*()> create);
    static QList<GalleryPage> sorted();
};

#define GALLERY_PAGE(Class, title, order) \
    static const bool galleryPageRegistered##Class = GalleryPages::add(title, order, [] { return new Class; });

// A page whose texts follow the language switch: retranslate() runs on every language change.
class TranslatedPage : public QWidget
{
protected:
    virtual void retranslate() = 0;

    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        QWidget::changeEvent(event);
    }
};
