#include "oneapplication.h"

#include "namedmutex.h"
#include "windowlookup.h"

class OneApplicationImpl
{
public:
    ~OneApplicationImpl() { vorlin::platform::releaseNamedMutex(handle); }

    QString name;
    vorlin::platform::NamedMutex* handle = nullptr;
};

OneApplication::OneApplication(QString name, QObject* parent)
    : QObject(parent)
    , d(new OneApplicationImpl)
{
    d->name = name;
}

OneApplication::~OneApplication() = default;

bool OneApplication::isFirstApp()
{
    bool heldElsewhere = false;
    vorlin::platform::NamedMutex* handle = vorlin::platform::acquireNamedMutex(d->name, &heldElsewhere);
    if (heldElsewhere)
        return false;
    // Not reported: a mutex that could not be created still makes this the first instance.
    if (handle) {
        vorlin::platform::releaseNamedMutex(d->handle);
        d->handle = handle;
    }
    return true;
}

bool OneApplication::IsWindowsVisible(QString title)
{
    return vorlin::platform::isTopLevelWindowVisible(title);
}

void OneApplication::ShowWindow(QString title)
{
    vorlin::platform::raiseTopLevelWindow(title);
}
