#pragma once

#include "vorlinglobal.h"

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

// A loading glyph turning once a second on a plain background, while shown.
class VORLIN_EXPORT RotatingWaitingWidget : public QWidget
{
    Q_OBJECT
public:
    explicit RotatingWaitingWidget(QWidget* parent = nullptr);

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor& color);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void rotate();

    QPixmap m_picture;
    QTimer m_timer;
    QColor m_backgroundColor = Qt::white;
    float m_angle = 0;
};
