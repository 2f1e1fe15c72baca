#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <memory>

// The library's custom-painted push button: a rounded background, an optional
// icon, a caption, an optional underline, hint dot and border, each chosen by the
// display state (normal, hover, press, disable). Most clickable widgets of the
// library derive from it.
class VORLIN_EXPORT IconTextButton : public QWidget
{
    Q_OBJECT
public:
    // What is painted now; kept as a plain int so that subclasses may select
    // their own looks by it. The disabled look is a painting state set through
    // setDisable(), not QWidget::setEnabled().
    enum DisplayState { StateNormal = 0, StateHover = 1, StatePress = 2, StateDisable = 3 };

    enum CheckableType { CheckableFalse = 0, CheckableHold = 1, CheckableToggle = 2 };
    Q_ENUM(CheckableType)

    // Layout of icon and caption: AlignTextRight puts the caption right of the
    // icon, AlignTextBottom under it.
    enum AlignText { AlignTextLeft = 0, AlignTextCenter = 1, AlignTextRight = 2, AlignTextBottom = 3 };
    Q_ENUM(AlignText)

    explicit IconTextButton(QWidget* parent = nullptr);
    ~IconTextButton() override;

    void setText(const QString& text);
    QString text() const;

    void setIcon(const QPixmap& normal, const QPixmap& hover, const QPixmap& press, const QPixmap& disable);
    void setIcon(const QString& normal, const QString& hover, const QString& press, const QString& disable);
    void setTextColor(const QColor& normal, const QColor& hover, const QColor& press, const QColor& disable);
    void setBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press, const QColor& disable);
    void backgroundColor(QColor& normal, QColor& hover, QColor& press, QColor& disable) const;
    void setBorderColor(const QColor& normal, const QColor& hover, const QColor& press, const QColor& disable);
    void borderColor(QColor& normal, QColor& hover, QColor& press, QColor& disable) const;
    void setBorderWidget(int width);
    void setRadius(int radius);
    void setLeftMargin(int margin);
    void setTextAlignment(AlignText alignment);

    void setCheckable(CheckableType type);
    CheckableType isCheckable() const;
    void setChecked(bool checked);
    bool isChecked() const;
    void setDisable(bool disable);

    void setUnderline(bool underline);
    void setUnderlineAttribute(const QColor& color, int width);
    void enableHintColor(bool enable);
    bool isEnabledHintColor() const;
    void setHintColor(const QColor& color);

    void setFontBold(bool bold);
    void setFontPixelSize(int size, const QString& family, bool bold);

    void setEnabledToolTip(bool enable);
    void setEnableFilterKeyPressEvent(bool enable);
    void setEnableFilterMousePressEvent(bool enable);

Q_SIGNALS:
    void sigClicked(bool checked = true);

protected:
    // The paint inputs of the current state: the address of its icon, its
    // background, text and border colours and the border width. Outside the four
    // states the outputs are left as the caller initialised them.
    void copyMemberValue(QPixmap*& icon, QColor& background, QColor& textColor, QColor& borderColor,
                         int& borderWidth);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

    // Four-valued members are indexed by DisplayState.
    int m_state = StateNormal;
    CheckableType m_checkable = CheckableFalse;
    bool m_checked = false;
    int m_radius = 0;
    int m_leftMargin = 4;
    QColor m_underlineColor = Qt::blue;
    int m_underlineWidth = 2;
    bool m_underline = false;
    QColor m_hintColor = Qt::blue;
    bool m_hintEnabled = false;
    bool m_toolTipEnabled = false;
    QString m_text;
    QColor m_textColors[4];
    AlignText m_alignment = AlignTextCenter;
    QColor m_backgroundColors[4];
    QPixmap m_icons[4];
    QColor m_borderColors[4];
    int m_borderWidth = 0;
    bool m_filterKeyEvents = false;
    bool m_filterMouseEvents = false;

private:
    struct PaintInputs;
    struct PaintCache;

    void setState(int state);
    PaintInputs paintInputs();
    void paintButton(QPainter& painter, const PaintInputs& in) const;

    // The last paint, replayed while none of its inputs changed.
    std::unique_ptr<PaintCache> m_paintCache;
};
