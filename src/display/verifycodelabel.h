#pragma once

#include "vorlinglobal.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtWidgets/QLabel>

// A picture verification code: four random characters over random noise, for a person
// to copy into a form. A left click draws a new code. Characters that are easily
// confused (0, o, O, 1, i, I, l, L) never appear.
class VORLIN_EXPORT VerifyCodeLabel : public QLabel
{
    Q_OBJECT
public:
    explicit VerifyCodeLabel(QWidget* parent = nullptr);

    // The code as drawn, in mixed case.
    QString getVerificationCode() const;
    // Compare a user's entry case-insensitively by converting both sides the same way.
    QString getLowVerificationCode() const;
    QString getUpVerificationCode() const;

    // Both take effect with the next repaint.
    void setBackgroundColor(QColor color);
    void setRadius(int radius);

public Q_SLOTS:
    void slotReflushVerifyCode();

Q_SIGNALS:
    void sigVerificationCodeChanged();

protected:
    QChar produceRandomLetter();
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor randomColor();

    const int m_letterCount = 4;
    int m_noisePointCount;
    int m_radius = 0;
    QColor m_backgroundColor;
    QVector<QChar> m_letters;
    QVector<QColor> m_colors;
    QRandomGenerator m_random;
};
