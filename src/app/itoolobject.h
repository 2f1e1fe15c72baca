#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>

// Plain base of tool objects that may be moved into a worker thread.
class VORLIN_EXPORT IToolObject : public QObject
{
    Q_OBJECT
public:
    explicit IToolObject(QObject* parent = nullptr);

protected:
    // Derived tools override this to handle CustomEvent and CustomMovieEvent.
    void customEvent(QEvent* event) override;
};
