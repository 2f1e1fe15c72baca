#include "displaytest.h"

#include "lxvehiclemeterwidget.h"

#include <QtTest/QtTest>

#include <algorithm>

using namespace displaytest;

namespace {

const QColor sky(0x3C, 0x8C, 0xD8);
const QColor ground(0x8A, 0x5A, 0x2E);

QImage meter(void (*set)(LxVehicleMeterWidget&))
{
    LxVehicleMeterWidget widget;
    widget.resize(300, 300);
    set(widget);
    return render(&widget);
}

// Where the rose's north letter (drawn in its own colour) is: 0 top, 1 right, 2 bottom,
// 3 left of the centre, -1 nowhere.
int northSide(const QImage& image)
{
    int count[4] = {};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (near(image.pixel(x, y), QColor(0xFF, 0x6A, 0x3C), 20)) {
                const int dx = x - image.width() / 2;
                const int dy = y - image.height() / 2;
                ++count[qAbs(dx) > qAbs(dy) ? (dx > 0 ? 1 : 3) : (dy > 0 ? 2 : 0)];
            }
    const int* most = std::max_element(count, count + 4);
    return *most > 10 ? int(most - count) : -1;
}

} // namespace

class MeterTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void headingWrapsAndTurnsTheRose()
    {
        LxVehicleMeterWidget widget;
        widget.setHeading(720);
        QCOMPARE(widget.heading(), 360.0f);

        // The rose turns so that the heading is under the index at the top.
        QCOMPARE(northSide(meter([](LxVehicleMeterWidget& m) { m.setHeading(0); })), 0);
        QCOMPARE(northSide(meter([](LxVehicleMeterWidget& m) { m.setHeading(90); })), 3);
        QCOMPARE(northSide(meter([](LxVehicleMeterWidget& m) { m.setHeading(180); })), 2);
        QCOMPARE(meter([](LxVehicleMeterWidget& m) { m.setHeading(-30); }),
                 meter([](LxVehicleMeterWidget& m) { m.setHeading(330); }));
    }

    void pitchMovesTheHorizonAndIsClamped()
    {
        // Nose up: the horizon drops below the aircraft and sky fills the centre.
        QVERIFY(near(meter([](LxVehicleMeterWidget& m) { m.setPitch(20); }).pixel(150, 165), sky));
        QVERIFY(near(meter([](LxVehicleMeterWidget& m) { m.setPitch(-20); }).pixel(150, 135), ground));
        QCOMPARE(meter([](LxVehicleMeterWidget& m) { m.setPitch(75); }),
                 meter([](LxVehicleMeterWidget& m) { m.setPitch(60); }));
        // setAttitude stores as given.
        QVERIFY(meter([](LxVehicleMeterWidget& m) { m.setPitch(60); m.setAttitude(75, 0); })
                != meter([](LxVehicleMeterWidget& m) { m.setPitch(60); }));
    }

    void rollTiltsTheHorizonAndIsClamped()
    {
        // Banked right, the horizon's right end rises and its left end sinks.
        const QImage right = meter([](LxVehicleMeterWidget& m) { m.setRoll(30); });
        QVERIFY(near(right.pixel(80, 165), sky));
        QVERIFY(near(right.pixel(220, 135), ground));
        QCOMPARE(meter([](LxVehicleMeterWidget& m) { m.setRoll(120); }),
                 meter([](LxVehicleMeterWidget& m) { m.setRoll(90); }));
        QCOMPARE(meter([](LxVehicleMeterWidget& m) { m.setRoll(-120); }),
                 meter([](LxVehicleMeterWidget& m) { m.setRoll(-90); }));
    }

    void ladderFollowsThePitchRange_data()
    {
        QTest::addColumn<float>("pitch");
        QTest::addColumn<QString>("ladder");
        QTest::newRow("29.9") << 29.9f << QStringLiteral(":/meter/svg_pitch_30.svg");
        QTest::newRow("30") << 30.0f << QStringLiteral(":/meter/svg_pitch_40.svg");
        QTest::newRow("-49") << -49.0f << QStringLiteral(":/meter/svg_pitch_50.svg");
        QTest::newRow("-75") << -75.0f << QStringLiteral(":/meter/svg_pitch_60.svg");
    }

    void ladderFollowsThePitchRange()
    {
        QFETCH(float, pitch);
        QFETCH(QString, ladder);
        LxVehicleMeterWidget widget;
        widget.resize(300, 300);
        widget.setPitch(10);
        render(&widget); // drawn once with the 30 ladder
        widget.setPitch(pitch);
        QCOMPARE(widget.pitchLadder(), ladder);
        LxVehicleMeterWidget fresh;
        fresh.resize(300, 300);
        fresh.setPitch(pitch);
        QCOMPARE(render(&widget), render(&fresh));
        // The ladder in use is the one drawn: same pitch, ladder left at the 30 one.
        LxVehicleMeterWidget stale;
        stale.resize(300, 300);
        stale.setAttitude(widget.pitch(), 0);
        QCOMPARE(render(&widget) == render(&stale), ladder.endsWith(QLatin1String("30.svg")));

        // A new size draws the faces anew at that size.
        widget.resize(200, 200);
        LxVehicleMeterWidget small;
        small.resize(200, 200);
        small.setPitch(pitch);
        QCOMPARE(render(&widget), render(&small));
    }
};

QObject* createMeterTest()
{
    return new MeterTest;
}

#include "tst_meter.moc"
