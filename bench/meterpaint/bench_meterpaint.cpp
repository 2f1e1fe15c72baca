// Paint cost of LxVehicleMeterWidget at several sizes against the floor of its design:
// rendering the same six SVG faces once each into the same image with no transforms and
// no clip. Each frame is timed on its own; the figure is the median (and 90th percentile)
// in milliseconds. The meter renders each face once per size into an image and draws that transformed, so
// it can run below this floor; the first frame at each size pays for those renders.
//   bench_meterpaint [frames]
#include "../stats.h"
#include "libvorlin.h"
#include "lxvehiclemeterwidget.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

const char* const Faces[] = {":/meter/svg_pitch_30.svg", ":/meter/svg_heading.svg", ":/meter/svg_roll.svg",
                             ":/meter/svg_arrow2.svg",   ":/meter/svg_arrow.svg",   ":/meter/svg_plane.svg"};

double milliseconds(const QElapsedTimer& clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    libVorlin::InitVorlin();
    const int frames = argc > 1 ? qMax(1, QString::fromLocal8Bit(argv[1]).toInt()) : 1000;

    std::vector<std::unique_ptr<QSvgRenderer>> faces;
    for (const char* face : Faces)
        faces.push_back(std::make_unique<QSvgRenderer>(QString::fromLatin1(face)));

    std::printf("meter paint, %d frames per size, ms per frame\n", frames);
    std::printf("%-10s %12s %12s %12s %12s %8s\n", "size", "meter p50", "meter p90", "floor p50", "floor p90", "ratio");
    for (int side : {300, 400, 600}) {
        LxVehicleMeterWidget meter;
        meter.resize(side, side);
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        std::vector<double> meterTimes, floorTimes;
        // Meter and floor take turns in runs of a few dozen frames: both see the same
        // machine state, and each runs warm as it would when redrawn at a steady rate.
        constexpr int Run = 50;
        for (int first = 0; first < frames; first += Run) {
            const int last = std::min(frames, first + Run);
            for (int i = first; i < last; ++i) {
                // A moving aircraft, so every frame differs as it would in flight.
                meter.setRoll(float(i % 60 - 30));
                meter.setPitch(float(i % 50 - 25));
                meter.setHeading(float(i % 360));
                image.fill(Qt::transparent);
                QElapsedTimer clock;
                clock.start();
                // Without DrawWindowBackground: placed in a window, the meter paints no
                // background of its own (its parent does), so that fill is not its cost.
                meter.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
                meterTimes.push_back(milliseconds(clock));
            }
            for (int i = first; i < last; ++i) {
                image.fill(Qt::transparent);
                QElapsedTimer clock;
                clock.start();
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing);
                for (const auto& face : faces)
                    face->render(&painter);
                painter.end();
                floorTimes.push_back(milliseconds(clock));
            }
        }
        const double meter50 = percentile(meterTimes, 0.5);
        const double floor50 = percentile(floorTimes, 0.5);
        std::printf("%4d x %-4d %12.3f %12.3f %12.3f %12.3f %8.2f\n", side, side, meter50,
                    percentile(meterTimes, 0.9), floor50, percentile(floorTimes, 0.9), meter50 / floor50);
    }
    return 0;
}
