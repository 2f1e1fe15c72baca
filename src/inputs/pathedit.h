#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QLineEdit>

class QToolButton;

// A read-only path field with a file-open button inside its right end. The button opens a
// file dialog; the chosen path (or nothing, when cancelled) becomes the field's text.
class VORLIN_EXPORT PathEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit PathEdit(QWidget* parent = nullptr);
    explicit PathEdit(const QString& text, QWidget* parent = nullptr);

    // Start folder and name filter of the file dialog.
    void SetPrefixDirPath(const QString& dir, const QString& filter);

Q_SIGNALS:
    void sigSelectPathReady(bool selected);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void init();
    void selectFile();

    QToolButton* m_openButton = nullptr;
    QString m_startDir;
    QString m_filter;
};
