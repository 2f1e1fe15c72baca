#include "singleapplication.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

namespace {
constexpr int kConnectTimeoutMs = 100;
}

class SingleApplicationImpl
{
public:
    QString serverName;
    bool running = false;
    QLocalServer* server = nullptr; // child of the guard, first instance only
};

SingleApplication::SingleApplication(QObject* parent)
    : QObject(parent)
    , d(new SingleApplicationImpl)
{
    d->serverName = QCoreApplication::applicationName();
    initLocalConnection();
}

SingleApplication::~SingleApplication() = default;

bool SingleApplication::IsRunning()
{
    return d->running;
}

void SingleApplication::MsDelayUI(int msTimeout)
{
    const QDateTime deadline = QDateTime::currentDateTime().addMSecs(msTimeout);
    while (QDateTime::currentDateTime() < deadline)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

void SingleApplication::initLocalConnection()
{
    d->running = false;
    QLocalSocket socket;
    socket.connectToServer(d->serverName);
    if (socket.waitForConnected(kConnectTimeoutMs)) {
        // Knocking is all: the running instance is told nothing.
        d->running = true;
        return;
    }
    if (!d->server) {
        d->server = new QLocalServer(this);
        connect(d->server, &QLocalServer::newConnection, this, &SingleApplication::slotNewLocalConnection);
    }
    if (!d->server->listen(d->serverName)
        && d->server->serverError() == QAbstractSocket::AddressInUseError) {
        // Left behind by an instance that died without closing its server.
        QLocalServer::removeServer(d->serverName);
        d->server->listen(d->serverName);
    }
}

void SingleApplication::initLocalServer()
{
    d->serverName = QCoreApplication::applicationName();
    initLocalConnection();
}

void SingleApplication::slotNewLocalConnection()
{
    QLocalSocket* socket = d->server->nextPendingConnection();
    if (!socket)
        return;
    // The knock is only acknowledged by closing: the running instance neither reads
    // what was sent nor raises its window.
    MsDelayUI(100);
    socket->waitForReadyRead(kConnectTimeoutMs);
    delete socket;
}
