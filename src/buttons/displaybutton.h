#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <array>

// A two-part button: a caption strip (the tip) on top and a clickable area below
// it. Only a click in the area emits sigClicked().
class VORLIN_EXPORT DisplayButton : public QWidget
{
    Q_OBJECT
public:
    explicit DisplayButton(QWidget* parent = nullptr);
    ~DisplayButton() override;

    void setRadius(int radius);
    void setTipHeight(int height);
    void setTipText(const QString& text);
    QString tipText() const;
    void setAreaText(const QString& text);
    QString areaText() const;

    // Text colour, then the backgrounds for normal, hover, press and disable.
    void setTipBkgColor(const QColor& text, const QColor& normal, const QColor& hover, const QColor& press,
                        const QColor& disable);
    void setAreaBkgColor(const QColor& text, const QColor& normal, const QColor& hover, const QColor& press,
                         const QColor& disable);

Q_SIGNALS:
    void sigClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum { ColorText = 0, ColorCount = 5 };

    QRect areaRect() const;
    bool cursorInArea() const;
    QPainterPath tipPath(int x, int y, int w, int h, int radius) const;
    void setState(int state);

    int m_radius = 8;
    int m_tipHeight = 30;
    int m_state = 0; // 0 normal, 1 hover, 2 press
    std::array<QColor, ColorCount> m_tipColors;
    QString m_tipText;
    std::array<QColor, ColorCount> m_areaColors;
    QString m_areaText;
};
