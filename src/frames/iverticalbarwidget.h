#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class IconTextButton;
class QVBoxLayout;

// The column of navigation buttons beside an application's pages, in three stacked
// groups (top, middle, bottom). The bar creates preset IconTextButtons and hands
// them back; icons, signals and which button stays pressed are up to the caller.
class VORLIN_EXPORT IVerticalBarWidget : public QWidget
{
    Q_OBJECT
public:
    enum BtnLayoutIndex { LayoutTOP = 0, LayoutMIDDLE = 1, LayoutBOTTOM = 2 };
    Q_ENUM(BtnLayoutIndex)

    explicit IVerticalBarWidget(QWidget* parent = nullptr);
    ~IVerticalBarWidget() override;

    // An index outside the three groups still creates and lists the button but
    // places it in no layout.
    Q_INVOKABLE IconTextButton* appendIconButton(BtnLayoutIndex layoutIndex, QString text);
    // A negative index appends. These buttons get lighter backgrounds and keep the
    // default font, unlike appended ones.
    Q_INVOKABLE IconTextButton* insertIconButton(BtnLayoutIndex layoutIndex, int index, QString text);

    using QWidget::setContentsMargins;
    Q_INVOKABLE void setContentsMargins(BtnLayoutIndex layoutIndex, int left, int top, int right, int bottom);
    Q_INVOKABLE void addStretch(BtnLayoutIndex layoutIndex, int stretch);
    Q_INVOKABLE void addStretch(BtnLayoutIndex layoutIndex);
    Q_INVOKABLE void addSpacing(BtnLayoutIndex layoutIndex, int spacing);
    Q_INVOKABLE void setBackgroundColor(bool bkgEnabled, QColor color);
    Q_INVOKABLE void setBackgroundColor(bool bkgEnabled);

    // The button-wide setters reach the buttons that exist at the time of the call.
    Q_INVOKABLE void setButtonTextColor(QColor normal, QColor hover, QColor press, QColor disable);
    Q_INVOKABLE void setButtonBackgroundColor(QColor normal, QColor hover, QColor press, QColor disable);
    Q_INVOKABLE void setButtonBorderColor(QColor normal, QColor hover, QColor press, QColor disable);
    Q_INVOKABLE void setFontPixelSize(int iSize, QString family, bool isBold);
    Q_INVOKABLE void setFontPixelSize(int iSize, QString family);
    Q_INVOKABLE void setFontPixelSize(int iSize);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* layoutAt(int layoutIndex) const;
    IconTextButton* createButton(const QString& text);

    QList<IconTextButton*> m_buttons;
    QVBoxLayout* m_topLayout = nullptr;
    QVBoxLayout* m_middleLayout = nullptr;
    QVBoxLayout* m_bottomLayout = nullptr;
    bool m_backgroundEnabled = false;
    QColor m_backgroundColor = Qt::transparent;
};
