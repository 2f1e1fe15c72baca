#include "sliderwidget.h"

#include "slidermarker.h"

#include <QtGui/QCursor>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolTip>

SliderWidget::SliderWidget(QWidget* parent)
    : QWidget(parent)
    , m_slider(new SliderMarker(Qt::Vertical, this))
{
    setFixedSize(30, 110);
    // A plain QWidget subclass paints its style-sheet background only when asked to.
    setAttribute(Qt::WA_StyledBackground);
    // Qt warns that rgb() takes no alpha, but still applies it; the text is the one
    // applications already style against.
    setStyleSheet(QStringLiteral("QWidget{ background-color:rgb(64,64,64,200); border-radius:5px; }"));
    m_slider->setFixedSize(12, 85);
    connect(m_slider, &QSlider::valueChanged, this, &SliderWidget::slot_SliderMove);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_slider);
}

void SliderWidget::slot_SliderMove(int value)
{
    QToolTip::showText(QCursor::pos(), QString::number(value));
}
