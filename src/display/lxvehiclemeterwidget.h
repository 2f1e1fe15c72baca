#pragma once

#include "vorlinglobal.h"

#include <QtCore/QHash>
#include <QtGui/QImage>
#include <QtWidgets/QFrame>

class QSvgRenderer;

// An attitude and heading instrument: a pitch ladder over sky and ground that rolls and
// slides behind a fixed aircraft symbol, a roll scale with its index, and a compass rose
// turning under a fixed heading index. Composed of six SVG faces, each rendered once per
// size at the resolution it is drawn at and then drawn transformed on every paint.
class VORLIN_EXPORT LxVehicleMeterWidget : public QFrame
{
    Q_OBJECT
public:
    explicit LxVehicleMeterWidget(QWidget* parent = nullptr);

    // Wrapped into 0..360 (360 itself stays 360).
    void setHeading(float heading);
    // Clamped to -60..60; picks the ladder graduated far enough for the value.
    void setPitch(float pitch);
    // Clamped to -90..90.
    void setRoll(float roll);
    // Stores both as given: no clamping and no ladder change.
    void setAttitude(float pitch, float roll);

    float heading() const { return m_heading; }
    float pitch() const { return m_pitch; }
    float roll() const { return m_roll; }
    // The resource of the pitch ladder in use.
    QString pitchLadder() const { return m_pitchLadderPath; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawFace(QPainter& painter, QSvgRenderer* face);

    float m_roll = 0;
    float m_pitch = 0;
    float m_heading = 0;
    QSvgRenderer* m_topPointer;
    QSvgRenderer* m_headingDial;
    QSvgRenderer* m_rollScale;
    QSvgRenderer* m_rollPointer;
    QSvgRenderer* m_pitchLadder;
    QSvgRenderer* m_aircraft;
    QString m_pitchLadderPath;
    QHash<const QSvgRenderer*, QImage> m_faceImages;
};
