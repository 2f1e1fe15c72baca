#pragma once

#include "vorlinglobal.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QLineEdit>

class QLabel;

// A line edit with an optional icon at its left end and a grey hint that shows only while
// the field is empty.
class VORLIN_EXPORT InputLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit InputLineEdit(QWidget* parent = nullptr);
    explicit InputLineEdit(const QString& text, QWidget* parent = nullptr);

    void SetTipText(const QString& text);
    void SetTipIcon(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void init();
    void relayout();

    QPixmap m_tipIcon;
    QLabel* m_iconLabel = nullptr;
    QLabel* m_tipLabel = nullptr;
};
