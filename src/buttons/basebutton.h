#pragma once

#include "icontextbutton.h"

// A blue IconTextButton with an id, reporting clicks with the id and its global
// position. It keeps the hover look but never shows the pressed one.
class VORLIN_EXPORT BaseButton : public IconTextButton
{
    Q_OBJECT
public:
    BaseButton(int id, const QString& text, QWidget* parent = nullptr);
    ~BaseButton() override;

    int GetId() const;

Q_SIGNALS:
    // p is the button's top-left corner in global coordinates.
    void sigClicked(int id, QPoint p);
    void sigPressed(int id, QPoint p);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_id;
};
