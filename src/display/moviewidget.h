#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QWidget>

class QImage;

// Shows the latest frame of a video or animation source, scaled to fit on black. A
// producer on any thread hands over frames with CustomMovieEvent::AsyncPostEvent; the
// widget owns each frame until the next one replaces it.
class VORLIN_EXPORT MovieWidget : public QWidget
{
    Q_OBJECT
public:
    explicit MovieWidget(QWidget* parent = nullptr);
    ~MovieWidget() override;

protected:
    void customEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QImage* m_frame = nullptr;
};
