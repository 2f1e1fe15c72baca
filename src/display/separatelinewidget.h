#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

// A filled one-colour line or rectangle. Frames and tables use it for their border and
// grid lines and size it themselves, usually one or two pixels thick.
class VORLIN_EXPORT SeparateLineWidget : public QWidget
{
    Q_OBJECT
public:
    explicit SeparateLineWidget(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color{204, 204, 204, 255};
};
