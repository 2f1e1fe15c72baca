#include "displaytest.h"

#include "dashlinewidget.h"
#include "separatelinewidget.h"
#include "slidermarker.h"

#include <QtTest/QtTest>

using namespace displaytest;

class LinesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sliderJumpsToTheClickedPoint_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("expected");
        // The top of a vertical slider is its maximum.
        QTest::newRow("vertical top") << int(Qt::Vertical) << QPoint(6, 0) << 100;
        QTest::newRow("vertical truncated") << int(Qt::Vertical) << QPoint(6, 42) << 50;
        QTest::newRow("horizontal truncated") << int(Qt::Horizontal) << QPoint(42, 6) << 49;
    }

    void sliderJumpsToTheClickedPoint()
    {
        QFETCH(int, orientation);
        QFETCH(QPoint, point);
        QFETCH(int, expected);
        SliderMarker slider{Qt::Orientation(orientation)};
        slider.setRange(0, 100);
        slider.setValue(20);
        slider.resize(orientation == Qt::Vertical ? QSize(12, 85) : QSize(85, 12));
        QMouseEvent press(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&slider, &press);
        QCOMPARE(slider.sliderPosition(), expected);
    }

    void sliderFollowsOnlyADraggingMouse()
    {
        SliderMarker slider(Qt::Vertical);
        slider.setRange(0, 100);
        slider.resize(12, 85);
        slider.setValue(20);
        QMouseEvent hover(QEvent::MouseMove, QPoint(6, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&slider, &hover);
        QCOMPARE(slider.sliderPosition(), 20);
        QMouseEvent drag(QEvent::MouseMove, QPoint(6, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&slider, &drag);
        QCOMPARE(slider.sliderPosition(), 100);
    }

    void linesPaintTheirColour()
    {
        SeparateLineWidget line;
        line.resize(20, 2);
        QVERIFY(near(render(&line).pixel(10, 1), QColor(204, 204, 204)));
        line.setColor(QColor(200, 10, 10));
        QVERIFY(near(render(&line).pixel(19, 1), QColor(200, 10, 10), 0));

        DashlineWidget outline;
        outline.showRect(QRect(10, 20, 200, 100));
        outline.showRect(QRect(30, 40, 120, 60));
        QVERIFY(outline.isVisible());
        QCOMPARE(outline.geometry(), QRect(30, 40, 120, 60));
        outline.setColor(QColor(0, 200, 0));
        const QImage image = render(&outline);
        QVERIFY(near(image.pixel(1, 30), QColor(0, 200, 0)));
        QCOMPARE(qAlpha(image.pixel(60, 30)), 0); // an outline, not a fill
    }
};

QObject* createLinesTest()
{
    return new LinesTest;
}

#include "tst_lines.moc"
