#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

class SingleApplicationImpl;

// Tells whether another instance of the program is running, through a local socket
// server named after the application. The first instance listens for as long as the
// guard lives; later instances only knock and learn that it exists.
class VORLIN_EXPORT SingleApplication : public QObject
{
    Q_OBJECT
public:
    explicit SingleApplication(QObject* parent = nullptr);
    ~SingleApplication() override;

    bool IsRunning();
    // Keeps the interface alive for the given time; ignores any immediate-quit flag.
    void MsDelayUI(int msTimeout);

private Q_SLOTS:
    void slotNewLocalConnection();

private:
    void initLocalConnection();
    void initLocalServer();

    QSharedPointer<SingleApplicationImpl> d;
};
