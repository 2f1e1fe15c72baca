#include "displaytest.h"

#include "bluerotatingwaitingwidget.h"
#include "custommovieevent.h"
#include "moviewidget.h"
#include "roundprogressbar.h"
#include "roundwaitwidget.h"
#include "yellowrotatingwaitingwidget.h"

#include <QtCore/QThread>
#include <QtTest/QtTest>

#include <cmath>

using namespace displaytest;

namespace {

const QColor arc(220, 30, 30);
const QColor track(30, 30, 220);

// The pixel on a ring of the given radius about the widget centre, at a clock angle in
// degrees clockwise from twelve.
QRgb onRing(const QImage& image, double radius, double clockAngle)
{
    const double a = qDegreesToRadians(clockAngle);
    return image.pixel(int(std::lround(image.width() / 2 + radius * std::sin(a))),
                       int(std::lround(image.height() / 2 - radius * std::cos(a))));
}

} // namespace

class IndicatorsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void progressTextAndSweep_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<int>>("arcAt");   // clock angles painted in the progress colour
        QTest::addColumn<QList<int>>("trackAt"); // and in the track colour
        QTest::newRow("3 of 4") << 3 << 4 << QStringLiteral("75%") << QList<int>{45, 135, 225} << QList<int>{315};
        QTest::newRow("over the maximum") << 10 << 4 << QStringLiteral("250%") << QList<int>{45, 135, 225, 315}
                                          << QList<int>{};
        QTest::newRow("negative sweeps back") << -1 << 4 << QStringLiteral("-25%") << QList<int>{315}
                                              << QList<int>{45, 135, 225};
    }

    void progressTextAndSweep()
    {
        QFETCH(int, value);
        QFETCH(int, maximum);
        QFETCH(QString, text);
        QFETCH(QList<int>, arcAt);
        QFETCH(QList<int>, trackAt);
        RoundProgressBar bar;
        bar.resize(100, 100);
        bar.setProcessRingWidth(8);
        bar.setProsessBarColor(arc, track, Qt::black);
        bar.setMaxValue(maximum);
        bar.setValue(value);
        QCOMPARE(bar.text(), text);
        const QImage image = render(&bar);
        for (int angle : arcAt)
            QVERIFY2(near(onRing(image, 42, angle), arc), qPrintable(QString::number(angle)));
        for (int angle : trackAt)
            QVERIFY2(near(onRing(image, 42, angle), track), qPrintable(QString::number(angle)));
    }

    void progressIgnoresBadInputAndCentresTheRing()
    {
        RoundProgressBar bar;
        bar.setMaxValue(4);
        bar.setValue(3);
        bar.setMaxValue(0);
        bar.setMaxValue(-5);
        QCOMPARE(bar.maxValue(), 4);
        QCOMPARE(bar.text(), QStringLiteral("75%"));
        bar.setProsessBarColor(QStringLiteral("#DC1E1E"), QStringLiteral("#1E1EDC"), QStringLiteral("black"));
        bar.resize(60, 60);
        bar.hideProcessText();
        QImage image = render(&bar);
        QVERIFY(near(onRing(image, 25, 45), arc));
        QVERIFY(near(onRing(image, 25, 315), track));
        QVERIFY(!near(image.pixel(30, 30), Qt::black, 60)); // no text
        // A negative width counts as 0, Qt's hairline: the ring moves out to the edge.
        bar.setProcessRingWidth(-3);
        image = render(&bar);
        QVERIFY(!near(onRing(image, 25, 45), arc, 60));
        QVERIFY(!near(onRing(image, 25, 315), track, 60));

        // 40 x 60 with ring width 5: the ring's middle runs on a circle of radius 15.
        bar.setValue(0);
        bar.setProcessRingWidth(5);
        bar.resize(40, 60);
        image = render(&bar);
        QVERIFY(near(image.pixel(20, 15), track));
        QVERIFY(near(image.pixel(5, 30), track));
        QVERIFY(!near(image.pixel(20, 10), track, 60));
        QVERIFY(!near(image.pixel(20, 20), track, 60));
    }

    void waitRingTurnsOnlyWhileShown()
    {
        RoundWaitWidget ring;
        ring.resize(100, 100);
        ring.setRotateRingWidth(8);
        ring.setRotateRingColor(arc, track);
        ring.show();
        // At angle 0 the quarter arc spans nine to twelve o'clock.
        QImage image = render(&ring);
        QVERIFY(near(onRing(image, 42, 315), arc));
        QVERIFY(near(onRing(image, 42, 45), track));
        QTRY_VERIFY(near(onRing(render(&ring), 42, 135), arc)); // it has moved on clockwise

        ring.hide();
        image = render(&ring);
        QTest::qWait(100);
        QCOMPARE(render(&ring), image);
        ring.show(); // and starts again from twelve o'clock
        QVERIFY(near(onRing(render(&ring), 42, 315), arc));
    }

    void spinnerPresetsAndRotation()
    {
        BlueRotatingWaitingWidget blue;
        blue.resize(60, 60);
        QVERIFY(near(render(&blue).pixel(1, 1), QColor(18, 99, 196), 0));
        YellowRotatingWaitingWidget yellow;
        yellow.resize(60, 60);
        QVERIFY(near(render(&yellow).pixel(1, 1), QColor(230, 130, 16), 0));

        const QImage still = render(&blue);
        blue.show();
        QTRY_VERIFY(render(&blue) != still);
        blue.hide();
        const QImage stopped = render(&blue);
        QTest::qWait(250);
        QCOMPARE(render(&blue), stopped);
    }

    void movieShowsFramesPostedFromAWorker()
    {
        MovieWidget movie;
        movie.resize(100, 100);
        QThread* worker = QThread::create([&movie] {
            for (int i = 0; i < 3; ++i) {
                auto* frame = new QImage(40, 20, QImage::Format_RGB32);
                frame->fill(i == 2 ? Qt::red : Qt::green);
                CustomMovieEvent::AsyncPostEvent(frame, &movie);
            }
        });
        worker->start();
        QVERIFY(worker->wait(5000));
        delete worker;
        QCoreApplication::sendPostedEvents(&movie);
        // The latest frame, scaled to fit: 100 x 50 centred, black above and below.
        QImage image = render(&movie);
        QVERIFY(near(image.pixel(50, 50), Qt::red));
        QVERIFY(near(image.pixel(50, 10), Qt::black));
        QVERIFY(near(image.pixel(50, 90), Qt::black));

        QCoreApplication::postEvent(&movie, new CustomMovieEvent(nullptr)); // clears the picture
        QCoreApplication::sendPostedEvents(&movie);
        QVERIFY(near(render(&movie).pixel(50, 50), Qt::black));
    }
};

QObject* createIndicatorsTest()
{
    return new IndicatorsTest;
}

#include "tst_indicators.moc"
