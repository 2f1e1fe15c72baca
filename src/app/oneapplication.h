#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

class OneApplicationImpl;

// Tells whether another instance of the program is running, through a named system
// mutex held by the first instance for the guard's whole life; and finds, or brings to
// the front, a top-level window by its exact title.
class VORLIN_EXPORT OneApplication : public QObject
{
    Q_OBJECT
public:
    // The name is used as it is; the program chooses it.
    explicit OneApplication(QString name, QObject* parent = nullptr);
    ~OneApplication() override;

    // True when no other holder of the name exists; this object then holds it. A second
    // call in the first instance finds its own mutex and answers false.
    bool isFirstApp();

    // Both report false / do nothing without a window system that can be searched
    // (under Linux: anything but X11).
    static bool IsWindowsVisible(QString title);
    static void ShowWindow(QString title);

private:
    QSharedPointer<OneApplicationImpl> d;
};
