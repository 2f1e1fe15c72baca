#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class BaseButton;

// Buttons stacked in one place, showing one at a time: a click on the shown button
// reports it and brings up the next one, wrapping round at the end.
class VORLIN_EXPORT BaseStateButton : public QWidget
{
    Q_OBJECT
public:
    explicit BaseStateButton(QWidget* parent = nullptr);
    ~BaseStateButton() override;

    void addButton(int id, const QString& text);
    void addButton(BaseButton* button);
    BaseButton* getButton(int id) const;

    // The list must not be empty.
    int currentButtonId() const;
    void setCurrentButtonId(int id);
    void restore();
    void clickCurrentButton();

Q_SIGNALS:
    // id is the clicked button's, not the one shown afterwards.
    void sigClicked(int id, QPoint p);
    void sigPressed(int id, QPoint p);

protected Q_SLOTS:
    void slotClicked(int id, QPoint p);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layoutButtons();

    QList<BaseButton*> m_buttons;
    int m_currentIndex = 0;
};
