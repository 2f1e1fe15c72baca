#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QWidget>

// The faint preview of the maximised window shown while a dragged frameless window is
// held at the top edge of the screen: a frameless, 10 % opaque top-level window that lets
// the mouse through. It is created hidden.
class VORLIN_EXPORT ShadowWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ShadowWidget(QWidget* parent = nullptr);
};
