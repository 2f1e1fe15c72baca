#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QSvgWidget;

// A clickable vector icon centred on a rounded, state-coloured background. The
// icon can be recoloured at run time: see setSvgColor().
class VORLIN_EXPORT SvgButton : public QWidget
{
    Q_OBJECT
public:
    explicit SvgButton(QWidget* parent = nullptr);
    ~SvgButton() override;

    Q_INVOKABLE void setRadius(int radius);
    Q_INVOKABLE void setSvgPath(QString sPath);
    // Size of the icon, centred in the button.
    Q_INVOKABLE void setSvgWidgetRect(int w, int h);
    // Reloads the icon from its file with the fill of every "g" element that has
    // one replaced by color. The file is not changed, so colours never accumulate.
    Q_INVOKABLE void setSvgColor(QString color);
    Q_INVOKABLE void setBackgroundColor(QColor normal, QColor hover, QColor press, QColor disable);
    Q_INVOKABLE void setEnabledToolTip(QString stextTip, bool bEnableTooltip);

Q_SIGNALS:
    void sigClicked(bool checked = true);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    // 0 normal, 1 hover, 2 press, 3 disable. Nothing here sets 3; a subclass may.
    int m_state = 0;

private:
    void setState(int state);

    int m_radius = 0;
    QColor m_backgroundColors[4];
    int m_iconWidth = 0;
    int m_iconHeight = 0;
    QString m_svgPath;
    QSvgWidget* m_svgWidget = nullptr;
    bool m_toolTipEnabled = false;
};
