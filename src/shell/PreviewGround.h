// The ground beside a page of the preview that is narrower than the window. It follows a change of the look; the
// preview's widget owns it.
#pragma once

#include <QObject>

class QWidget;

class PreviewGround : public QObject
{
public:
    explicit PreviewGround(QWidget* preview);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void colour();

    QWidget* m_preview;
};
