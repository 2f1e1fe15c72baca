#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QLabel>

// A rounded label, optionally clickable, that elides its text to the width it has and
// offers the full text as its tool tip.
class VORLIN_EXPORT ColorLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ColorLabel(const QString& text, QWidget* parent = nullptr);
    explicit ColorLabel(QWidget* parent = nullptr);

    // Hides QLabel::setText: keeps the full text and shows it elided at the right.
    void setText(const QString& text);
    QString GetOriginText() const { return m_originText; }

    void setTextColor(const QColor& color);
    // Paints the background in the colour when enabled, in the palette's window colour otherwise.
    void setBackgroundColor(bool enabled, const QColor& color);
    void setRadius(int radius);
    void enableClicked(bool clickable);
    void setEnabledToolTip(bool enabled);

Q_SIGNALS:
    void sigClicked();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool m_clickable = false;
    bool m_toolTipEnabled = true;
    QString m_originText;
    int m_radius = 0;
    bool m_ownBackground = false;
    QColor m_backgroundColor = Qt::transparent;
};
