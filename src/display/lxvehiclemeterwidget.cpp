#include "lxvehiclemeterwidget.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtSvg/QSvgRenderer>

#include <cmath>

namespace {

QString ladderFor(float pitch)
{
    const float magnitude = std::fabs(pitch);
    const int range = magnitude < 30 ? 30 : magnitude < 40 ? 40 : magnitude < 50 ? 50 : 60;
    return QStringLiteral(":/meter/svg_pitch_%1.svg").arg(range);
}

} // namespace

LxVehicleMeterWidget::LxVehicleMeterWidget(QWidget* parent)
    : QFrame(parent)
    , m_topPointer(new QSvgRenderer(QStringLiteral(":/meter/svg_arrow2.svg"), this))
    , m_headingDial(new QSvgRenderer(QStringLiteral(":/meter/svg_heading.svg"), this))
    , m_rollScale(new QSvgRenderer(QStringLiteral(":/meter/svg_roll.svg"), this))
    , m_rollPointer(new QSvgRenderer(QStringLiteral(":/meter/svg_arrow.svg"), this))
    , m_pitchLadder(new QSvgRenderer(QStringLiteral(":/meter/svg_pitch_30.svg"), this))
    , m_aircraft(new QSvgRenderer(QStringLiteral(":/meter/svg_plane.svg"), this))
    , m_pitchLadderPath(QStringLiteral(":/meter/svg_pitch_30.svg"))
{
}

void LxVehicleMeterWidget::setHeading(float heading)
{
    while (heading < 0)
        heading += 360;
    while (heading > 360)
        heading -= 360;
    m_heading = heading;
    update();
}

void LxVehicleMeterWidget::setPitch(float pitch)
{
    m_pitch = qBound(-60.0f, pitch, 60.0f);
    const QString ladder = ladderFor(m_pitch);
    if (ladder != m_pitchLadderPath) {
        m_pitchLadderPath = ladder;
        m_pitchLadder->load(ladder);
        m_faceImages.remove(m_pitchLadder);
    }
    update();
}

void LxVehicleMeterWidget::setRoll(float roll)
{
    m_roll = qBound(-90.0f, roll, 90.0f);
    update();
}

void LxVehicleMeterWidget::setAttitude(float pitch, float roll)
{
    m_pitch = pitch;
    m_roll = roll;
    update();
}

void LxVehicleMeterWidget::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    const qreal w = width();
    const qreal h = height();
    const qreal cx = w / 2;
    const qreal cy = h / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // Each face covers the whole widget before its own placement: see the generator
    // under scripts/ for how the faces are drawn to suit these transforms.
    const auto drawLayer = [this, &painter](QSvgRenderer* face, const auto& place) {
        painter.save();
        place();
        drawFace(painter, face);
        painter.restore();
    };

    drawLayer(m_pitchLadder, [&] {
        QPainterPath window;
        window.addEllipse(QPointF(cx, cy), 0.42 * w, 0.42 * h);
        painter.setClipPath(window);
        painter.translate(cx, cy);
        painter.rotate(-m_roll);
        painter.scale(1.2, 1.2);
        painter.translate(-w / 2, -h / 2);
        // Positive pitch moves the ladder down; 270 degrees span the face's height.
        painter.translate(0, float(h * 1.001 * m_pitch / 270));
    });
    drawLayer(m_headingDial, [&] {
        painter.translate(cx, cy);
        painter.rotate(-m_heading);
        painter.scale(0.9, 0.9);
        painter.translate(-w / 2, -h / 2);
    });
    drawLayer(m_rollScale, [&] {
        painter.translate(cx, cy);
        painter.rotate(-m_roll);
        painter.translate(-w / 2, -h / 2);
        painter.translate(cx, 0.23 * h);
        painter.scale(0.6572, 0.29);
        painter.translate(-w / 2, -0.23 * h);
    });
    drawLayer(m_topPointer, [&] {
        painter.translate(cx, 0);
        painter.scale(0.055, 0.055);
        painter.translate(-w / 2, 0);
    });
    drawLayer(m_rollPointer, [&] {
        painter.translate(cx, 0.23 * h);
        painter.scale(0.05, 0.05);
        painter.translate(-w / 2, -0.23 * h);
    });
    drawLayer(m_aircraft, [&] {
        painter.translate(cx, 0.505 * h);
        painter.scale(0.4, 0.03);
        painter.translate(-w / 2, -0.505 * h);
    });
}

// Rendering an SVG face under rotation costs several times drawing an image of it: the
// rasteriser walks every tick and numeral on each frame. A face covers the whole device
// before its placement, as QSvgRenderer::render(QPainter*) draws it; it is rendered once
// at the size in device pixels it then covers, so the image is drawn about one to one.
void LxVehicleMeterWidget::drawFace(QPainter& painter, QSvgRenderer* face)
{
    const QRectF target(0, 0, painter.device()->width(), painter.device()->height());
    const QTransform& toDevice = painter.deviceTransform();
    const QSize pixels(qRound(target.width() * std::hypot(toDevice.m11(), toDevice.m12())),
                       qRound(target.height() * std::hypot(toDevice.m21(), toDevice.m22())));
    if (pixels.isEmpty())
        return;
    QImage& image = m_faceImages[face];
    if (image.size() != pixels) {
        image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter facePainter(&image);
        facePainter.setRenderHint(QPainter::Antialiasing);
        face->render(&facePainter);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}
