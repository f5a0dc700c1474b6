// A strip across the window with a hairline at its upper or lower edge.
#pragma once

#include <QFrame>

class LinedFrame : public QFrame
{
    Q_OBJECT

public:
    LinedFrame(Qt::Edge edge, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Edge m_edge;
};
