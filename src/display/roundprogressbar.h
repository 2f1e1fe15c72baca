#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

// A ring filling clockwise from twelve o'clock with the share value / maximum, with the
// percentage written in the middle.
class VORLIN_EXPORT RoundProgressBar : public QWidget
{
    Q_OBJECT
public:
    explicit RoundProgressBar(QWidget* parent = nullptr);

    // Not clamped: above the maximum the text passes 100% while the ring stays full.
    void setValue(int value);
    int value() const { return m_value; }
    // Ignored unless positive.
    void setMaxValue(int maximum);
    int maxValue() const { return m_maximum; }
    void setProcessRingWidth(int width);
    // Take effect with the next repaint.
    void setProsessBarColor(const QColor& progress, const QColor& track, const QColor& text);
    void setProsessBarColor(QString progress, QString track, QString text);
    // Hides the percentage for the widget's lifetime.
    void hideProcessText();
    QString text() const { return m_text; }

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void valueChanged();

    int m_value = 0;
    int m_maximum = 1;
    int m_ringWidth = 5;
    bool m_showText = true;
    QString m_text;
    QColor m_progressColor{0xD0, 0xD0, 0xD0};
    QColor m_trackColor = Qt::black;
    QColor m_textColor = Qt::black;
};
