#pragma once

#include "vorlinglobal.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>

// A label that pops up a companion widget while the mouse rests on it. The tip widget
// (normally a top-level pop-up) is placed beside the label's bottom-right corner and
// hides again once the mouse has left both.
class VORLIN_EXPORT TipLabel : public QLabel
{
    Q_OBJECT
public:
    // Where the tip appears relative to the label.
    enum E_TIP_SHOW_POS {
        TipBottomRight = 0,
        TipBottomLeft = 1,
        TipTopRight = 2,
        TipTopLeft = 3,
    };
    Q_ENUM(E_TIP_SHOW_POS)

    explicit TipLabel(QWidget* parent = nullptr);
    explicit TipLabel(const QString& text, QWidget* parent = nullptr);
    ~TipLabel() override;

    // Takes ownership: the widget is released with the label.
    void setTipWidget(QWidget* widget);
    QWidget* getTipWidget() const { return m_tipWidget; }
    void setTipShowPos(E_TIP_SHOW_POS position);
    // Aligns the tip with the label's edge instead of placing it past the label.
    void setTipWidgetIsHAligned(bool aligned);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void showTips();
    void checkMousePosition();

private:
    E_TIP_SHOW_POS m_showPos = TipBottomRight;
    QPointer<QWidget> m_tipWidget;
    bool m_hAligned = false;
    QTimer m_showTimer;
    QTimer m_checkTimer;
};
