#include "editors/SecondPress.h"

#include <QApplication>
#include <QEvent>

namespace {

// Lives from a press to the next one.
class SecondPressFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonDblClick) {
            return true;
        }
        // The window gets the second press ahead of the double click, and keeps it from its widgets.
        if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
            qApp->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }
};

} // namespace

void swallowSecondPress()
{
    qApp->installEventFilter(new SecondPressFilter(qApp));
}
