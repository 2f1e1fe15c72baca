#include "gallerypages.h"

#include <algorithm>

namespace {
QList<GalleryPage>& catalogue()
{
    static QList<GalleryPage> pages;
    return pages;
}
} // namespace

bool GalleryPages::add(const char* title, int order, std::function<QWidget*()> create)
{
    catalogue().append({title, order, std::move(create)});
    return true;
}

QList<GalleryPage> GalleryPages::sorted()
{
    QList<GalleryPage> pages = catalogue();
    std::stable_sort(pages.begin(), pages.end(), [](const GalleryPage& a, const GalleryPage& b) { return a.order < b.order; });
    return pages;
}
