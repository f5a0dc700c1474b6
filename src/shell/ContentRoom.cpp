#include "shell/ContentRoom.h"

#include "shell/Twips.h"

#include <QEvent>
#include <QLayout>

ContentRoom::ContentRoom(QWidget* parent) : QWidget(parent), m_content(new QWidget(this))
{
    m_content->installEventFilter(this);
}

bool ContentRoom::eventFilter(QObject* watched, QEvent* event)
{
    // Another panel may need more space.
    if (watched == m_content && event->type() == QEvent::LayoutRequest) {
        fitContent();
    }
    return QWidget::eventFilter(watched, event);
}

void ContentRoom::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitContent();
}

void ContentRoom::fitContent()
{
    if (isArranged(window()->size()) && m_content->layout()) {
        m_content->resize(size().expandedTo(m_content->layout()->minimumSize()));
    }
}
