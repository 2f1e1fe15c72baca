#pragma once

#include "ititlebarwidget.h"

#include <QtGui/QPixmap>

class QLabel;
class SvgButton;

class ITitleBarWidgetImpl
{
public:
    ITitleBarWidget::SysBtnRoles sysBtnRoles{ITitleBarWidget::SysBtnMenu | ITitleBarWidget::SysBtnMin |
                                             ITitleBarWidget::SysBtnMax | ITitleBarWidget::SysBtnClose};
    SvgButton* logo = nullptr;
    QLabel* titleLabel = nullptr;
    Qt::Alignment titleAlignment = Qt::AlignLeft;
    QPixmap backgroundSkin;
    bool backgroundColorEnabled = false;
    QColor backgroundColor = Qt::transparent;
    QPixmap closeIcon;
    QPixmap maximizeIcon;
    QPixmap minimizeIcon;
    QPixmap restoreIcon;
};
