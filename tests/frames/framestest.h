#pragma once

#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <functional>

// Helpers shared by the frame tests.
namespace framestest {

// Sends a mouse event with explicit window and screen positions, so drags do not depend on
// where the platform puts the cursor.
inline void sendMouse(QWidget* target, QEvent::Type type, const QPoint& local, const QPoint& global,
                      Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, local, global, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

// Presses the left button at local, drags to the screen point global and releases there.
inline void dragTo(QWidget* target, const QPoint& local, const QPoint& global)
{
    const QPoint pressGlobal = target->mapToGlobal(local);
    sendMouse(target, QEvent::MouseButtonPress, local, pressGlobal, Qt::LeftButton, Qt::LeftButton);
    sendMouse(target, QEvent::MouseMove, local + global - pressGlobal, global, Qt::NoButton, Qt::LeftButton);
    sendMouse(target, QEvent::MouseButtonRelease, target->mapFromGlobal(global), global, Qt::LeftButton, Qt::NoButton);
}

// Runs action on the next modal widget that opens after the call (polling the event loop,
// which the modal loop keeps running).
inline void whenModal(const std::function<void(QWidget*)>& action)
{
    QWidget* before = QApplication::activeModalWidget();
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [poll, before, action] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal == before)
            return;
        poll->stop();
        poll->deleteLater();
        action(modal);
    });
    poll->start(5);
}

inline void clickButton(QWidget* parent, const QString& text)
{
    for (QAbstractButton* button : parent->findChildren<QAbstractButton*>())
        if (button->text() == text) {
            button->click();
            return;
        }
}

} // namespace framestest
