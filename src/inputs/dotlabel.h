#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QWidget>

// The painted dot between two fields of an IPAddressEdit.
class VORLIN_EXPORT DotLabel : public QWidget
{
    Q_OBJECT
public:
    explicit DotLabel(QWidget* parent = nullptr);

    // Radii below 2 are ignored; the minimum size follows the radius.
    void setDotRadius(int radius);
    int dotRadius() const { return m_radius; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_radius = 3;
};
